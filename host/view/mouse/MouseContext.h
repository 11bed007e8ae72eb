#pragma once

#include "kernel/PickList.h"
#include "view/KeptView.h"
#include "view/PageRenderer.h"
#include "view/PaperView.h"
#include "view/ViewEditor.h"

#include <QColor>

#include <optional>

class QMouseEvent;

namespace vantrix::view {

class WorkArea;

/* What the mouse tools of a work area share. */
class MouseContext
{
public:
    MouseContext(WorkArea& area, kernel::Kernel& plot)
        : widget(area)
        , kernel(plot)
        , renderer(plot)
        , editor(plot)
    {}

    static inline const QColor highlight{0x2f, 0x6f, 0xd0};

    kernel::Page* page() const;
    kernel::Frame* frame() const;

    /* The plot of the active frame as it was painted last, when it is one that a view can be changed of; else null. */
    const FramePlot* activePlot() const;

    /* A place in the widget as one in the active frame, in inches from its corner. */
    QPointF inFrame(QPointF place) const;

    /* The identifier of the topmost frame at a place in the widget; 0 where there is none. */
    long frameAt(QPointF place) const;

    /* The nearest point of the paper's grid while it is shown, else the place itself; in inches of the paper. */
    QPointF snapped(QPointF place) const;

    /* Where on the paper the pointer is: as snapped() has it, but with Alt the place itself. */
    QPointF pointedPlace(const QMouseEvent& event) const;

    /* A place on the paper in % of the active frame's width and height, from its lower left corner. */
    QPointF percentOfFrame(QPointF paper) const;

    /* What is seen at a place in the widget: a frame at least; nothing beside the frames. */
    std::optional<kernel::PickedObject> objectAt(QPointF place) const;

    /* Makes the frame under a place the active one; ends a gesture that was under way in another. */
    void activate(QPointF place);

    /* Draws a step of a change of view at once: the next step starts from what this one shows. */
    void showMove();

    /* Ends a change of view that is under way: it is one step of undo, and the plot is drawn in full detail again. */
    void endGesture();

    /* Where a picked object shows handles, in the widget: those of frames are in the order of BoxHandles.h, those of
     * geometries in that of GeometryShape. */
    QPolygonF handles(const kernel::PickedObject& object) const;
    static QRectF handleRect(QPointF place);

    /* The number of the handle at a place in the widget, from 0; -1 where there is none. */
    int handleAt(const kernel::PickedObject& object, QPointF place) const;

    /* Whether the mouse moved far enough, in pixels, for more than a click. */
    static bool isDrag(QPointF way);

    /* A dashed rectangle between two places. */
    static void paintRubberBand(QPainter& painter, QPointF from, QPointF to);

    WorkArea& widget;
    kernel::Kernel& kernel;
    PageRenderer renderer;
    ViewEditor editor;
    PaperView paper;
    KeptView view;
};

} // namespace vantrix::view
