#include "view/mouse/GeometryResize.h"

#include "api/VtxUtilGeometry.h"
#include "kernel/Document.h"
#include "kernel/FrameObjects.h"
#include "kernel/Kernel.h"
#include "kernel/interface/ArgumentList.h"
#include "view/GeometryShape.h"
#include "view/mouse/MouseContext.h"

namespace vantrix::view {

GeometryResize GeometryResize::begin(const MouseContext& context, QPointF place)
{
    GeometryResize resize;
    for (const kernel::PickedObject& object : context.kernel.pickList().objects()) {
        const FramePlot* plot = context.renderer.plot(object.frameId);
        if (object.type != PickObject_Geometry || !plot) {
            continue;
        }
        const int handle = context.handleAt(object, place);
        if (handle >= 0) {
            const QSizeF frame =
                context.renderer.frameRect(*context.kernel.document().frameById(object.frameId)).size();
            resize.m_before = *context.kernel.geometries().find(object.number);
            resize.m_frameId = object.frameId;
            resize.m_handle = handle;
            resize.m_handlePlace = context.handles(object)[handle];
            resize.m_start = place;
            resize.m_cursor = GeometryShape(*plot, frame, resize.m_before).handleCursor(handle);
            return resize;
        }
    }
    return resize;
}

void GeometryResize::drag(MouseContext& context, QPointF place, bool isFree)
{
    m_isMoving = m_isMoving || MouseContext::isDrag(place - m_start);
    const kernel::Frame* frame = context.kernel.document().frameById(m_frameId);
    const FramePlot* plot = frame ? context.renderer.plot(m_frameId) : nullptr;
    if (!m_isMoving || !plot) {
        return;
    }
    const QRectF rect = context.renderer.frameRect(*frame);
    const QPointF onPaper = context.paper.toPaper(m_handlePlace + place - m_start);
    const QPointF to = (isFree ? onPaper : context.snapped(onPaper)) - rect.topLeft();
    const auto changed = GeometryShape(*plot, rect.size(), m_before).withHandleAt(m_handle, to);
    if (!changed) {
        return;
    }
    VtxArgList list{{{"GeometryID", m_before.handle}}};
    if (changed->type == GeomType_Line) {
        list.arguments.push_back({"Points", changed->points});
    } else {
        list.arguments.insert(
            list.arguments.end(),
            {{"XPos", changed->x}, {"YPos", changed->y}, {"Width", changed->width}, {"Height", changed->height}});
    }
    context.editor.begin(changed->type == GeomType_Line ? "Move Point" : "Resize Geometry");
    VtxUtilGeometrySetX(&list);
}

} // namespace vantrix::view
