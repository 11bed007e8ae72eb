#include "kernel/AxisRanges.h"

#include "kernel/AxisRangeRules.h"
#include "kernel/DataError.h"
#include "kernel/FieldValues.h"
#include "kernel/FrontEnd.h"
#include "kernel/Kernel.h"
#include "kernel/LineMaps.h"
#include "kernel/NiceNumbers.h"
#include "kernel/StyleStore.h"
#include "kernel/ValueBlanking.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace vantrix::kernel {

namespace {

constexpr double stepsInRange = 20.0;

/* Axes whose lengths differ by more than this are not drawn in proportion: the short one would be a line. */
constexpr double mostElongated = 20.0;

std::optional<ValueRange> joined(std::optional<ValueRange> one, std::optional<ValueRange> other)
{
    if (!one || !other) {
        return one ? one : other;
    }
    return ValueRange{std::min(one->minimum, other->minimum), std::max(one->maximum, other->maximum)};
}

/* The range of what a test takes of the values. */
template<class Test>
std::optional<ValueRange> rangeWhere(vtkDataArray& values, const Test& isTaken)
{
    std::optional<ValueRange> found;
    const vtkIdType count = values.GetNumberOfTuples();
    for (vtkIdType i = 0; i < count; ++i) {
        const double value = values.GetComponent(i, 0);
        if (std::isfinite(value) && isTaken(i, value)) {
            found = joined(found, ValueRange{value, value});
        }
    }
    return found;
}

} // namespace

AxisRanges::AxisRanges(StyleStore& style, const Frame& frame)
    : AxisRanges(style, frame, plotTypeOf(style, frame))
{}

AxisRanges::AxisRanges(StyleStore& style, const Frame& frame, PlotType_e plotType)
    : m_style(style)
    , m_frame(frame)
    , m_plotType(plotType)
{}

double AxisRanges::real(AxisName axis, const char* value) const
{
    const AxisPlace where = place(axis);
    return m_style.real(m_frame.id(), where.entry(m_style, value), where.offset);
}

bool AxisRanges::isLogarithmic(AxisName axis) const
{
    const AxisPlace where = place(axis);
    return canBeLogarithmic(m_plotType, axis.kind) &&
           m_style.integer(m_frame.id(), where.entry(m_style, "CoordScale"), where.offset) == CoordScale_Log;
}

bool AxisRanges::isOfLinePlot() const
{
    return m_plotType == PlotType_XYLine || m_plotType == PlotType_PolarLine;
}

void AxisRanges::forEachArray(AxisName axis, Blanking considered, const std::function<void(const Values&)>& use) const
{
    const DataSet* data = m_frame.dataSet().get();
    const ValueBlanking blanking =
        considered == Blanking::Considered ? ValueBlanking::read(m_style, m_frame) : ValueBlanking();
    const auto useField = [&](long zone, long variable) {
        const FieldArray* field = data->field(zone, variable);
        if (field && field->isLoaded() && data->zoneEnabled[static_cast<std::size_t>(zone - 1)]) {
            const bool isNodal = field->location == ValueLocation_Nodal;
            use({*field->values, blanking.isActive() && isNodal ? blanking.of(*data, zone) : nullptr});
        }
    };
    if (!data || m_plotType == PlotType_Sketch) {
        return;
    }
    if (!isOfLinePlot()) {
        const long variable = m_style.integer(m_frame.id(), place(axis).entry(m_style, "VarNum"));
        for (long zone = 1; zone <= data->zoneCount(); ++zone) {
            if (m_style.flag(m_frame.id(), m_style.entry("ActiveFieldMaps"), zone)) {
                useField(zone, variable);
            }
        }
        return;
    }
    const bool isFirst = axis.kind == 'X' || axis.kind == 'T';
    const LineMaps maps(m_style, m_frame);
    for (const long lineMap : maps.active()) {
        const LineMapAssignment shown = maps.assignment(lineMap);
        if (m_plotType == PlotType_PolarLine || (isFirst ? shown.xAxis : shown.yAxis) == axis.number) {
            useField(shown.zone, isFirst ? shown.xVariable : shown.yVariable);
        }
    }
}

std::optional<ValueRange> AxisRanges::dataRange(AxisName axis, Blanking blanking) const
{
    std::optional<ValueRange> all;
    const bool isLog = isLogarithmic(axis);
    forEachArray(axis, blanking, [&](const Values& values) {
        std::optional<ValueRange> range = valueRange(values.array);
        const bool needsPositive = isLog && range && range->minimum <= 0.0;
        if (needsPositive || values.blanked) {
            range = rangeWhere(values.array, [&](vtkIdType i, double value) {
                return (!needsPositive || value > 0.0) &&
                       (!values.blanked || !values.blanked->points[static_cast<std::size_t>(i)]);
            });
        }
        all = joined(all, range);
    });
    return all;
}

