#include "view/mouse/ObjectDrag.h"

#include "api/VtxUtilGeometry.h"
#include "api/VtxUtilText.h"
#include "kernel/Document.h"
#include "kernel/FrameObjects.h"
#include "kernel/Kernel.h"
#include "kernel/interface/ArgumentList.h"
#include "view/ObjectPlace.h"
#include "view/mouse/MouseContext.h"

#include <algorithm>
#include <optional>

namespace vantrix::view {

namespace {

struct Position
{
    CoordSys_e coordSys;
    Point3 position;
};

template<class Object>
Position positionOf(const Object& object)
{
    return {object.coordSys, {object.x, object.y, object.z}};
}

std::optional<Position> positionOf(const kernel::Kernel& kernel, const kernel::PickedObject& object)
{
    if (object.type == PickObject_Text) {
        return positionOf(*kernel.texts().find(object.number));
    }
    return object.type == PickObject_Geometry ? std::optional(positionOf(*kernel.geometries().find(object.number)))
                                              : std::nullopt;
}

QSizeF frameSize(const MouseContext& context, const kernel::PickedObject& object)
{
    return context.renderer.frameRect(*context.kernel.document().frameById(object.frameId)).size();
}

/* The same position moved to a place in the frame; none where nothing can be measured. */
std::optional<Point3> movedTo(QPointF place, const Position& was, const FramePlot& plot, QSizeF frame)
{
    if (was.coordSys == CoordSys_Grid3D) {
        return plot.dataAt(place, was.position);
    }
    const auto flat = objectPosition(plot, frame, was.coordSys, place);
    return flat ? std::optional(Point3{flat->x(), flat->y(), was.position[2]}) : std::nullopt;
}

void setPosition(const kernel::PickedObject& object, CoordSys_e coordSys, const Point3& position)
{
    const bool isText = object.type == PickObject_Text;
    VtxArgList list{{{isText ? "TextID" : "GeometryID", object.number}, {"XPos", position[0]}, {"YPos", position[1]}}};
    if (coordSys == CoordSys_Grid3D) {
        list.arguments.push_back({"ZPos", position[2]});
    }
    if (isText) {
        VtxUtilTextSetX(&list);
    } else {
        VtxUtilGeometrySetX(&list);
    }
}

} // namespace

ObjectDrag ObjectDrag::begin(const MouseContext& context, QPointF place)
{
    ObjectDrag drag;
    const auto there = context.objectAt(place);
    if (!there || !context.kernel.pickList().contains(*there) || !positionOf(context.kernel, *there)) {
        return drag;
    }
    for (const kernel::PickedObject& object : context.kernel.pickList().objects()) {
        const auto position = positionOf(context.kernel, object);
        const FramePlot* plot = context.renderer.plot(object.frameId);
        if (!position || !plot) {
            continue;
        }
        if (const auto at = objectPlace(*plot, frameSize(context, object), position->coordSys, position->position)) {
            drag.m_objects.push_back({object, *at});
        }
    }
    drag.m_start = place;
    return drag;
}

void ObjectDrag::drag(MouseContext& context, QPointF place, bool isFree)
{
    m_isMoving = m_isMoving || MouseContext::isDrag(place - m_start);
    if (!m_isMoving) {
        return;
    }
    QPointF by = (place - m_start) / context.paper.inch();
    if (!isFree) {
        const kernel::Frame& frame = *context.kernel.document().frameById(m_objects.front().object.frameId);
        const QPointF onPaper = context.renderer.frameRect(frame).topLeft() + m_objects.front().place;
        by = context.snapped(onPaper + by) - onPaper;
    }
    context.editor.begin(m_objects.size() > 1                               ? "Move Objects"
                         : m_objects.front().object.type == PickObject_Text ? "Move Text"
                                                                            : "Move Geometry");
    for (const Dragged& each : m_objects) {
        const auto was = positionOf(context.kernel, each.object);
        const FramePlot* plot = context.renderer.plot(each.object.frameId);
        const auto position =
            plot ? movedTo(each.place + by, *was, *plot, frameSize(context, each.object)) : std::nullopt;
        if (position) {
            setPosition(each.object, was->coordSys, *position);
        }
    }
}

} // namespace vantrix::view
