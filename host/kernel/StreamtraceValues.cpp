#include "kernel/StreamtraceValues.h"

#include <array>

namespace vantrix::kernel {

namespace {

using StreamtraceMember = ObjectValues<Streamtrace>;

constexpr std::array streamtraceValues{
    StreamtraceMember::between<&Streamtrace::type>("StreamType", Streamtrace_SurfaceLine, Streamtrace_VolumeRod),
    StreamtraceMember::between<&Streamtrace::direction>("StreamDirection", StreamDir_Forward, StreamDir_Both),
    StreamtraceMember::any<&Streamtrace::x>("X"),
    StreamtraceMember::any<&Streamtrace::y>("Y"),
    StreamtraceMember::any<&Streamtrace::z>("Z"),
};

} // namespace

std::span<const ObjectValue<Streamtrace>> ObjectTraits<Streamtrace>::values()
{
    return streamtraceValues;
}

} // namespace vantrix::kernel
