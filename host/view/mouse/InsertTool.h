#pragma once

#include "api/VtxUtilGeometry.h"
#include "view/mouse/MouseTool.h"

#include <QPolygonF>
#include <QRectF>

namespace vantrix::view {

/*
 * Draws a geometry in a frame by dragging from one end, or corner, to the other; with Shift lines go in steps of 45
 * degrees, rectangles become squares and ellipses circles. It snaps to the paper's grid while it is shown, but not with
 * Alt. The selector then takes over with the geometry picked. A press without a drag, or Escape, inserts nothing.
 */
class InsertTool : public MouseTool
{
public:
    InsertTool(MouseContext& context, GeomType_e type, bool hasArrowhead)
        : MouseTool(context)
        , m_type(type)
        , m_hasArrowhead(hasArrowhead)
    {}

    void press(const QMouseEvent& event) override;
    void drag(const QMouseEvent& event) override;
    void release(const QMouseEvent& event) override;
    void cancel() override;
    void doubleClick(const QMouseEvent& /*event*/) override {}
    bool keyPress(const QKeyEvent& event) override;
    void paint(QPainter& painter) const override;
    Qt::CursorShape cursor() const override { return Qt::CrossCursor; }

private:
    void moveTo(const QMouseEvent& event);
    void insert();

    GeomType_e m_type;
    bool m_hasArrowhead;
    bool m_isDragging = false;
    bool m_isRegular = false; /* as wide as high */
    QPointF m_from;           /* inches of the paper */
    QPointF m_to;
};

} // namespace vantrix::view
