#include "api/VtxUtilGeometry.h"

#include "kernel/GeometryValues.h"
#include "kernel/UndoStack.h"
#include "kernel/interface/FrameObjectInterface.h"

using namespace vantrix::kernel;
using vantrix::kernel::boundary::nameStep;

namespace {

FrameObjectInterface<Geometry> geometries()
{
    return FrameObjectInterface<Geometry>(Kernel::instance().geometries());
}

} // namespace

bool VtxUtilGeometrySetX(VtxArgListHandle arguments)
{
    const auto set = [&] {
        nameStep(arguments->find("GeometryID") ? "Edit Geometry" : "Insert Geometry");
        return geometries().set(*arguments);
    };
    return boundary::change<&VtxUtilGeometrySetX>(false, set, arguments);
}

bool VtxUtilGeometryGetX(VtxArgListHandle arguments)
{
    return boundary::guarded(false, [&] { return geometries().get(*arguments); });
}

bool VtxUtilGeometryDelete(long geometry)
{
    const auto remove = [&] {
        nameStep("Delete Geometry");
        return geometries().remove(geometry);
    };
    return boundary::change<&VtxUtilGeometryDelete>(false, remove, geometry);
}

bool VtxUtilGeometryIsValid(long geometry)
{
    return geometries().isValid(geometry);
}

long VtxUtilGeometryGetFirst(void)
{
    return geometries().first();
}

long VtxUtilGeometryGetNext(long geometry)
{
    return geometries().next(geometry);
}
