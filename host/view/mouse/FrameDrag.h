#pragma once

#include <QPointF>
#include <QRectF>

#include <vector>

namespace vantrix::view {

class MouseContext;

/*
 * Frames that are moved together, or one that is resized by a handle, while the mouse is dragged. Edges snap to the
 * paper's grid while it is shown; the whole drag is one step of undo.
 */
class FrameDrag
{
public:
    /* The handle of a picked frame at a place in the widget is taken, else the picked frames themselves, when one of
     * them lies there. Not begun where neither is so. */
    static FrameDrag begin(const MouseContext& context, QPointF place);

    /* The same for a handle only, which costs little. */
    static FrameDrag byHandle(const MouseContext& context, QPointF place);

    bool isBegun() const { return !m_frames.empty(); }

    /* The cursor that tells what a drag from here would do. */
    Qt::CursorShape cursor() const;

    /* Places the frames as a drag to that place asks; `isFree` does not snap. */
    void drag(MouseContext& context, QPointF place, bool isFree);

private:
    struct Dragged
    {
        long id;
        QRectF rect; /* before the drag, in inches */
    };
    static std::vector<Dragged> pickedFrames(const MouseContext& context);
    QRectF resized(const MouseContext& context, QPointF by, bool isFree) const;

    static constexpr int noHandle = -1;
    std::vector<Dragged> m_frames;
    int m_handle = noHandle; /* see MouseContext::handles() */
    QPointF m_start;         /* in the widget */
    bool m_isMoving = false;
};

} // namespace vantrix::view
