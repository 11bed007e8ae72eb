#include "api/VtxUtilPick.h"
#include "api/VtxUtilDocument.h"
#include "api/VtxUtilFrame.h"

#include "kernel/Document.h"
#include "kernel/PickList.h"
#include "kernel/UndoStack.h"
#include "kernel/interface/Boundary.h"

#include <algorithm>

using namespace vantrix::kernel;

namespace {

PickList& pickList()
{
    return Kernel::instance().pickList();
}

/* A member of a picked object of one of some types; 0 for another type and where there is none. */
template<class Value>
Value ofType(long position, std::initializer_list<PickObject_e> types, Value PickedObject::*member)
{
    const PickedObject* object = pickList().at(position);
    for (const PickObject_e type : types) {
        if (object && object->type == type) {
            return object->*member;
        }
    }
    return {};
}

/* Picks one object for the function that was called with `arguments`. */
template<auto Function, class... Arguments>
bool pick(const PickedObject& object, const Arguments&... arguments)
{
    const auto add = [&] {
        pickList().add(object);
        return true;
    };
    return boundary::change<Function>(false, add, arguments...);
}

/* Handles count for the kernel, numbers for the interface. */
long streamtraceHandle(long number)
{
    const Frame* frame = Kernel::instance().document().activeFrame();
    const bool isThere = frame && number >= 1 && number <= static_cast<long>(frame->streamtraces().size());
    return isThere ? frame->streamtraces()[static_cast<std::size_t>(number - 1)]->handle : 0;
}

long streamtraceNumber(const PickedObject& object)
{
    const Frame* frame = Kernel::instance().document().frameById(object.frameId);
    if (!frame) {
        return 0;
    }
    const auto& all = frame->streamtraces();
    const auto found = std::ranges::find_if(all, [&](const auto& each) { return each->handle == object.number; });
    return found == all.end() ? 0 : static_cast<long>(found - all.begin()) + 1;
}

/* By the function for its type, which is what a macro records. */
bool pickObject(const PickedObject& object)
{
    if (object.frameId != VtxUtilFrameGetUniqueID() && object.type != PickObject_Frame &&
        !VtxUtilFrameActivate(object.frameId)) {
        return false;
    }
    switch (object.type) {
    case PickObject_Frame:
        return VtxUtilPickFrame(object.frameId);
    case PickObject_Axis:
        return VtxUtilPickAxis(object.axis, object.axisNumber, object.part);
    case PickObject_Text:
        return VtxUtilPickText(object.number);
    case PickObject_Geometry:
        return VtxUtilPickGeometry(object.number);
    case PickObject_Streamtrace:
        return VtxUtilPickStreamtrace(streamtraceNumber(object));
    case PickObject_LineMap:
        return VtxUtilPickLineMap(object.number);
    case PickObject_ContourLegend:
    case PickObject_LineLegend:
        return VtxUtilPickLegend(object.type);
    default:
        return VtxUtilPickZone(object.number);
    }
}

} // namespace

long VtxUtilPickListGetCount(void)
{
    return static_cast<long>(pickList().objects().size());
}

PickObject_e VtxUtilPickListGetType(long position)
{
    const PickedObject* object = pickList().at(position);
    return object ? object->type : PickObject_None;
}

long VtxUtilPickListGetFrame(long position)
{
    const PickedObject* object = pickList().at(position);
    return object ? object->frameId : 0;
}

long VtxUtilPickListGetZoneNumber(long position)
{
    return ofType(position, {PickObject_Zone, PickObject_IsoSurface, PickObject_Slice}, &PickedObject::number);
}

long VtxUtilPickListGetLineMapNumber(long position)
{
    return ofType(position, {PickObject_LineMap}, &PickedObject::number);
}

long VtxUtilPickListGetStreamtrace(long position)
{
    const PickedObject* object = pickList().at(position);
    return object && object->type == PickObject_Streamtrace ? streamtraceNumber(*object) : 0;
}

long VtxUtilPickListGetText(long position)
{
    return ofType(position, {PickObject_Text}, &PickedObject::number);
}

long VtxUtilPickListGetGeometry(long position)
{
    return ofType(position, {PickObject_Geometry}, &PickedObject::number);
}

char VtxUtilPickListGetAxisKind(long position)
{
    return ofType(position, {PickObject_Axis}, &PickedObject::axis);
}

int VtxUtilPickListGetAxisNumber(long position)
{
    return ofType(position, {PickObject_Axis}, &PickedObject::axisNumber);
}

AxisSubObject_e VtxUtilPickListGetAxisSubObject(long position)
{
    return ofType(position, {PickObject_Axis}, &PickedObject::part);
}

bool VtxUtilPickClear(void)
{
    const auto clear = [] {
        pickList().clear();
        return true;
    };
    return boundary::change<&VtxUtilPickClear>(false, clear);
}

bool VtxUtilPickText(long text)
{
    return pick<&VtxUtilPickText>({.type = PickObject_Text, .number = text}, text);
}

bool VtxUtilPickGeometry(long geometry)
{
    return pick<&VtxUtilPickGeometry>({.type = PickObject_Geometry, .number = geometry}, geometry);
}

bool VtxUtilPickFrame(long frameId)
{
    return pick<&VtxUtilPickFrame>({.type = PickObject_Frame, .frameId = frameId}, frameId);
}

bool VtxUtilPickZone(long zone)
{
    return pick<&VtxUtilPickZone>({.type = PickObject_Zone, .number = zone}, zone);
}

bool VtxUtilPickLineMap(long lineMap)
{
    return pick<&VtxUtilPickLineMap>({.type = PickObject_LineMap, .number = lineMap}, lineMap);
}

bool VtxUtilPickStreamtrace(long streamtrace)
{
    const long handle = streamtraceHandle(streamtrace);
    if (handle == 0) {
        return boundary::fail("There is no streamtrace " + std::to_string(streamtrace) + " in the active frame.");
    }
    return pick<&VtxUtilPickStreamtrace>({.type = PickObject_Streamtrace, .number = handle}, streamtrace);
}

bool VtxUtilPickAxis(char axis, int axisNumber, AxisSubObject_e part)
{
    return pick<&VtxUtilPickAxis>({.type = PickObject_Axis, .axis = axis, .axisNumber = axisNumber, .part = part}, axis,
                                  axisNumber, part);
}

bool VtxUtilPickLegend(PickObject_e legend)
{
    if (legend != PickObject_ContourLegend && legend != PickObject_LineLegend) {
        return boundary::fail("A legend is of type 6 (contour) or 7 (line maps), not " + std::to_string(legend) + '.');
    }
    return pick<&VtxUtilPickLegend>({.type = legend}, legend);
}

bool VtxUtilPickAtPosition(double x, double y, bool collect)
{
    return boundary::guarded(false, [&] {
        boundary::expectLocked();
        const std::optional<PickedObject> found = pickList().objectAt(x, y);
        if (!collect && !pickList().objects().empty()) {
            VtxUtilPickClear();
        }
        return found ? pickObject(*found) : boundary::fail("There is nothing to pick at that place.");
    });
}

bool VtxUtilPickDelete(void)
{
    const auto remove = [] {
        Kernel::instance().undoStack().nameStep("Delete");
        pickList().deleteObjects();
        return true;
    };
    return boundary::change<&VtxUtilPickDelete>(false, remove);
}
