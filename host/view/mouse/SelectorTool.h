#pragma once

#include "view/mouse/FrameDrag.h"
#include "view/mouse/GeometryResize.h"
#include "view/mouse/MouseTool.h"
#include "view/mouse/ObjectDrag.h"

namespace vantrix::view {

/*
 * Picks what is clicked, with Ctrl in addition to what is picked; but a Ctrl-click on a text or geometry that has a
 * macro function runs that. A click beside the frames picks nothing. Picked frames, texts and geometries are moved by
 * dragging, a frame or geometry is resized by its handles; they snap to the paper's grid while it is shown, but not
 * with Alt. A double click asks for the dialog that edits the object. Delete deletes what is picked, Escape picks
 * nothing.
 */
class SelectorTool : public MouseTool
{
public:
    using MouseTool::MouseTool;

    void press(const QMouseEvent& event) override;
    void drag(const QMouseEvent& event) override;
    void release(const QMouseEvent& event) override;
    void cancel() override;
    void doubleClick(const QMouseEvent& event) override;
    void hover(QPointF place) override;
    bool keyPress(const QKeyEvent& event) override;

private:
    void begin(QPointF place);
    bool isBegun() const;
    bool runMacroFunction(QPointF place);
    void pick(QPointF place, bool collect);

    FrameDrag m_drag;
    GeometryResize m_resize;
    ObjectDrag m_objects;
};

} // namespace vantrix::view
