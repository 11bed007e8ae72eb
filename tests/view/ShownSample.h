#pragma once

#include "api/VtxEnumerations.h"
#include "kernel/StyleStore.h"

#include <string>

/* Colour numbers of style. */
namespace colornumber {
constexpr long red = 1;
constexpr long green = 2;
constexpr long blue = 3;
constexpr long firstContourGroup = 64;
} // namespace colornumber

namespace vantrix::kernel {
class Frame;
class Kernel;
} // namespace vantrix::kernel

/* A fresh kernel whose only frame shows one of the built-in data sets, with its defaults and contours. */
class ShownSample
{
public:
    ShownSample(const std::string& name, PlotType_e type);
    ~ShownSample();

    vantrix::kernel::Kernel& kernel;
    vantrix::kernel::Frame& frame() const;

    void set(const std::string& path, const vantrix::kernel::StyleData& value, long offset = -1);
    double real(const std::string& path, long offset = -1) const;
};
