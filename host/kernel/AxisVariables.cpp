#include "kernel/AxisVariables.h"

#include "api/VtxEnumerations.h"
#include "kernel/StyleStore.h"

#include <algorithm>
#include <array>
#include <cctype>

namespace vantrix::kernel {

namespace {

/* "X(M)", "x [mm]" and "Coordinates_X" all become "x". */
std::string coordinateName(const std::string& name)
{
    std::string plain;
    for (const char c : name.substr(0, name.find_first_of("([,/"))) {
        if (std::isalnum(static_cast<unsigned char>(c))) {
            plain += static_cast<char>(std::tolower(static_cast<unsigned char>(c)));
        }
    }
    for (const char* prefix : {"coordinates", "coordinate", "coords", "coord", "points", "position"}) {
        if (plain.starts_with(prefix)) {
            return plain.substr(std::string(prefix).size());
        }
    }
    for (const char* suffix : {"coordinate", "coord"}) {
        if (plain.size() > 1 && plain.substr(1) == suffix) {
            return plain.substr(0, 1);
        }
    }
    return plain;
}

long byName(const DataSet& dataSet, const std::string& axis)
{
    const auto found = std::find_if(dataSet.variables.begin(), dataSet.variables.end(),
                                    [&](const Variable& variable) { return coordinateName(variable.name) == axis; });
    return found != dataSet.variables.end() ? found - dataSet.variables.begin() + 1 : 0;
}

} // namespace

AxisVariables axisVariables(const StyleStore& style, const Frame& frame)
{
    const DataSet* data = frame.dataSet().get();
    if (!data) {
        return {};
    }
    const auto read = [&](const char* path, long object) {
        const long variable = style.integer(frame.id(), style.entry(path), object);
        return variable <= data->variableCount() ? variable : 0;
    };
    switch (style.integer(frame.id(), style.entry("PlotType"))) {
    case PlotType_Cartesian3D:
        return {read("ThreeDAxis/XDetail/VarNum", -1), read("ThreeDAxis/YDetail/VarNum", -1),
                read("ThreeDAxis/ZDetail/VarNum", -1)};
    case PlotType_Cartesian2D:
        return {read("TwoDAxis/XDetail/VarNum", -1), read("TwoDAxis/YDetail/VarNum", -1), 0};
    case PlotType_XYLine:
    case PlotType_PolarLine:
        return {read("LineMap/Assignment/XAxisVar", 1), read("LineMap/Assignment/YAxisVar", 1), 0};
    default:
        return {};
    }
}

AxisVariables guessAxisVariables(const DataSet& dataSet)
{
    std::array<long, 3> found{byName(dataSet, "x"), byName(dataSet, "y"), byName(dataSet, "z")};
    if (found[0] == 0 || found[1] == 0) { // not named like coordinates: the first ones, unless named for another axis
        long next = 1;
        for (long& variable : found) {
            while (variable == 0 && next <= dataSet.variableCount()) {
                if (std::find(found.begin(), found.end(), next) == found.end()) {
                    variable = next;
                }
                ++next;
            }
        }
    }
    return {found[0], found[1], found[2]};
}

} // namespace vantrix::kernel
