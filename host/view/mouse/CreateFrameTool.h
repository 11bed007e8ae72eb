#pragma once

#include "view/mouse/MouseTool.h"

namespace vantrix::view {

/* Dragging a rectangle creates a frame there; the selector then takes over with the new frame picked. */
class CreateFrameTool : public MouseTool
{
public:
    using MouseTool::MouseTool;

    bool activatesFrames() const override { return false; }
    void press(const QMouseEvent& event) override;
    void drag(const QMouseEvent& event) override;
    void release(const QMouseEvent& event) override;
    void cancel() override { m_isDragging = false; }
    void doubleClick(const QMouseEvent& /*event*/) override {}
    void paint(QPainter& painter) const override;
    Qt::CursorShape cursor() const override { return Qt::CrossCursor; }

private:
    bool m_isDragging = false;
    QPointF m_from; /* inches of the paper */
    QPointF m_to;
};

} // namespace vantrix::view
