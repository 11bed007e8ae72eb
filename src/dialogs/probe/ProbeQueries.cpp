#include "dialogs/probe/ProbeQueries.h"

#include "api/VtxUtil.h"
#include "sdk/AppLock.h"
#include "toolbox/HostString.h"
#include "toolbox/Set.h"

#include <QCoreApplication>
#include <QString>

#include <array>
#include <cstdio>

namespace vantrix::sdk::ui::dialogs {

namespace {

using toolbox::takeHostString;

QString probeText(char const* text)
{
    return QCoreApplication::translate("ProbeWidget", text);
}

ZoneType_e probedZoneType()
{
    return VtxUtilZoneGetType(VtxUtilProbeFieldGetZone());
}

IJK_s indicesOf(long point, long iMax, long jMax)
{
    return {(point - 1) % iMax + 1, (point - 1) / iMax % jMax + 1, (point - 1) / iMax / jMax + 1};
}

FaceInfo_s faceIn(IJKPlanes_e plane, IJK_s const& at)
{
    auto const text = [](QString const& translated) { return translated.toStdString(); };
    switch (plane) {
    case IJKPlanes_I:
        return {"I-Plane", text(probeText("I = %1").arg(at.i)), text(probeText("J = %1\nK = %2").arg(at.j).arg(at.k))};
    case IJKPlanes_J:
        return {"J-Plane", text(probeText("J = %1").arg(at.j)), text(probeText("I = %1\nK = %2").arg(at.i).arg(at.k))};
    case IJKPlanes_K:
        return {"K-Plane", text(probeText("K = %1").arg(at.k)), text(probeText("I = %1\nJ = %2").arg(at.i).arg(at.j))};
    default:
        return {"Unknown", {}, {}};
    }
}

/// Where the values that a probe took them from belong.
ValueLocation_e probedLocation(long variable)
{
    if (VtxUtilProbeFieldGetCZType() < ProbeSource_Slice) {
        return VtxUtilDataValueGetLocation(VtxUtilProbeFieldGetZone(), variable);
    }
    return VtxUtilDataValueGetLocationByRef(VtxUtilProbeFieldGetReadableNativeRef(variable));
}

/// @param exactLocation  where values belong that are shown as they are stored
template<typename IsValid, typename Value>
std::vector<VarValue_s> valuesOfEnabledVariables(IsValid isValid, Value value, ValueLocation_e exactLocation)
{
    AppLock const lock(false);
    std::vector<VarValue_s> values;
    toolbox::Set const enabled(VtxUtilVarGetEnabled());
    for (long variable = enabled.getNextMember(0); variable != 0; variable = enabled.getNextMember(variable)) {
        VarValue_s row{static_cast<int>(variable), isValid(variable), 0.0, false};
        if (row.isValid) {
            row.value = value(variable);
            row.isInterpolated = probedLocation(variable) != exactLocation;
        }
        values.push_back(row);
    }
    return values;
}

/// The axis whose number format rules a variable's values; 0 for none.
char axisOf(long variable)
{
    std::array<long, 3> assigned{0, 0, 0};
    VtxUtilAxisGetVarAssignments(&assigned[0], &assigned[1], &assigned[2]);
    char const* const axes = VtxUtilFrameGetPlotType() == PlotType_PolarLine ? "TRZ" : "XYZ";
    for (std::size_t i = 0; i < assigned.size(); ++i) {
        if (variable == assigned[i]) {
            return axes[i];
        }
    }
    return 0;
}

} // namespace

std::string GetProbedItemName()
{
    AppLock const lock(false);
    char* name = nullptr;
    VtxUtilProbeFieldGetName(&name);
    std::string text = takeHostString(name);
    if (VtxUtilProbeFieldGetCZType() != ProbeSource_Zone) {
        return text;
    }
    return "Zone " + std::to_string(VtxUtilProbeFieldGetZone()) + ": " + text;
}

std::string GetProbedZoneTypeString()
{
    AppLock const lock(false);
    if (VtxUtilProbeFieldGetZone() == 0) {
        return {};
    }
    switch (probedZoneType()) {
    case ZoneType_Ordered:
        return "Ordered";
    case ZoneType_FETriangle:
        return "FE-Triangle";
    case ZoneType_FEQuad:
        return "FE-Quad";
    case ZoneType_FETetra:
        return "FE-Tetra";
    case ZoneType_FEBrick:
        return "FE-Brick";
    case ZoneType_FELineSeg:
        return "FE-LineSet";
    case ZoneType_FEPolygon:
        return "FE-Polygon";
    case ZoneType_FEPolyhedron:
        return "FE-Polyhedron";
    }
    return {};
}

long GetElementFaceCount(int zone, long element)
{
    AppLock const lock(false);
    if (zone == VtxUtilProbeFieldGetZone() && element == VtxUtilProbeFieldGetCell()) {
        return VtxUtilProbeFieldGetFaceCount();
    }
    switch (VtxUtilZoneGetType(zone)) {
    case ZoneType_FELineSeg:
        return 2;
    case ZoneType_FETriangle:
        return 3;
    case ZoneType_FEQuad:
    case ZoneType_FETetra:
        return 4;
    case ZoneType_FEBrick:
        return 6;
    default:
        return 0;
    }
}

bool GetProbedFECellInfo(bool isNearestPoint, long& element, long& node)
{
    AppLock const lock(false);
    if (VtxUtilProbeFieldGetZone() == 0 || probedZoneType() == ZoneType_Ordered) {
        return false;
    }
    element = VtxUtilProbeFieldGetCell();
    node = isNearestPoint || element == 0 ? VtxUtilProbeFieldGetPoint() : 0;
    return true;
}

bool GetProbedOrderedCellInfo(bool isNearestPoint, IJKPlanes_e& plane, IJK_s& indices, bool& hasCell, FaceInfo_s& face,
                              bool& hasFace)
{
    AppLock const lock(false);
    long const zone = VtxUtilProbeFieldGetZone();
    if (zone == 0 || probedZoneType() != ZoneType_Ordered) {
        return false;
    }
    long iMax = 1;
    long jMax = 1;
    VtxUtilZoneGetIJK(zone, &iMax, &jMax, nullptr);
    long const cell = VtxUtilProbeFieldGetCell();
    long const point = VtxUtilProbeFieldGetPoint();
    hasCell = cell != 0 && !(isNearestPoint && point != 0);
    plane = VtxUtilProbeFieldGetPlane();
    indices = indicesOf(hasCell ? cell : point, iMax, jMax);
    hasFace = hasCell && plane != IJKPlanes_Volume;
    face = faceIn(plane, indices);
    return true;
}

bool PlotHasActiveLineMaps()
{
    AppLock const lock(false);
    return !toolbox::Set(VtxUtilLineMapGetActive()).isEmpty();
}

std::vector<PolyFaceInfo_s> GetProbedPolytopeFaceNodes()
{
    AppLock const lock(false);
    std::vector<PolyFaceInfo_s> faces;
    for (long face = 1; face <= VtxUtilProbeFieldGetFaceCount(); ++face) {
        PolyFaceInfo_s info{face, {}};
        for (long corner = 1; corner <= VtxUtilProbeFieldGetFaceNodeCount(face); ++corner) {
            info.nodes.push_back(VtxUtilProbeFieldGetFaceNode(face, corner));
        }
        faces.push_back(std::move(info));
    }
    return faces;
}

std::vector<long> GetProbedFECellNodes()
{
    AppLock const lock(false);
    std::vector<long> nodes;
    for (long corner = 1; corner <= VtxUtilProbeFieldGetCellNodeCount(); ++corner) {
        nodes.push_back(VtxUtilProbeFieldGetCellNode(corner));
    }
    return nodes;
}

std::vector<FaceNeighbor_s> GetProbedItemFaceNeighbors()
{
    AppLock const lock(false);
    std::vector<FaceNeighbor_s> neighbors;
    for (long face = 1; face <= VtxUtilProbeFieldGetFaceCount(); ++face) {
        FaceNeighbor_s neighbor{face, 0, 0};
        VtxUtilProbeFieldGetFaceNeighbor(face, &neighbor.cell, &neighbor.zone);
        neighbors.push_back(neighbor);
    }
    return neighbors;
}

std::vector<LineMapValue_s> GetLineProbeDependentValues()
{
    AppLock const lock(false);
    std::vector<LineMapValue_s> values;
    for (long index = 1; index <= VtxUtilProbeLineGetMapCount(); ++index) {
        long const map = VtxUtilProbeLineGetMap(index);
        LineMapValue_s row{static_cast<int>(map), false, 0.0};
        row.isValid = VtxUtilProbeLineGetValue(index, &row.value);
        values.push_back(row);
    }
    return values;
}

std::vector<VarValue_s> GetFieldVarValuesForLastProbe()
{
    return valuesOfEnabledVariables([](long variable) { return VtxUtilProbeFieldIsVarValid(variable); },
                                    [](long variable) { return VtxUtilProbeFieldGetValue(variable); },
                                    ValueLocation_Nodal);
}

std::vector<VarValue_s> GetFieldCellCenterValuesForLastProbe()
{
    return valuesOfEnabledVariables([](long variable) { return VtxUtilProbeFieldIsCellCenterValid(variable); },
                                    [](long variable) { return VtxUtilProbeFieldGetCellCenterValue(variable); },
                                    ValueLocation_CellCentered);
}

std::string FormatProbedFieldVarValue(int variable, double value)
{
    AppLock const lock(false);
    char const axis = axisOf(variable);
    if (axis != 0 && VtxUtilAxisLabelGetNumberFormat(axis, 1) == NumberFormat_TimeDate) {
        char* format = nullptr;
        char* text = nullptr;
        bool const isDate =
            VtxUtilAxisLabelGetTimeDateFormat(axis, 1, &format) && VtxUtilStringFormatTimeDate(value, format, &text);
        VtxUtilStringDealloc(&format);
        std::string date = takeHostString(text);
        if (isDate) {
            return date;
        }
    }
    std::array<char, 40> text{};
    std::snprintf(text.data(), text.size(), "%.18g", value);
    return text.data();
}

} // namespace vantrix::sdk::ui::dialogs
