#include "api/VtxUtilProbe.h"
#include "api/VtxUtilData.h"
#include "api/VtxUtilFrame.h"

#include "kernel/DataError.h"
#include "kernel/ProbeService.h"
#include "kernel/interface/ArgumentList.h"
#include "kernel/interface/Boundary.h"

#include <limits>
#include <optional>

using namespace vantrix::kernel;
using vantrix::kernel::boundary::setIfNotNull;

/* What the interface hands out as VtxProbeInfoHandle. */
struct VtxProbeInfo
{
    ProbeService::Found found;
};

namespace {

ProbeService& probes()
{
    return Kernel::instance().probes();
}

/* Runs a probe function; false stands for no result. */
template<class Function>
bool probing(Function&& function)
{
    return boundary::guarded(false, [&] {
        boundary::expectLocked();
        return function();
    });
}

bool perform(const ProbeRequest& request, VtxProbeFunction function = probes().function())
{
    return probes().perform(request, function) || boundary::fail("The position is outside of the data.");
}

template<class Type>
Type argument(VtxArgListHandle arguments, const char* name)
{
    const Type* value = arguments ? arguments->findAs<Type>(name) : nullptr;
    if (!value) {
        throw DataError(std::string("A probe needs the argument \"") + name + "\".");
    }
    return *value;
}

template<class Type>
Type argumentOr(VtxArgListHandle arguments, const char* name, Type other)
{
    const Type* value = arguments ? arguments->findAs<Type>(name) : nullptr;
    return value ? *value : other;
}

const std::optional<double>& valueOf(const std::vector<std::optional<double>>& values, long variable)
{
    static const std::optional<double> none;
    return variable >= 1 && variable <= static_cast<long>(values.size())
               ? values[static_cast<std::size_t>(variable - 1)]
               : none;
}

const FieldProbeResult* field()
{
    return probes().fieldResult();
}

const LineProbeResult* line()
{
    return probes().lineResult();
}

const ProbedCell* cell()
{
    return field() && field()->cell ? &*field()->cell : nullptr;
}

const ProbedCell::Face* face(long number)
{
    return cell() && number >= 1 && number <= static_cast<long>(cell()->faces.size())
               ? &cell()->faces[static_cast<std::size_t>(number - 1)]
               : nullptr;
}

const LineProbeResult::MapValue* lineValue(long index)
{
    return line() && index >= 1 && index <= static_cast<long>(line()->values.size())
               ? &line()->values[static_cast<std::size_t>(index - 1)]
               : nullptr;
}

/* Point number `corner` of a list, both from 1; 0 where there is none. */
long pointAt(const std::vector<long>& points, long corner)
{
    return corner >= 1 && corner <= static_cast<long>(points.size()) ? points[static_cast<std::size_t>(corner - 1)] + 1
                                                                     : 0;
}

} // namespace

bool VtxUtilProbeInstallCallbackX(VtxArgListHandle arguments)
{
    return probing([&] {
        const long function = argument<long>(arguments, "CallbackFunction");
        if (function != 0 && VtxUtilMouseIsValidMode(MouseMode_Probe)) {
            VtxUtilMouseSetMode(MouseMode_Probe); // which a macro can play, as it cannot a function of this process
        }
        // NOLINTNEXTLINE(performance-no-int-to-ptr): functions come as integers
        probes().install(reinterpret_cast<VtxProbeFunction>(function), argumentOr(arguments, "ClientData", 0L),
                         argumentOr(arguments, "StatusLineText", std::string()));
        return true;
    });
}

bool VtxUtilProbeIsCallbackInstalled(void)
{
    return probes().function() != nullptr;
}

VtxProbeInfoHandle VtxUtilProbeInfoGet(void)
{
    return boundary::guarded<VtxProbeInfoHandle>(nullptr, [] {
        const ProbeService::Found& found = probes().found();
        return found.request ? new VtxProbeInfo{found} : nullptr;
    });
}

void VtxUtilProbeInfoDealloc(VtxProbeInfoHandle* info)
{
    if (info) {
        delete *info;
        *info = nullptr;
    }
}

bool VtxUtilProbePerform(VtxProbeInfoHandle info, VtxProbeFunction function)
{
    return probing(
        [&] { return info ? perform(*info->found.request, function) : boundary::fail("Nothing was probed yet."); });
}

void VtxUtilProbeInfoRestore(VtxProbeInfoHandle info)
{
    boundary::guarded(false, [&] {
        probes().restore(info ? info->found : ProbeService::Found());
        return true;
    });
}

PlotType_e VtxUtilProbeGetPlotType(void)
{
    return probes().plotType();
}

