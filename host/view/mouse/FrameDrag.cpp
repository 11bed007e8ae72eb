#include "view/mouse/FrameDrag.h"

#include "api/VtxUtilDocument.h"
#include "kernel/Document.h"
#include "kernel/FrameActions.h"
#include "kernel/Kernel.h"
#include "view/WorkArea.h"
#include "view/mouse/MouseContext.h"

#include <algorithm>
#include <array>

namespace vantrix::view {

namespace {

/* Which edges each handle takes along: clockwise from the upper left corner. */
struct HandleEdges
{
    int across; /* -1 the left edge, 1 the right one */
    int down;   /* -1 the top, 1 the bottom */
    Qt::CursorShape cursor;
};

constexpr std::array<HandleEdges, 8> handleEdges{{
    {-1, -1, Qt::SizeFDiagCursor},
    {0, -1, Qt::SizeVerCursor},
    {1, -1, Qt::SizeBDiagCursor},
    {1, 0, Qt::SizeHorCursor},
    {1, 1, Qt::SizeFDiagCursor},
    {0, 1, Qt::SizeVerCursor},
    {-1, 1, Qt::SizeBDiagCursor},
    {-1, 0, Qt::SizeHorCursor},
}};

} // namespace

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
    constexpr double reach = 3.0; /* pixels around a handle */
    FrameDrag drag;
    for (const Dragged& frame : pickedFrames(context)) {
        const QPolygonF handles = context.handles({.type = PickObject_Frame, .frameId = frame.id});
        for (int handle = 0; handle < int(handles.size()); ++handle) {
            if (MouseContext::handleRect(handles[handle]).adjusted(-reach, -reach, reach, reach).contains(place)) {
                drag.m_frames = {frame};
                drag.m_handle = handle;
                drag.m_start = place;
                return drag;
            }
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
    return m_handle == noHandle ? Qt::ArrowCursor : handleEdges[std::size_t(m_handle)].cursor;
}

QRectF FrameDrag::resized(const MouseContext& context, QPointF by, bool isFree) const
{
    const HandleEdges& edges = handleEdges[std::size_t(m_handle)];
    const QRectF& old = m_frames.front().rect;
    const double least = kernel::FrameActions::leastSize;
    QRectF rect = old;
    const auto placed = [&](QPointF corner) { return isFree ? corner : context.snapped(corner); };
    const QPointF topLeft = placed(old.topLeft() + by);
    const QPointF bottomRight = placed(old.bottomRight() + by);
    if (edges.across < 0) {
        rect.setLeft(std::min(topLeft.x(), old.right() - least));
    } else if (edges.across > 0) {
        rect.setRight(std::max(bottomRight.x(), old.left() + least));
    }
    if (edges.down < 0) {
        rect.setTop(std::min(topLeft.y(), old.bottom() - least));
    } else if (edges.down > 0) {
        rect.setBottom(std::max(bottomRight.y(), old.top() + least));
    }
    return rect;
}

void FrameDrag::drag(MouseContext& context, QPointF place, bool isFree)
{
    constexpr double leastPixels = 3.0; /* below that it was a click */
    const QPointF pixels = place - m_start;
    m_isMoving = m_isMoving || pixels.manhattanLength() > leastPixels;
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
