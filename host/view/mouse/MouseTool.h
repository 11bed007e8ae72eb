#pragma once

#include "api/VtxEnumerations.h"

#include <QPointF>

class QKeyEvent;
class QMouseEvent;
class QPainter;

namespace vantrix::view {

class MouseContext;

/*
 * What the mouse does in one mouse mode. The work area hands on presses of the left button, what follows until the
 * button is released, and keys; places are those of the widget. A tool lives as long as the work area.
 */
class MouseTool
{
public:
    explicit MouseTool(MouseContext& context)
        : m_context(context)
    {}
    virtual ~MouseTool() = default;
    MouseTool(const MouseTool&) = delete;
    MouseTool& operator=(const MouseTool&) = delete;

    /* Whether a press makes the frame under the pointer the active one before it reaches the tool. */
    virtual bool activatesFrames() const { return true; }

    virtual void press(const QMouseEvent& event) = 0;
    virtual void drag(const QMouseEvent& /*event*/) {}
    virtual void release(const QMouseEvent& /*event*/) {}

    /* The mouse was taken away in the middle of a drag: what was dragged so far stays or goes as the tool says. */
    virtual void cancel() {}

    /* By default fits the plot of the active frame. */
    virtual void doubleClick(const QMouseEvent& event);

    /* The pointer moved with no button down. */
    virtual void hover(QPointF /*place*/) {}

    /* Whether the key meant something. */
    virtual bool keyPress(const QKeyEvent& /*event*/) { return false; }

    /* Draws what belongs to the tool over the page, in coordinates of the widget. */
    virtual void paint(QPainter& /*painter*/) const {}

    virtual Qt::CursorShape cursor() const { return Qt::ArrowCursor; }

protected:
    MouseContext& context() const { return m_context; }

private:
    MouseContext& m_context;
};

} // namespace vantrix::view