bool VtxUtilProbeAtFieldPositionX(VtxArgListHandle arguments)
{
    return probing([&] {
        FieldPositionRequest request;
        request.position = {argument<double>(arguments, "X"), argument<double>(arguments, "Y"),
                            argumentOr(arguments, "Z", 0.0)};
        request.isInVolume = argumentOr(arguments, "SearchVolume", 0L) != 0;
        request.isNearestPoint = argumentOr(arguments, "NearestPoint", 0L) != 0;
        const bool isFound = perform(request);
        setIfNotNull(argumentOr<long*>(arguments, "PROBEATFIELDPOSITIONRESULT", nullptr), isFound ? 1 : 0);
        return isFound;
    });
}

bool VtxUtilProbeAtFieldIndexX(VtxArgListHandle arguments)
{
    return probing([&] {
        return perform(FieldIndexRequest{argument<long>(arguments, "I"), argumentOr(arguments, "J", 1L),
                                         argumentOr(arguments, "K", 1L), argument<long>(arguments, "Zone")});
    });
}

bool VtxUtilProbeAtLinePositionX(VtxArgListHandle arguments)
{
    return probing([&] {
        const bool isFound = perform(LinePositionRequest{static_cast<char>(argument<long>(arguments, "Axis")),
                                                         static_cast<int>(argumentOr(arguments, "AxisNum", 1L)),
                                                         argument<double>(arguments, "Position")});
        setIfNotNull(argumentOr<long*>(arguments, "PROBEATLINEPOSITIONRESULT", nullptr), isFound ? 1 : 0);
        return isFound;
    });
}

bool VtxUtilProbeAtLineIndexX(VtxArgListHandle arguments)
{
    return probing([&] {
        return perform(LineIndexRequest{argument<long>(arguments, "I"), argumentOr(arguments, "J", 1L),
                                        argumentOr(arguments, "K", 1L), argument<long>(arguments, "LineMap")});
    });
}

ProbeSource_e VtxUtilProbeFieldGetCZType(void)
{
    return ProbeSource_Zone;
}

long VtxUtilProbeFieldGetZone(void)
{
    return field() ? field()->zone : 0;
}

bool VtxUtilProbeFieldGetName(char** name)
{
    return boundary::guarded(false, [&] {
        if (!field()) {
            return boundary::fail("No field plot was probed.");
        }
        *name = boundary::copyString(field()->name);
        return *name != nullptr;
    });
}

long VtxUtilProbeFieldGetCell(void)
{
    return cell() ? cell()->number : 0;
}

IJKPlanes_e VtxUtilProbeFieldGetPlane(void)
{
    return cell() ? cell()->index.plane : IJKPlanes_Volume;
}

long VtxUtilProbeFieldGetPoint(void)
{
    return field() ? field()->point : 0;
}

bool VtxUtilProbeFieldGetPosition(double* x, double* y, double* z)
{
    if (!field()) {
        return boundary::fail("No field plot was probed.");
    }
    setIfNotNull(x, field()->position[0]);
    setIfNotNull(y, field()->position[1]);
    setIfNotNull(z, field()->position[2]);
    return true;
}

bool VtxUtilProbeFieldIsVarValid(long variable)
{
    return field() && valueOf(field()->values, variable).has_value();
}

double VtxUtilProbeFieldGetValue(long variable)
{
    return field() ? valueOf(field()->values, variable).value_or(0.0) : 0.0;
}

bool VtxUtilProbeFieldIsCellCenterValid(long variable)
{
    return field() && valueOf(field()->cellCenterValues, variable).has_value();
}

double VtxUtilProbeFieldGetCellCenterValue(long variable)
{
    return field() ? valueOf(field()->cellCenterValues, variable).value_or(0.0) : 0.0;
}

VtxFieldDataHandle VtxUtilProbeFieldGetReadableNativeRef(long variable)
{
    if (!VtxUtilProbeFieldIsVarValid(variable)) {
        return nullptr;
    }
    return const_cast<VtxFieldDataHandle>(&field()->fields[static_cast<std::size_t>(variable - 1)]);
}

ValueLocation_e VtxUtilDataValueGetLocationByRef(VtxFieldDataHandle values)
{
    return values ? values->location : ValueLocation_Nodal;
}

long VtxUtilProbeFieldGetCellNodeCount(void)
{
    return cell() ? static_cast<long>(cell()->corners.size()) : 0;
}

long VtxUtilProbeFieldGetCellNode(long corner)
{
    return cell() ? pointAt(cell()->corners, corner) : 0;
}

long VtxUtilProbeFieldGetFaceCount(void)
{
    return cell() ? static_cast<long>(cell()->faces.size()) : 0;
}

