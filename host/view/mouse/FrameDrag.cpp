#include "view/mouse/FrameDrag.h"

#include "api/VtxUtilDocument.h"
#include "kernel/Document.h"
#include "kernel/FrameActions.h"
#include "kernel/Kernel.h"
#include "view/BoxHandles.h"
#include "view/WorkArea.h"
#include "view/mouse/MouseContext.h"

#include <algorithm>

namespace vantrix::view {

std::vector<FrameDrag::Dragged> FrameDrag::pickedFrames(const MouseContext& context)
{
    std::vector<Dragged> frames;
    for (const kernel::PickedObject& object : context.kernel.pickList().objects()) {
        if (object.type == PickObject_Frame) {
            const kernel::Frame& frame = *context.kernel.document().frameById(object.frameId);
            frames.push_back({frame.id(), context.renderer.frameRect(frame)});
        }
    }
    return frames;
}

FrameDrag FrameDrag::byHandle(const MouseContext& context, QPointF place)
{
    FrameDrag drag;
    for (const Dragged& frame : pickedFrames(context)) {
        const int handle = context.handleAt({.type = PickObject_Frame, .frameId = frame.id}, place);
        if (handle >= 0) {
            drag.m_frames = {frame};
            drag.m_handle = handle;
            drag.m_start = place;
            return drag;
        }
    }
    return drag;
}

FrameDrag FrameDrag::begin(const MouseContext& context, QPointF place)
{
    FrameDrag drag = byHandle(context, place);
    const auto isThere = [&](const Dragged& frame) {
        return context.objectAt(place) == kernel::PickedObject{.type = PickObject_Frame, .frameId = frame.id};
    };
    if (!drag.isBegun()) {
        std::vector<Dragged> frames = pickedFrames(context);
        if (std::any_of(frames.begin(), frames.end(), isThere)) {
            drag.m_frames = std::move(frames);
            drag.m_start = place;
        }
    }
    return drag;
}

Qt::CursorShape FrameDrag::cursor() const
{
    return m_handle == noHandle ? Qt::ArrowCursor : boxHandleCursor(m_handle);
}

QRectF FrameDrag::resized(const MouseContext& context, QPointF by, bool isFree) const
{
    const QRectF& old = m_frames.front().rect;
    const QPointF place = boxHandles(old)[m_handle] + by;
    return resizedBox(old, m_handle, isFree ? place : context.snapped(place), kernel::FrameActions::leastSize);
}

void FrameDrag::drag(MouseContext& context, QPointF place, bool isFree)
{
    const QPointF pixels = place - m_start;
    m_isMoving = m_isMoving || MouseContext::isDrag(pixels);
    if (!m_isMoving) {
        return;
    }
    QPointF by = pixels / context.paper.inch();
    const auto show = [](const Dragged& frame, const QRectF& rect) {
        VtxUtilFrameSetRect(frame.id, rect.left(), rect.top(), rect.width(), rect.height());
    };
    if (m_handle != noHandle) {
        context.renderer.setMoving(true);
        context.editor.begin("Resize Frame");
        show(m_frames.front(), resized(context, by, isFree));
        return;
    }
    const QPointF corner = m_frames.front().rect.topLeft();
    if (!isFree) {
        by = context.snapped(corner + by) - corner;
    }
    context.editor.begin(m_frames.size() == 1 ? "Move Frame" : "Move Frames");
    for (const Dragged& frame : m_frames) {
        show(frame, frame.rect.translated(by));
    }
}

} // namespace vantrix::view
