#pragma once

#include "api/VtxUtilGeometry.h"

#include <QWidget>

#include <memory>

namespace vantrix::kernel {
class Kernel;
}

namespace vantrix::view {

class PageRenderer;

/*
 * The work area: the desk with the active page's paper and its frames, and the mouse over them.
 *
 * When it has drawn ticks of the active frame's axes at another spacing than before it sends `StateChange_View`.
 *
 * It listens to the kernel's state changes and repaints on the next turn of the event loop, once for any number of
 * changes. What the mouse does follows the kernel's mouse mode (MouseModes): all are handled here but text placement,
 * of which the place is told by textPlaceClicked(). Everywhere the wheel zooms the plot under the pointer, with Ctrl
 * the paper; the middle button moves the plot, a double click fits it. A change of view writes style values; a whole
 * drag is one step of undo.
 */
class WorkArea : public QWidget
{
    Q_OBJECT

public:
    explicit WorkArea(kernel::Kernel& kernel, QWidget* parent = nullptr);
    ~WorkArea() override;

    /* Zooms and moves so that the paper fills the widget. Until the paper is zoomed by hand, it follows resizing. */
    void fitPaper();

    /* Draws what has changed since the last drawing, where the settings leave that to the user ("Interface" /
     * "AutoRedrawIsActive"). A change of view with the mouse draws by itself. */
    void redraw();

    /* Pixels of the widget for an inch of paper. Setting keeps the middle of the widget in place; 10 to 2000. */
    double zoom() const;
    void setZoom(double pixelsPerInch);

    /* Shows the whole data of the active frame's plot: axis ranges in 2D and line plots, that of R in polar ones; in 3D
     * the direction is kept. */
    void fitPlot();

    /* Where a place on the paper (inches from its upper left corner) is in the widget, and back. */
    QPointF toWidget(QPointF paper) const;
    QPointF toPaper(QPointF widget) const;

    /* The identifier of the topmost frame at a place in the widget; 0 where there is none. */
    long frameAt(QPointF widget) const;

    /* The next drag draws a geometry of that type (see InsertTool), whatever the mouse mode is; an ellipse may become a
     * circle and a rectangle a square. Setting a mouse mode ends it, as endInsert() does. */
    void beginInsert(GeomType_e type, bool hasArrowhead = false);
    void endInsert();

    PageRenderer& renderer() const;

    QSize sizeHint() const override;

Q_SIGNALS:
    /* The pointer moved: its place in data coordinates over a 2D or line plot, else in inches of the paper; empty when
     * it left. Numbers are in the C locale. */
    void coordinatesChanged(const QString& text);

    /* A hint for the status line; empty removes it. */
    void statusMessage(const QString& text);

    /* A click in text placement mode: the place of a text of the active frame, in % of the frame's width and height
     * from its lower left corner. */
    void textPlaceClicked(double x, double y);

    /* An object was double-clicked in selector mode and is picked; whoever runs the dialogs may offer to edit it. */
    void objectActivated(PickObject_e type);

protected:
    bool event(QEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void resizeEvent(QResizeEvent* event) override;
    void mousePressEvent(QMouseEvent* event) override;
    void mouseMoveEvent(QMouseEvent* event) override;
    void mouseReleaseEvent(QMouseEvent* event) override;
    void mouseDoubleClickEvent(QMouseEvent* event) override;
    void wheelEvent(QWheelEvent* event) override;
    void leaveEvent(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace vantrix::view