ValueRange AxisRanges::expectedDataRange(AxisName axis, Blanking blanking) const
{
    if (const std::optional<ValueRange> range = dataRange(axis, blanking)) {
        return *range;
    }
    throw DataError(
        "Axis " + axisText(m_plotType, axis) + " shows no data " +
        (isLogarithmic(axis) ? "above 0 that a logarithmic axis could be fitted to." : "that it could be fitted to."));
}

AxisRanges::Limits AxisRanges::nice(AxisName axis, Limits limits) const
{
    const NiceRange range =
        isLogarithmic(axis) ? niceDecades(limits.minimum, limits.maximum) : niceRange(limits.minimum, limits.maximum);
    return {range.minimum, range.maximum};
}

void AxisRanges::fit(AxisName axis)
{
    fit(axis, Blanking::Ignored);
}

void AxisRanges::fitToUnblanked(AxisName axis)
{
    fit(axis, Blanking::Considered);
}

void AxisRanges::fit(AxisName axis, Blanking blanking)
{
    const ValueRange range = expectedDataRange(axis, blanking);
    const Limits exact{range.minimum, range.maximum};
    /* One value alone spans no axis. */
    set(axis, range.maximum > range.minimum ? exact : nice(axis, exact));
}

void AxisRanges::niceFit(AxisName axis)
{
    const ValueRange range = expectedDataRange(axis);
    set(axis, nice(axis, {range.minimum, range.maximum}));
}

void AxisRanges::makeNice(AxisName axis)
{
    set(axis, nice(axis, {real(axis, "RangeMin"), real(axis, "RangeMax")}));
}

void AxisRanges::raiseAboveZero(AxisName axis)
{
    constexpr double decadesWithoutData = 1e3;
    constexpr double mostDecades = 1e10;
    const std::optional<ValueRange> range = dataRange(axis);
    double maximum = real(axis, "RangeMax");
    if (!(maximum > (range ? range->minimum : 0.0))) {
        maximum = range ? range->maximum : 1.0;
    }
    const double lowest = range ? std::max(range->minimum, maximum / mostDecades) : maximum / decadesWithoutData;
    const NiceRange decades = niceDecades(lowest, maximum);
    set(axis, {decades.minimum, maximum > decades.minimum ? maximum : decades.maximum});
}

void AxisRanges::fitToEntireCircle(AxisName axis)
{
    if (m_plotType != PlotType_PolarLine) {
        throw DataError("Only the axes of a polar plot can be fitted to the entire circle.");
    }
    const double minimum = real(axis, "RangeMin");
    if (axis.kind == 'T') {
        set(axis, {minimum, minimum + m_style.real(m_frame.id(), m_style.entry("PolarAxis/ThetaPeriod"))});
        return;
    }
    const double centre = real(axis, "ValueAtOrigin");
    const double maximum = real(axis, "RangeMax");
    const double length = std::abs(maximum - minimum);
    set(axis, {centre, maximum > centre ? maximum : centre + (length > 0.0 ? length : 1.0)});
}

void AxisRanges::fitAll(bool isNice)
{
    for (const char kind : axisKinds(m_plotType)) {
        for (AxisName axis{kind, 1}; hasAxis(m_plotType, axis); ++axis.number) {
            if (dataRange(axis)) {
                isNice ? niceFit(axis) : fit(axis);
            }
        }
    }
    if (m_plotType == PlotType_Cartesian3D) {
        for (const char* coordinate : {"X", "Y", "Z"}) { // a viewer at the origin of the data sees the whole plot
            setReal(m_style.entry((std::string("ThreeDView/ViewerPosition/") + coordinate).c_str()), 0.0);
        }
    }
}

double AxisRanges::nextValue(AxisName axis, double value, bool up, bool isNice) const
{
    if (!hasAxis(m_plotType, axis) || !std::isfinite(value)) {
        return value;
    }
    const Limits present{real(axis, "RangeMin"), real(axis, "RangeMax")};
    const double next = isLogarithmic(axis) ? steppedByFactor(present, value, up, isNice)
                                            : steppedBySpacing(present, value, up, isNice);
    /* One end of a range does not step to the other. */
    const bool passesEnd =
        up ? value < present.maximum && next >= present.maximum : value > present.minimum && next <= present.minimum;
    return passesEnd || !std::isfinite(next) ? value : next;
}

double AxisRanges::steppedByFactor(Limits range, double value, bool up, bool isNice)
{
    if (value <= 0.0) {
        return value;
    }
    if (isNice) {
        return nextNiceFactor(value, up);
    }
    const double factor = std::pow(range.maximum / range.minimum, 1.0 / stepsInRange);
    return up ? value * factor : value / factor;
}

