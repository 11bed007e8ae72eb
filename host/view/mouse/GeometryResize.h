#pragma once

#include "kernel/Geometry.h"

#include <QPointF>

namespace vantrix::view {

class MouseContext;

/* A picked geometry that is resized, or a line of which a point is moved, by dragging a handle: one step of undo. */
class GeometryResize
{
public:
    /* Takes the handle of a picked geometry at a place in the widget; not begun where there is none. */
    static GeometryResize begin(const MouseContext& context, QPointF place);

    bool isBegun() const { return m_handle != noHandle; }

    /* The cursor that tells what a drag from here would do. */
    Qt::CursorShape cursor() const { return m_cursor; }

    /* Puts the handle there; snaps it to the paper's grid unless the drag is free. */
    void drag(MouseContext& context, QPointF place, bool isFree);

private:
    static constexpr int noHandle = -1;
    kernel::Geometry m_before;
    long m_frameId = 0;
    int m_handle = noHandle; /* see GeometryShape */
    QPointF m_handlePlace;   /* in the widget */
    QPointF m_start;
    Qt::CursorShape m_cursor = Qt::ArrowCursor;
    bool m_isMoving = false;
};

} // namespace vantrix::view
