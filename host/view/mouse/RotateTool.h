#pragma once

#include "view/mouse/MouseTool.h"

namespace vantrix::view {

/* Turns a 3D plot: across about the Z axis, up and down towards or away from the viewer. */
class RotateTool : public MouseTool
{
public:
    using MouseTool::MouseTool;

    void press(const QMouseEvent& event) override;
    void drag(const QMouseEvent& event) override;

private:
    QPointF m_last;
};

} // namespace vantrix::view