double AxisRanges::steppedBySpacing(Limits range, double value, bool up, bool isNice)
{
    const double length = range.maximum - range.minimum;
    if (isNice) {
        return nextNiceValue(value, niceSpacing(length, static_cast<int>(stepsInRange)), up);
    }
    const double step = length / stepsInRange;
    return withoutRounding(up ? value + step : value - step, step);
}

std::array<double, 3> AxisRanges::sizeFactors(const std::array<double, 3>& lengths)
{
    std::array<double, 3> factors{1.0, 1.0, 1.0};
    const double longest = *std::ranges::max_element(lengths);
    const auto isShort = [&](double length) { return length > 0.0 && longest > mostElongated * length; };
    if (std::ranges::any_of(lengths, isShort)) {
        for (std::size_t i = 0; i < lengths.size(); ++i) {
            factors[i] = lengths[i] > 0.0 ? longest / lengths[i] : 1.0;
        }
    }
    return factors;
}

double AxisRanges::tickSpacing(AxisName axis) const
{
    const AxisPlace where = place(axis);
    const bool isAutomatic = m_style.flag(m_frame.id(), where.entry(m_style, "AutoGrid"), where.offset);
    const double drawn =
        isAutomatic ? Kernel::instance().frontEnd().drawnTickSpacing(m_frame.id(), axis.kind, axis.number) : 0.0;
    return drawn > 0.0 ? drawn : real(axis, "GRSpacing");
}

void AxisRanges::reset3DScaleFactors()
{
    if (m_plotType != PlotType_Cartesian3D) {
        throw DataError("Only a 3D plot has size factors.");
    }
    constexpr std::array kinds{'X', 'Y', 'Z'};
    std::array<double, 3> lengths{};
    for (std::size_t i = 0; i < kinds.size(); ++i) {
        const AxisName axis{kinds[i], 1};
        const Limits present{real(axis, "RangeMin"), real(axis, "RangeMax")};
        const auto range = dataRange(axis);
        lengths[i] = range ? range->maximum - range->minimum : std::abs(present.maximum - present.minimum);
    }
    const std::array<double, 3> factors = sizeFactors(lengths);
    const bool isInProportion = factors == std::array{1.0, 1.0, 1.0};
    const long mode = isInProportion ? AxisMode_XYZDependent : AxisMode_Independent;
    m_style.setOf(m_frame.id(), m_style.entry("ThreeDAxis/AxisMode"), -1, -1, mode);
    setReal(m_style.entry("ThreeDAxis/DepXToYRatio"), 1.0);
    setReal(m_style.entry("ThreeDAxis/DepXToZRatio"), 1.0);
    for (std::size_t i = 0; i < kinds.size(); ++i) {
        const std::string path = std::string("GlobalThreeD/AxisScale/") + kinds[i];
        setReal(m_style.entry(path.c_str()), factors[i]);
    }
}

bool AxisRanges::isXYDependentAllowed() const
{
    if (m_plotType == PlotType_PolarLine) {
        return false;
    }
    if (m_plotType != PlotType_XYLine) {
        return true;
    }
    const LineMaps maps(m_style, m_frame);
    const auto active = maps.active();
    return !isLogarithmic({'X', 1}) && !isLogarithmic({'Y', 1}) &&
           std::all_of(active.begin(), active.end(), [&](long lineMap) {
               const LineMapAssignment shown = maps.assignment(lineMap);
               return shown.xAxis == 1 && shown.yAxis == 1;
           });
}

AxisVariables AxisRanges::variables() const
{
    if (!isOfLinePlot()) {
        return axisVariables(m_style, m_frame);
    }
    const LineMaps maps(m_style, m_frame);
    const auto active = maps.active();
    if (active.empty()) {
        return {};
    }
    const LineMapAssignment shown = maps.assignment(active.front());
    return {shown.xVariable, shown.yVariable, 0};
}

void AxisRanges::set(AxisName axis, Limits limits)
{
    if (!std::isfinite(limits.minimum) || !std::isfinite(limits.maximum)) {
        throw DataError("The data of axis " + axisText(m_plotType, axis) + " are infinite; an axis ends at numbers.");
    }
    const AxisPlace where = place(axis);
    writeAxisRange(real(axis, "RangeMax"), limits.minimum, limits.maximum,
                   [&](const char* end, double value) { setReal(where.entry(m_style, end), value, where.offset); });
    if (m_style.flag(m_frame.id(), where.entry(m_style, "AutoGrid"), where.offset) && limits.maximum > limits.minimum) {
        setReal(where.entry(m_style, "GRSpacing"), niceSpacing(limits.maximum - limits.minimum, 5), where.offset);
    }
}

void AxisRanges::setReal(long entry, double value, long offset)
{
    const SetValueReturnCode_e code = m_style.setOf(m_frame.id(), entry, offset, -1, value);
    if (code != SetValueReturnCode_Ok && code != SetValueReturnCode_Adjusted) {
        throw DataError(m_style.lastError());
    }
}

} // namespace vantrix::kernel
