#pragma once

#include "view/mouse/MouseTool.h"

namespace vantrix::view {

/* For modes of which the work area only tells where in the plot the click was: WorkArea::clickedInMode(). */
class ClickTool : public MouseTool
{
public:
    ClickTool(MouseContext& context, MouseMode_e mode)
        : MouseTool(context)
        , m_mode(mode)
    {}

    void press(const QMouseEvent& event) override;
    Qt::CursorShape cursor() const override { return Qt::CrossCursor; }

private:
    MouseMode_e m_mode;
};

} // namespace vantrix::view
