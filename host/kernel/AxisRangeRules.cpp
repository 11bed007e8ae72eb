#include "kernel/AxisRangeRules.h"

#include "kernel/AxisRanges.h"
#include "kernel/Document.h"
#include "kernel/Frame.h"
#include "kernel/NumberText.h"

#include <algorithm>
#include <map>

namespace vantrix::kernel {

namespace {

/* The axes of one kind of a plot type. */
struct AxisKind
{
    PlotType_e plotType;
    char kind;
    long minimum; /* entries of the style */
    long maximum;
    long scale; /* -1 where axes of the kind are never logarithmic */

    std::string name(long object) const { return axisText(plotType, {kind, static_cast<int>(std::max(object, 1L))}); }
};

struct Range
{
    double minimum;
    double maximum;
    bool isLogarithmic;
};

std::vector<AxisKind> axisKindsOf(const StyleStore& style)
{
    std::vector<AxisKind> all;
    for (const PlotType_e plotType :
         {PlotType_Cartesian3D, PlotType_Cartesian2D, PlotType_XYLine, PlotType_Sketch, PlotType_PolarLine}) {
        for (const char kind : axisKinds(plotType)) {
            const std::string path = axisPath(plotType, kind);
            all.push_back({plotType, kind, style.entry((path + "RangeMin").c_str()),
                           style.entry((path + "RangeMax").c_str()),
                           canBeLogarithmic(plotType, kind) ? style.entry((path + "CoordScale").c_str()) : -1});
        }
    }
    return all;
}

std::string whyMinimumIsRefused(const std::string& axis, const Range& range)
{
    if (range.isLogarithmic && !(range.minimum > 0.0)) {
        return "The minimum of axis " + axis + " has to be above 0, because the axis is logarithmic; " +
               numberText(range.minimum) + " is not.";
    }
    if (!(range.minimum < range.maximum)) {
        return "The minimum of axis " + axis + " has to be below its maximum, which is " + numberText(range.maximum) +
               "; " + numberText(range.minimum) + " is not.";
    }
    return {};
}

std::string whyMaximumIsRefused(const std::string& axis, const Range& range)
{
    if (!(range.minimum < range.maximum)) {
        return "The maximum of axis " + axis + " has to be above its minimum, which is " + numberText(range.minimum) +
               "; " + numberText(range.maximum) + " is not.";
    }
    return {};
}

Range rangeOf(const StyleStore& style, const AxisKind& axis, long scopeId, long object)
{
    return {style.real(scopeId, axis.minimum, object), style.real(scopeId, axis.maximum, object),
            axis.scale >= 0 && style.integer(scopeId, axis.scale, object) == CoordScale_Log};
}

} // namespace

void AxisRangeRules::install(StyleStore& style, const Document& document)
{
    for (const AxisKind& axis : axisKindsOf(style)) {
        style.setRule(axis.minimum, [&style, axis](long scopeId, long object, const StyleData& value) {
            Range range = rangeOf(style, axis, scopeId, object);
            range.minimum = std::get<double>(value);
            return whyMinimumIsRefused(axis.name(object), range);
        });
        style.setRule(axis.maximum, [&style, axis](long scopeId, long object, const StyleData& value) {
            Range range = rangeOf(style, axis, scopeId, object);
            range.maximum = std::get<double>(value);
            return whyMaximumIsRefused(axis.name(object), range);
        });
        if (axis.scale >= 0) {
            style.setEffect(axis.scale, [&style, &document, axis](long scopeId, long object) {
                const Range range = rangeOf(style, axis, scopeId, object);
                const Frame* frame = document.frameById(scopeId);
                if (frame && !whyMinimumIsRefused({}, range).empty()) {
                    AxisRanges(style, *frame, axis.plotType)
                        .raiseAboveZero({axis.kind, static_cast<int>(std::max(object, 1L))});
                }
            });
        }
    }
}

std::optional<AxisRangeRules::Violation> AxisRangeRules::find(const StyleStore& style,
                                                              const std::vector<StyleStore::Stored>& values)
{
    constexpr long scopeOfDefaults = -1;
    for (const AxisKind& axis : axisKindsOf(style)) {
        std::map<long, Range> ranges; /* by object */
        std::map<long, std::size_t> last;
        for (std::size_t i = 0; i < values.size(); ++i) {
            const auto& [entry, object, object2, value] = values[i];
            if (entry != axis.minimum && entry != axis.maximum && entry != axis.scale) {
                continue;
            }
            Range& range = ranges.try_emplace(object, rangeOf(style, axis, scopeOfDefaults, object)).first->second;
            if (entry == axis.scale) {
                range.isLogarithmic = std::get<long>(value) == CoordScale_Log;
            } else {
                (entry == axis.minimum ? range.minimum : range.maximum) = std::get<double>(value);
            }
            last[object] = i;
        }
        for (const auto& [object, range] : ranges) {
            if (std::string text = whyMinimumIsRefused(axis.name(object), range); !text.empty()) {
                return Violation{last[object], std::move(text)};
            }
        }
    }
    return std::nullopt;
}

} // namespace vantrix::kernel
