#pragma once

#include "view/mouse/MouseTool.h"

namespace vantrix::view {

/* Dragging a rectangle enlarges it to the whole plot; a 3D plot is magnified by dragging up and down. */
class ZoomTool : public MouseTool
{
public:
    using MouseTool::MouseTool;

    void press(const QMouseEvent& event) override;
    void drag(const QMouseEvent& event) override;
    void release(const QMouseEvent& event) override;
    void cancel() override { m_drag = Drag::None; }
    void paint(QPainter& painter) const override;

private:
    enum class Drag
    {
        None,
        RubberBand,
        Magnify
    };
    Drag m_drag = Drag::None;
    QPointF m_start;
    QPointF m_last;
};

} // namespace vantrix::view
