#include "api/VtxUtilData.h"

#include "kernel/AxisVariables.h"
#include "kernel/Document.h"
#include "kernel/FieldValues.h"
#include "kernel/StyleStore.h"
#include "kernel/ZoneActions.h"
#include "kernel/interface/ArgumentList.h"
#include "kernel/interface/Boundary.h"

#include <cctype>

using namespace vantrix::kernel;
using vantrix::kernel::boundary::setIfNotNull;

namespace {

std::shared_ptr<const DataSet> dataSet()
{
    return Kernel::instance().document().activeDataSet();
}

const Zone* zoneAt(long number)
{
    const auto data = dataSet();
    return data ? data->zone(number) : nullptr; /* kept by the frame */
}

bool noDataSet()
{
    return boundary::fail("The active frame has no data set.");
}

bool noSuch(const char* what, long number, long count)
{
    return boundary::fail(std::string("There is no ") + what + " " + std::to_string(number) +
                          "; they are numbered from 1 to " + std::to_string(count) + ".");
}

template<class IsMember>
VtxSetHandle newSet(long count, const IsMember& isMember)
{
    auto set = std::make_unique<VtxSet>();
    for (long number = 1; number <= count; ++number) {
        if (isMember(static_cast<std::size_t>(number - 1))) {
            set->members.insert(set->members.end(), number);
        }
    }
    return set.release();
}

} // namespace

bool VtxUtilDataSetIsAvailable(void)
{
    const auto data = dataSet();
    return data && data->zoneCount() > 0;
}

bool VtxUtilDataSetGetInfo(char** title, long* zoneCount, long* variableCount)
{
    return boundary::guarded(false, [&] {
        const auto data = dataSet();
        if (!data) {
            return noDataSet();
        }
        if (title) {
            *title = boundary::copyString(data->title);
        }
        setIfNotNull(zoneCount, data->zoneCount());
        setIfNotNull(variableCount, data->variableCount());
        return true;
    });
}

long VtxUtilDataSetGetUniqueID(void)
{
    const auto data = dataSet();
    return data ? data->id() : 0;
}

long VtxUtilDataSetGetNumVars(void)
{
    const auto data = dataSet();
    return data ? data->variableCount() : 0;
}

long VtxUtilDataSetGetNumZones(void)
{
    const auto data = dataSet();
    return data ? data->zoneCount() : 0;
}

bool VtxUtilDataSetDeleteZone(VtxSetHandle zones)
{
    const auto remove = [&] {
        boundary::nameStep("Delete Zone");
        ZoneActions(Kernel::instance()).remove(zones ? zones->members : std::set<long>());
        return true;
    };
    return boundary::change<&VtxUtilDataSetDeleteZone>(false, remove, zones);
}

bool VtxUtilZoneGetName(long zone, char** name)
{
    return boundary::guarded(false, [&] {
        const Zone* found = zoneAt(zone);
        if (!found) {
            return noSuch("zone", zone, VtxUtilDataSetGetNumZones());
        }
        *name = boundary::copyString(found->name());
        return *name != nullptr;
    });
}

bool VtxUtilVarGetName(long variable, char** name)
{
    return boundary::guarded(false, [&] {
        const auto data = dataSet();
        if (!data || variable < 1 || variable > data->variableCount()) {
            return noSuch("variable", variable, VtxUtilDataSetGetNumVars());
        }
        *name = boundary::copyString(data->variables[static_cast<std::size_t>(variable - 1)].name);
        return *name != nullptr;
    });
}

VtxSetHandle VtxUtilZoneGetEnabled(void)
{
    return boundary::guarded(VtxSetHandle(nullptr), [&] {
        const auto data = dataSet();
        return data ? newSet(data->zoneCount(), [&](std::size_t i) { return data->zoneEnabled[i]; }) : nullptr;
    });
}

VtxSetHandle VtxUtilVarGetEnabled(void)
{
    return boundary::guarded(VtxSetHandle(nullptr), [&] {
        const auto data = dataSet();
        return data ? newSet(data->variableCount(), [&](std::size_t i) { return data->variables[i].enabled; })
                    : nullptr;
    });
}

void VtxUtilZoneGetIJK(long zone, long* iMax, long* jMax, long* kMax)
{
    const Zone* found = zoneAt(zone);
    const std::array<long, 3> dimensions = found ? found->dimensions() : std::array<long, 3>{0, 0, 0};
    setIfNotNull(iMax, dimensions[0]);
    setIfNotNull(jMax, dimensions[1]);
    setIfNotNull(kMax, dimensions[2]);
}

