#pragma once

#include "kernel/PickList.h"

#include <QPointF>

#include <vector>

namespace vantrix::view {

class MouseContext;

/* Moves the texts and geometries that are picked, all by the same way, as one step of undo. Those in coordinates of a
 * 3D plot stay in the plane parallel to the screen that they are in. */
class ObjectDrag
{
public:
    ObjectDrag() = default;

    /* Begins when one of them is at the place in the widget. */
    static ObjectDrag begin(const MouseContext& context, QPointF place);

    bool isBegun() const { return !m_objects.empty(); }

    /* Moves them; snaps the first to the paper's grid unless the drag is free. */
    void drag(MouseContext& context, QPointF place, bool isFree);

private:
    struct Dragged
    {
        kernel::PickedObject object;
        QPointF place; /* where it was, in inches from the frame's corner */
    };
    std::vector<Dragged> m_objects;
    QPointF m_start;
    bool m_isMoving = false;
};

} // namespace vantrix::view
