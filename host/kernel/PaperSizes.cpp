#include "kernel/PaperSizes.h"

#include "kernel/StyleStore.h"

#include <stdexcept>
#include <utility>

namespace vantrix::kernel {

namespace {

constexpr double millimetresPerInch = 25.4;

PaperDimensions upright(const StyleStore& style, long pageId, PaperSize_e size)
{
    switch (size) {
    case PaperSize_Letter:
        return {8.5, 11.0};
    case PaperSize_Double:
        return {11.0, 17.0};
    case PaperSize_A4:
        return {210.0 / millimetresPerInch, 297.0 / millimetresPerInch};
    case PaperSize_A3:
        return {297.0 / millimetresPerInch, 420.0 / millimetresPerInch};
    case PaperSize_Custom1:
        return {style.real(pageId, style.entry("Paper/Custom1/Width")),
                style.real(pageId, style.entry("Paper/Custom1/Height"))};
    case PaperSize_Custom2:
        return {style.real(pageId, style.entry("Paper/Custom2/Width")),
                style.real(pageId, style.entry("Paper/Custom2/Height"))};
    }
    throw std::invalid_argument("Paper size " + std::to_string(size) + " is unknown; it has to be from 0 to 5.");
}

} // namespace

PaperDimensions paperDimensions(const StyleStore& style, long pageId)
{
    const auto size = static_cast<PaperSize_e>(style.integer(pageId, style.entry("Paper/PaperSize")));
    return paperDimensions(style, pageId, size, style.flag(pageId, style.entry("Paper/OrientPortrait")));
}

PaperDimensions paperDimensions(const StyleStore& style, long pageId, PaperSize_e size, bool portrait)
{
    PaperDimensions dimensions = upright(style, pageId, size);
    if (!portrait) {
        std::swap(dimensions.width, dimensions.height);
    }
    return dimensions;
}

} // namespace vantrix::kernel
