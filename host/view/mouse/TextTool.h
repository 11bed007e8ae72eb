#pragma once

#include "view/mouse/MouseTool.h"

namespace vantrix::view {

/*
 * Tells by WorkArea::textPlaceClicked() where in a frame a text is to be. The place snaps to the paper's grid while it
 * is shown, but not with Alt. Escape goes back to the selector.
 */
class TextTool : public MouseTool
{
public:
    using MouseTool::MouseTool;

    void press(const QMouseEvent& /*event*/) override {}
    void release(const QMouseEvent& event) override;
    void doubleClick(const QMouseEvent& /*event*/) override {}
    bool keyPress(const QKeyEvent& event) override;
    Qt::CursorShape cursor() const override { return Qt::IBeamCursor; }
};

} // namespace vantrix::view
