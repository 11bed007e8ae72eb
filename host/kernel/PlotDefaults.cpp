#include "kernel/PlotDefaults.h"

#include "api/VtxEnumerations.h"
#include "kernel/AxisRangeRules.h"
#include "kernel/AxisRanges.h"
#include "kernel/FieldValues.h"
#include "kernel/Kernel.h"
#include "kernel/LineMaps.h"
#include "kernel/NiceNumbers.h"
#include "kernel/StyleVocabulary.h"

#include <algorithm>
#include <array>
#include <cctype>
#include <cmath>
#include <numbers>
#include <numeric>
#include <optional>

namespace vantrix::kernel {

namespace {

constexpr long mostLineMaps = 50;
constexpr long mostColoredZones = 50;

/* Light colours that shade a surface well and are told from white: azure, orange, green, violet, yellow, red, cyan,
 * rose.
 */
constexpr std::array<long, 8> shadeColors{47, 41, 44, 49, 42, 40, 46, 51};

int highestDimension(const DataSet& data)
{
    int highest = 0;
    for (const auto& zone : data.zones) {
        highest = std::max(highest, zone->topologicalDimension());
    }
    return highest;
}

/* Whether a variable is named like what goes round in a polar plot: "Theta", "azimuth [deg]", "Angle_1". */
bool isAngle(std::string name)
{
    std::transform(name.begin(), name.end(), name.begin(),
                   [](unsigned char c) { return static_cast<char>(std::tolower(c)); });
    return name.starts_with("theta") || name.starts_with("azimuth") || name.starts_with("angle");
}

/* Whether a variable hardly changes beside how far another one goes. */
bool isFlat(const DataSet& data, long variable, long beside)
{
    const auto range = variable ? variableRange(data, variable) : std::nullopt;
    const auto other = beside ? variableRange(data, beside) : std::nullopt;
    if (!range) {
        return true;
    }
    return range->maximum - range->minimum <= (other ? other->maximum - other->minimum : 0.0) * 1e-9;
}

} // namespace

void PlotDefaults::apply(const Frame& frame)
{
    PlotDefaults(Kernel::instance().style(), frame).apply();
}

PlotDefaults::PlotDefaults(StyleStore& style, const Frame& frame)
    : m_style(style)
    , m_frame(frame)
    , m_frameId(frame.id())
    , m_data(frame.dataSet())
{}

void PlotDefaults::apply()
{
    if (!m_data || m_data->zones.empty()) {
        return;
    }
    m_axes = guessAxisVariables(*m_data);
    setAxes();
    setProportions();
    setLineMaps();
    if (!setContours()) {
        setShades();
    }
    setVectors();
    resetView();
    set("PlotType", plotType());
}

long PlotDefaults::plotType() const
{
    if (m_axes.x == 0 || m_axes.y == 0) {
        return PlotType_Sketch;
    }
    const int dimension = highestDimension(*m_data);
    if (dimension < 2) {
        return isAngle(m_data->variables.front().name) ? PlotType_PolarLine : PlotType_XYLine;
    }
    const bool isInPlane = dimension < 3 && isFlat(*m_data, m_axes.z, m_axes.x);
    return m_axes.z == 0 || isInPlane ? PlotType_Cartesian2D : PlotType_Cartesian3D;
}

void PlotDefaults::set(const std::string& path, const StyleData& value, long object)
{
    m_style.setOf(m_frameId, m_style.entry(path.c_str()), object, -1, value);
}

void PlotDefaults::setAxes()
{
    const std::array<std::pair<const char*, long>, 3> axes{
        {{"XDetail", m_axes.x}, {"YDetail", m_axes.y}, {"ZDetail", m_axes.z}}};
    for (const auto& [detail, variable] : axes) {
        for (const std::string plot : {"TwoDAxis/", "ThreeDAxis/"}) {
            const std::string path = plot + detail;
            if (variable != 0 && m_style.entry((path + "/VarNum").c_str()) >= 0) {
                set(path + "/VarNum", variable);
                fitRange(path, {variable}, -1, plot == "TwoDAxis/");
            }
        }
    }
}

/* Axes are in proportion unless one of them would be too short to be read. */
void PlotDefaults::setProportions()
{
    const auto length = [&](long variable) {
        const auto range = variable != 0 ? variableRange(*m_data, variable) : std::nullopt;
        return range ? range->maximum - range->minimum : 0.0;
    };
    const std::array<double, 3> lengths{length(m_axes.x), length(m_axes.y), length(m_axes.z)};
    constexpr std::array inProportion{1.0, 1.0, 1.0};
    const bool isFlatInProportion = AxisRanges::sizeFactors({lengths[0], lengths[1], 0.0}) == inProportion;
    set("TwoDAxis/AxisMode", long{isFlatInProportion ? AxisMode_XYDependent : AxisMode_Independent});
    set("TwoDAxis/DepXToYRatio", 1.0);

    const std::array<double, 3> factors = AxisRanges::sizeFactors(lengths);
    set("ThreeDAxis/AxisMode", long{factors == inProportion ? AxisMode_XYZDependent : AxisMode_Independent});
    set("ThreeDAxis/DepXToYRatio", 1.0);
    set("ThreeDAxis/DepXToZRatio", 1.0);
    set("GlobalThreeD/AxisScale/X", factors[0]);
    set("GlobalThreeD/AxisScale/Y", factors[1]);
    set("GlobalThreeD/AxisScale/Z", factors[2]);
}

void PlotDefaults::fitRange(const std::string& axisDetail, const std::vector<long>& variables, long axis, bool isNice)
{
    std::optional<ValueRange> values;
    for (const long variable : variables) {
        if (const auto range = variableRange(*m_data, variable)) {
            values = values ? ValueRange{std::min(values->minimum, range->minimum),
                                         std::max(values->maximum, range->maximum)}
                            : *range;
        }
    }
    if (!values) {
        return;
    }
    const NiceRange nice = niceRange(values->minimum, values->maximum);
    const bool isExact = !isNice && values->maximum > values->minimum;
    setRange(axisDetail, isExact ? values->minimum : nice.minimum, isExact ? values->maximum : nice.maximum, axis);
    set(axisDetail + "/GRSpacing", nice.spacing, axis);
}

/* An axis that was logarithmic for other data is linear again where it could not show these. */
void PlotDefaults::setRange(const std::string& axisDetail, double minimum, double maximum, long axis)
{
    if (minimum <= 0.0 && m_style.entry((axisDetail + "/CoordScale").c_str()) >= 0) {
        set(axisDetail + "/CoordScale", long{CoordScale_Linear}, axis);
    }
    const double present = m_style.real(m_frameId, m_style.entry((axisDetail + "/RangeMax").c_str()), axis);
    writeAxisRange(present, minimum, maximum,
                   [&](const std::string& end, double value) { set(axisDetail + '/' + end, value, axis); });
}

/*
 * One line map for each zone, or of a single zone for each variable, over the first variable. What is no line itself (a
 * surface, a volume) is shown by its first line map alone until the user asks for more.
 */
void PlotDefaults::setLineMaps()
{
    LineMaps maps(m_style, m_frame);
    maps.removeAll();
    if (m_data->variableCount() < 2) {
        return;
    }
    const bool isOneZone = m_data->zoneCount() == 1;
    const long count = std::min(isOneZone ? m_data->variableCount() - 1 : m_data->zoneCount(), mostLineMaps);
    std::vector<LineMapAssignment> assignments;
    for (long map = 1; map <= count; ++map) {
        assignments.push_back({.zone = isOneZone ? 1 : map, .xVariable = 1, .yVariable = isOneZone ? map + 1 : 2});
    }
    maps.add(assignments);
    const bool isLine = highestDimension(*m_data) < 2;
    for (long map = 1; map <= count; ++map) {
        set("ActiveLineMaps", long{isLine || map == 1}, map);
        set("LineMap/Name", isOneZone ? std::string() : m_data->zone(map)->name(), map);
    }
    set("GlobalLinePlot/Legend/Show", long{isLine && count > 1});
    setLineAxes(isLine && isOneZone ? m_data->variableCount() : 2);
}

/* The second axis of each kind lies across from the first. */
void PlotDefaults::setLineAxes(long lastVariable)
{
    for (const long axis : {2L, 4L}) {
        set("XYLineAxis/XDetail/AxisLine/AxisAlignment", long{AxisAlignment_GridMax}, axis);
        set("XYLineAxis/YDetail/AxisLine/AxisAlignment", long{AxisAlignment_GridMax}, axis);
    }
    fitRange("XYLineAxis/XDetail", {1}, 1, true);
    std::vector<long> shown(static_cast<std::size_t>(lastVariable - 1));
    std::iota(shown.begin(), shown.end(), 2);
    fitRange("XYLineAxis/YDetail", shown, 1, true);
    fitPolar(shown);
}

/* Theta goes round once, in degrees or, where the values look like it, in radians; R begins at the centre. */
void PlotDefaults::fitPolar(const std::vector<long>& radii)
{
    constexpr double turn = 2.0 * std::numbers::pi;
    const auto angles = variableRange(*m_data, 1);
    const double reach = angles ? std::max(std::abs(angles->minimum), std::abs(angles->maximum)) : 0.0;
    const bool isRadians = reach > 0.5 * turn * (1.0 - 1e-6) && reach < turn * (1.0 + 1e-6);
    const double period = isRadians ? turn : 360.0;
    const double start = angles && angles->minimum < 0.0 && reach <= 0.5 * period * (1.0 + 1e-6) ? -0.5 * period : 0.0;
    set("PolarAxis/ThetaMode", long{isRadians ? ThetaMode_Radians : ThetaMode_Degrees});
    set("PolarAxis/ThetaPeriod", period);
    setRange("PolarAxis/ThetaDetail", start, start + period);
    set("PolarAxis/ThetaDetail/AutoGrid", 0L);
    set("PolarAxis/ThetaDetail/GRSpacing", period / 12.0);
    fitRange("PolarAxis/RDetail", radii, -1, true);
    const double from = m_style.real(m_frameId, m_style.entry("PolarAxis/RDetail/RangeMin"));
    const double to = m_style.real(m_frameId, m_style.entry("PolarAxis/RDetail/RangeMax"));
    const double origin = std::min(from, 0.0);
    setRange("PolarAxis/RDetail", origin, to > origin ? to : origin + 1.0);
    set("PolarAxis/RDetail/ValueAtOrigin", origin);
}

/* A viewer at the origin of the data is one that sees the whole plot. */
void PlotDefaults::resetView()
{
    for (const char* path :
         {"ThreeDView/PsiAngle", "ThreeDView/ThetaAngle", "ThreeDView/AlphaAngle", "ThreeDView/ViewWidth",
          "ThreeDView/ViewerPosition/X", "ThreeDView/ViewerPosition/Y", "ThreeDView/ViewerPosition/Z"}) {
        set(path, styleDescription(m_style.entry(path)).doubleDefault);
    }
}

/* Whether there is a variable to be coloured by. */
bool PlotDefaults::setContours()
{
    std::vector<long> variables;
    for (long variable = 1; variable <= m_data->variableCount(); ++variable) {
        if (variable != m_axes.x && variable != m_axes.y && variable != m_axes.z) {
            variables.push_back(variable);
        }
    }
    set("FieldLayers/ShowContour", long{!variables.empty()});
    if (variables.empty()) {
        return false;
    }
    for (long group = 1; group <= contourGroupCount; ++group) {
        const long variable = variables[std::min(static_cast<std::size_t>(group), variables.size()) - 1];
        set("GlobalContour/Var", variable, group);
        if (const auto values = variableRange(*m_data, variable)) {
            const NiceRange levels = niceRange(values->minimum, values->maximum, 10);
            set("GlobalContour/Levels/Min", levels.minimum, group);
            set("GlobalContour/Levels/Max", levels.maximum, group);
            set("GlobalContour/Levels/Count", std::lround((levels.maximum - levels.minimum) / levels.spacing) + 1,
                group);
        }
    }
    return true;
}

void PlotDefaults::setShades()
{
    for (long zone = 1; zone <= std::min(m_data->zoneCount(), mostColoredZones); ++zone) {
        applyToZone(zone);
    }
}

void PlotDefaults::applyToZone(long zone)
{
    set("FieldMap/Shade/Color", shadeColors[static_cast<std::size_t>(zone - 1) % shadeColors.size()], zone);
}

void PlotDefaults::setVectors()
{
    const auto find = [this](std::initializer_list<const char*> names) {
        for (const char* name : names) {
            if (const long number = m_data->variableNumber(name)) {
                return number;
            }
        }
        return 0L;
    };
    const long u = find({"U", "u", "VelocityX", "X Velocity", "Velocity_X", "velocity_x"});
    const long v = find({"V", "v", "VelocityY", "Y Velocity", "Velocity_Y", "velocity_y"});
    const long w = find({"W", "w", "VelocityZ", "Z Velocity", "Velocity_Z", "velocity_z"});
    // Variables of data shown before say nothing about these.
    const bool areFound = u && v;
    set("GlobalStream/UVar", areFound ? u : 0L);
    set("GlobalStream/VVar", areFound ? v : 0L);
    set("GlobalStream/WVar", areFound ? w : 0L);
}

} // namespace vantrix::kernel