long VtxUtilProbeFieldGetFaceNodeCount(long number)
{
    return face(number) ? static_cast<long>(face(number)->points.size()) : 0;
}

long VtxUtilProbeFieldGetFaceNode(long number, long corner)
{
    return face(number) ? pointAt(face(number)->points, corner) : 0;
}

bool VtxUtilProbeFieldGetFaceNeighbor(long number, long* neighborCell, long* zone)
{
    if (!face(number)) {
        return boundary::fail("The probed cell has no face " + std::to_string(number) + ".");
    }
    setIfNotNull(neighborCell, face(number)->neighbor);
    const long otherZone = face(number)->neighborZone;
    setIfNotNull(zone, face(number)->neighbor == 0 ? 0 : otherZone != 0 ? otherZone : field()->zone);
    return true;
}

long VtxUtilProbeFieldGetFace(void)
{
    return cell() ? cell()->face : 0;
}

char VtxUtilProbeLineGetAxis(void)
{
    return line() ? line()->axis : '\0';
}

int VtxUtilProbeLineGetAxisNumber(void)
{
    return line() ? line()->axisNumber : 0;
}

double VtxUtilProbeLineGetPosition(void)
{
    return line() ? line()->position : 0.0;
}

long VtxUtilProbeLineGetMapCount(void)
{
    return line() ? static_cast<long>(line()->values.size()) : 0;
}

long VtxUtilProbeLineGetMap(long index)
{
    return lineValue(index) ? lineValue(index)->lineMap : 0;
}

bool VtxUtilProbeLineGetValue(long index, double* value)
{
    const LineProbeResult::MapValue* found = lineValue(index);
    if (!found || !found->value) {
        return boundary::fail("The line has no value at the probed position.");
    }
    *value = *found->value;
    return true;
}

long VtxUtilProbeLineGetPickedMap(void)
{
    return line() ? line()->pickedMap : 0;
}

long VtxUtilProbeLineGetPoint(void)
{
    return line() ? line()->point : 0;
}

bool VtxUtilProbeLineGetPickedValues(double* x, double* y)
{
    if (!line() || line()->pickedMap == 0) {
        return boundary::fail("No point of a line map was probed.");
    }
    setIfNotNull(x, line()->pickedX);
    setIfNotNull(y, line()->pickedY);
    return true;
}

long VtxUtilZoneGetFaceCount(long zone)
{
    return boundary::guarded(0L, [&] {
        FieldProbe& probe = probes().fieldProbe();
        const Zone* found = probe.dataSet().zone(zone);
        return found && !found->isOrdered() ? probe.faceCount(zone) : 0L;
    });
}

bool VtxUtilProbeAtPosition(double x, double y, double z, long* iCell, long* jCell, long* kCell, IJKPlanes_e* plane,
                            long* zone, bool startWithCell, double* values, VtxSetHandle zones, bool searchVolume,
                            bool zoneOnly, bool nearestPoint)
{
    return boundary::guarded(false, [&] {
        FieldProbe& probe = probes().fieldProbe();
        FieldPlace start;
        if (startWithCell && zone && iCell && jCell && kCell && plane && probe.dataSet().zone(*zone)) {
            const Zone& startZone = *probe.dataSet().zone(*zone);
            CellIndex index;
            index.storage = *iCell - 1;
            if (startZone.isOrdered()) {
                index = orderedCellIndex(startZone, {*iCell - 1, *jCell - 1, *kCell - 1}, *plane);
            }
            start = probe.placeOf(*zone, index, searchVolume);
        }
        FieldPlace found;
        if (!probe.find({{x, y, z}, searchVolume, nearestPoint}, found, zones ? &zones->members : nullptr,
                        start.mesh ? &start : nullptr)) {
            return boundary::fail("The position is outside of the data.");
        }
        const Zone& foundZone = *probe.dataSet().zone(found.zone);
        const CellIndex index = probe.cellIndex(found);
        const std::array<long, 3> first =
            foundZone.isOrdered() ? index.first : std::array<long, 3>{index.storage, 0, 0};
        setIfNotNull(iCell, first[0] + 1);
        setIfNotNull(jCell, first[1] + 1);
        setIfNotNull(kCell, first[2] + 1);
        setIfNotNull(plane, index.plane);
        setIfNotNull(zone, found.zone);
        if (values && !zoneOnly) {
            for (long variable = 1; variable <= probe.dataSet().variableCount(); ++variable) {
                values[variable - 1] = probe.value(found, variable).value_or(std::numeric_limits<double>::quiet_NaN());
            }
        }
        return true;
    });
}
