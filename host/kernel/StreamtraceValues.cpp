#include "kernel/StreamtraceValues.h"

#include <array>

namespace vantrix::kernel {

namespace {

using Values = ObjectValues<Streamtrace>;

constexpr std::array values{
    Values::between<&Streamtrace::type>("StreamType", Streamtrace_SurfaceLine, Streamtrace_VolumeRod),
    Values::between<&Streamtrace::direction>("StreamDirection", StreamDir_Forward, StreamDir_Both),
    Values::any<&Streamtrace::x>("X"),
    Values::any<&Streamtrace::y>("Y"),
    Values::any<&Streamtrace::z>("Z"),
};

} // namespace

std::span<const ObjectValue<Streamtrace>> ObjectTraits<Streamtrace>::values()
{
    return kernel::values;
}

} // namespace vantrix::kernel
