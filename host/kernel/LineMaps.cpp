#include "kernel/LineMaps.h"

#include "kernel/DataError.h"
#include "kernel/DataSet.h"
#include "kernel/Frame.h"

#include <algorithm>
#include <array>
#include <numeric>

namespace vantrix::kernel {

namespace {

constexpr const char* countPath = "FrameSetup/NumLineMaps";
constexpr const char* identityPath = "LineMap/Identity";
constexpr const char* lastIdentityPath = "FrameSetup/LastLineMapIdentity";
constexpr const char* colorPath = "LineMap/Lines/Color";

/* Strong red, azure, green, orange, violet, dark cyan, magenta, dark grey: told apart on white, on paper and by most
 * eyes. */
constexpr std::array<long, 8> lineColors{28, 35, 32, 29, 37, 22, 38, 9};

long colorAfter(long color)
{
    const auto found = std::find(lineColors.begin(), lineColors.end(), color);
    return found == lineColors.end() || found + 1 == lineColors.end() ? lineColors.front() : *(found + 1);
}

void expectBetween(const char* what, long number, long count)
{
    if (number < 1 || number > count) {
        throw DataError(std::string("There is no ") + what + " " + std::to_string(number) + " in the data set; there " +
                        (count == 1 ? "is one." : "are " + std::to_string(count) + "."));
    }
}

} // namespace

LineMaps::LineMaps(StyleStore& style, const Frame& frame)
    : m_style(style)
    , m_frameId(frame.id())
    , m_data(frame.dataSet())
{}

long LineMaps::number(const char* path, long lineMap) const
{
    return m_style.integer(m_frameId, m_style.entry(path), lineMap);
}

void LineMaps::set(const char* path, const StyleData& value, long lineMap)
{
    if (m_style.setOf(m_frameId, m_style.entry(path), lineMap, -1, value) != SetValueReturnCode_Ok) {
        throw DataError(m_style.lastError());
    }
}

long LineMaps::count() const
{
    return number(countPath, -1);
}

long LineMaps::identity(long lineMap) const
{
    return number(identityPath, lineMap);
}

long LineMaps::numberOf(long identity) const
{
    for (long lineMap = 1; lineMap <= count(); ++lineMap) {
        if (this->identity(lineMap) == identity) {
            return lineMap;
        }
    }
    return 0;
}

std::string LineMaps::name(long lineMap) const
{
    std::string own = m_style.text(m_frameId, m_style.entry("LineMap/Name"), lineMap);
    const long variable = assignment(lineMap).yVariable;
    if (own.empty() && m_data && variable >= 1 && variable <= m_data->variableCount()) {
        own = m_data->variables[static_cast<std::size_t>(variable - 1)].name;
    }
    return own;
}

LineMapAssignment LineMaps::assignment(long lineMap) const
{
    return {number("LineMap/Assignment/Zone", lineMap), number("LineMap/Assignment/XAxisVar", lineMap),
            number("LineMap/Assignment/YAxisVar", lineMap), number("LineMap/Assignment/XAxis", lineMap),
            number("LineMap/Assignment/YAxis", lineMap)};
}

std::vector<long> LineMaps::active() const
{
    std::vector<long> shown;
    for (long lineMap = 1; lineMap <= count(); ++lineMap) {
        if (number("ActiveLineMaps", lineMap) != 0) {
            shown.push_back(lineMap);
        }
    }
    return shown;
}

void LineMaps::expectInData(const LineMapAssignment& assignment) const
{
    if (!m_data) {
        throw DataError("The frame has no data set that a line map could show.");
    }
    expectBetween("zone", assignment.zone, m_data->zoneCount());
    expectBetween("variable", assignment.xVariable, m_data->variableCount());
    expectBetween("variable", assignment.yVariable, m_data->variableCount());
}

void LineMaps::add(const std::vector<LineMapAssignment>& assignments)
{
    for (const LineMapAssignment& assignment : assignments) {
        expectInData(assignment);
    }
    long lineMap = count();
    long identity = number(lastIdentityPath, -1);
    long color = lineMap > 0 ? number(colorPath, lineMap) : lineColors.back();
    for (const LineMapAssignment& assignment : assignments) {
        ++lineMap;
        color = colorAfter(color);
        set(identityPath, ++identity, lineMap);
        set("LineMap/Assignment/Zone", assignment.zone, lineMap);
        set("LineMap/Assignment/XAxisVar", assignment.xVariable, lineMap);
        set("LineMap/Assignment/YAxisVar", assignment.yVariable, lineMap);
        set("LineMap/Assignment/XAxis", assignment.xAxis, lineMap);
        set("LineMap/Assignment/YAxis", assignment.yAxis, lineMap);
        set(colorPath, color, lineMap);
        set("LineMap/Symbols/Color", color, lineMap);
        set("LineMap/Symbols/FillColor", color, lineMap);
        set("ActiveLineMaps", 1L, lineMap);
    }
    set(lastIdentityPath, identity);
    set(countPath, lineMap);
}

void LineMaps::remove(const std::set<long>& lineMaps)
{
    if (lineMaps.empty()) {
        throw DataError("No line maps are named. Name at least one to delete.");
    }
    for (const long lineMap : lineMaps) {
        if (!has(lineMap)) {
            throw DataError("There is no line map " + std::to_string(lineMap) + " in this frame, which has " +
                            std::to_string(count()) + ".");
        }
    }
    removeChecked({lineMaps.begin(), lineMaps.end()});
}

void LineMaps::removeAll()
{
    std::vector<long> all(static_cast<std::size_t>(count()));
    std::iota(all.begin(), all.end(), 1);
    removeChecked(all);
}

void LineMaps::removeChecked(const std::vector<long>& lineMaps)
{
    const long left = count() - static_cast<long>(lineMaps.size());
    m_style.removeObjects(m_frameId, "line_map", lineMaps);
    set(countPath, left); // last, so that who is told sees the line maps that are left
}

void LineMaps::zonesRemoved(const std::vector<long>& zones)
{
    std::vector<long> orphans;
    for (long lineMap = 1; lineMap <= count(); ++lineMap) {
        const long zone = number("LineMap/Assignment/Zone", lineMap);
        const auto notBefore = std::lower_bound(zones.begin(), zones.end(), zone);
        if (notBefore != zones.end() && *notBefore == zone) {
            orphans.push_back(lineMap);
        } else if (notBefore != zones.begin()) {
            set("LineMap/Assignment/Zone", zone - (notBefore - zones.begin()), lineMap);
        }
    }
    if (!orphans.empty()) {
        removeChecked(orphans);
    }
}

} // namespace vantrix::kernel
