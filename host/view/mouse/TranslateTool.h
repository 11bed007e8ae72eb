#pragma once

#include "view/mouse/MouseTool.h"

namespace vantrix::view {

/* Drags the plot, or the paper where there is no plot. */
class TranslateTool : public MouseTool
{
public:
    using MouseTool::MouseTool;

    void press(const QMouseEvent& event) override;
    void drag(const QMouseEvent& event) override;

private:
    bool m_movesPaper = false;
    QPointF m_last;
};

} // namespace vantrix::view
