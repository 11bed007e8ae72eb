#include "kernel/PlotDefaults.h"

#include "api/VtxEnumerations.h"
#include "kernel/FieldValues.h"
#include "kernel/Kernel.h"
#include "kernel/NiceNumbers.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace vantrix::kernel {

namespace {

constexpr long contourGroupCount = 8;
constexpr long mostLineMaps = 50;
constexpr std::array<long, 6> lineColors{1, 2, 3, 6, 4, 0}; /* red, green, blue, magenta, cyan, black */

int highestDimension(const DataSet& data)
{
    int highest = 0;
    for (const auto& zone : data.zones) {
        highest = std::max(highest, zone->topologicalDimension());
    }
    return highest;
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
    setLineMaps();
    setContours();
    setVectors();
    set("PlotType", plotType());
}

long PlotDefaults::plotType() const
{
    if (m_axes.x == 0 || m_axes.y == 0) {
        return PlotType_Sketch;
    }
    const int dimension = highestDimension(*m_data);
    if (dimension < 2) {
        return PlotType_XYLine;
    }
    const bool isInPlane = dimension < 3 && isFlat(*m_data, m_axes.z, m_axes.x);
    return m_axes.z == 0 || isInPlane ? PlotType_Cartesian2D : PlotType_Cartesian3D;
}

void PlotDefaults::set(const std::string& path, StyleData value, long object)
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
                fitRange(path, variable, -1, plot == "TwoDAxis/");
            }
        }
    }
}

void PlotDefaults::fitRange(const std::string& axisDetail, long variable, long axis, bool isNice)
{
    const auto values = variable ? variableRange(*m_data, variable) : std::nullopt;
    if (!values) {
        return;
    }
    const NiceRange nice = niceRange(values->minimum, values->maximum);
    const bool isExact = !isNice && values->maximum > values->minimum;
    set(axisDetail + "/RangeMin", isExact ? values->minimum : nice.minimum, axis);
    set(axisDetail + "/RangeMax", isExact ? values->maximum : nice.maximum, axis);
    set(axisDetail + "/GRSpacing", nice.spacing, axis);
}

/* One line map for each zone, or of a single zone for each variable, over the first variable. */
void PlotDefaults::setLineMaps()
{
    const bool isOneZone = m_data->zoneCount() == 1;
    const long count = std::min(isOneZone ? m_data->variableCount() - 1 : m_data->zoneCount(), mostLineMaps);
    if (m_data->variableCount() < 2) {
        return;
    }
    for (long map = 1; map <= count; ++map) {
        set("LineMap/Assignment/Zone", isOneZone ? 1L : map, map);
        set("LineMap/Assignment/XAxisVar", 1L, map);
        set("LineMap/Assignment/YAxisVar", isOneZone ? map + 1 : 2L, map);
        const long color = lineColors[static_cast<std::size_t>(map - 1) % lineColors.size()];
        set("LineMap/Lines/Color", color, map);
        set("LineMap/Symbols/Color", color, map);
    }
    set("FrameSetup/NumLineMaps", count);
    fitRange("XYLineAxis/XDetail", 1, 1, true);
    fitRange("XYLineAxis/YDetail", 2, 1, true);
}

void PlotDefaults::setContours()
{
    std::vector<long> variables;
    for (long variable = 1; variable <= m_data->variableCount(); ++variable) {
        if (variable != m_axes.x && variable != m_axes.y && variable != m_axes.z) {
            variables.push_back(variable);
        }
    }
    if (variables.empty()) {
        return;
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
    set("FieldLayers/ShowContour", 1L);
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
    if (u && v) {
        set("GlobalStream/UVar", u);
        set("GlobalStream/VVar", v);
        set("GlobalStream/WVar", w);
    }
}

} // namespace vantrix::kernel