bool VtxUtilZoneIsOrdered(long zone)
{
    const Zone* found = zoneAt(zone);
    return found && found->isOrdered();
}

ZoneType_e VtxUtilZoneGetType(long zone)
{
    const Zone* found = zoneAt(zone);
    return found ? found->type() : ZoneType_Ordered;
}

ValueLocation_e VtxUtilDataValueGetLocation(long zone, long variable)
{
    const auto data = dataSet();
    const FieldArray* field = data ? data->field(zone, variable) : nullptr;
    return field && field->isAvailable() ? field->location : ValueLocation_Nodal;
}

bool VtxUtilDataValueGetByZoneVar(long zone, long variable, long position, double* value)
{
    return boundary::guarded(false, [&] {
        const auto data = dataSet();
        if (!data) {
            return noDataSet();
        }
        const FieldArray* field = data->field(zone, variable);
        const auto values = field ? field->load() : nullptr;
        if (!values) {
            return boundary::fail("Zone " + std::to_string(zone) + " has no variable " + std::to_string(variable) +
                                  ".");
        }
        if (position < 1 || position > values->GetNumberOfTuples()) {
            return noSuch("value", position, static_cast<long>(values->GetNumberOfTuples()));
        }
        *value = values->GetComponent(position - 1, 0);
        return true;
    });
}

bool VtxUtilDataValueIsLoaded(long zone, long variable)
{
    const auto data = dataSet();
    const FieldArray* field = data ? data->field(zone, variable) : nullptr;
    return !field || !field->isAvailable() || field->isLoaded();
}

bool VtxUtilDataValueLoad(long zone, VtxSetHandle variables)
{
    const auto load = [&] {
        ZoneActions(Kernel::instance()).load(zone, variables ? variables->members : std::set<long>());
        return true;
    };
    return boundary::change<&VtxUtilDataValueLoad>(false, load, zone, variables);
}

bool VtxUtilVarGetMinMax(long variable, double* minimum, double* maximum)
{
    return boundary::guarded(false, [&] {
        const auto data = dataSet();
        if (!data || variable < 1 || variable > data->variableCount()) {
            return noSuch("variable", variable, VtxUtilDataSetGetNumVars());
        }
        const auto range = variableRange(*data, variable);
        if (!range) {
            return boundary::fail("Variable " + std::to_string(variable) + " has no value in any enabled zone.");
        }
        if (minimum) {
            *minimum = range->minimum;
        }
        if (maximum) {
            *maximum = range->maximum;
        }
        return true;
    });
}

long VtxUtilVarGetNumByAssignment(char axis)
{
    return boundary::guarded(0L, [&] {
        const Frame* frame = Kernel::instance().document().activeFrame();
        if (!frame) {
            return 0L;
        }
        const AxisVariables axes = axisVariables(Kernel::instance().style(), *frame);
        switch (std::toupper(static_cast<unsigned char>(axis))) {
        case 'X':
            return axes.x;
        case 'Y':
            return axes.y;
        case 'Z':
            return axes.z;
        default:
            return 0L;
        }
    });
}

bool VtxUtilCreateCircularZone(long iMax, long jMax, long kMax, double xOrigin, double yOrigin, double radius,
                               double zMin, double zMax, FieldDataType_e dataType)
{
    const auto create = [&] {
        boundary::nameStep("Create Circular Zone");
        ZoneActions(Kernel::instance())
            .create(CircularZone{iMax, jMax, kMax, xOrigin, yOrigin, radius, zMin, zMax, dataType});
        return true;
    };
    return boundary::change<&VtxUtilCreateCircularZone>(false, create, iMax, jMax, kMax, xOrigin, yOrigin, radius, zMin,
                                                        zMax, dataType);
}

bool VtxUtilCreateRectangularZone(long iMax, long jMax, long kMax, double xMin, double yMin, double zMin, double xMax,
                                  double yMax, double zMax, FieldDataType_e dataType)
{
    const auto create = [&] {
        boundary::nameStep("Create Rectangular Zone");
        ZoneActions(Kernel::instance())
            .create(RectangularZone{iMax, jMax, kMax, xMin, yMin, zMin, xMax, yMax, zMax, dataType});
        return true;
    };
    return boundary::change<&VtxUtilCreateRectangularZone>(false, create, iMax, jMax, kMax, xMin, yMin, zMin, xMax,
                                                           yMax, zMax, dataType);
}
