#include "view/WorkArea.h"

#include "kernel/Document.h"
#include "kernel/Frame.h"
#include "kernel/Kernel.h"
#include "kernel/MouseModes.h"
#include "kernel/StateChanges.h"
#include "view/Coordinates.h"
#include "view/FramePlot.h"
#include "view/KeptView.h"
#include "view/PageRenderer.h"
#include "view/PaperGrid.h"
#include "view/PaperRuler.h"
#include "view/PaperStyle.h"
#include "view/RenderSettings.h"
#include "view/ViewEditor.h"

#include <QApplication>
#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>
#include <optional>

namespace vantrix::view {
namespace {

constexpr double degreesPerPixel = 0.4;
constexpr double zoomPerNotch = 1.2;
constexpr int wheelPause = 350; /* milliseconds after which turning the wheel again is another step of undo */
const QColor deskColor(0xd9, 0xdd, 0xe3);
const QColor activeColor(0x2f, 0x6f, 0xd0);

} // namespace

struct WorkArea::Impl
{
    enum class Drag
    {
        None,
        RubberBand,
        Zoom,
        Move,
        Rotate,
        Paper
    };

    Impl(WorkArea& owner, kernel::Kernel& k)
        : widget(owner)
        , kernel(k)
        , renderer(k)
        , editor(k)
    {
        kernel.stateChanges().addListener(&Impl::stateChanged, this);
        wheelTimer.setSingleShot(true);
        QObject::connect(&wheelTimer, &QTimer::timeout, &owner, [this] { endGesture(); });
    }
    ~Impl() { kernel.stateChanges().removeListener(&Impl::stateChanged, this); }
    Impl(const Impl&) = delete;
    Impl& operator=(const Impl&) = delete;

    static void stateChanged(VtxStateChangeHandle, void* impl) { static_cast<Impl*>(impl)->widget.update(); }

    kernel::Page* page() const { return kernel.document().activePage(); }
    kernel::Frame* frame() const { return kernel.document().activeFrame(); }
    PaperStyle paperStyle(const kernel::Page& page) const { return PaperStyle::read(kernel.style(), page.id); }
    const FramePlot* activePlot() const { return frame() ? renderer.plot(frame()->id()) : nullptr; }

    /* A place in the widget as one in the active frame, in inches from its corner. */
    QPointF inFrame(QPointF place) const { return widget.toPaper(place) - renderer.frameRect(*frame()).topLeft(); }

    void zoomPaper(double factor, QPointF about);
    void startDrag(MouseMode_e mode, QPointF place);
    void drag(QPointF place);
    void endDrag(QPointF place);
    void endGesture();
    void click(MouseMode_e mode, QPointF place);
    void activate(QPointF place);
    void paintPaper(QPainter& painter, const kernel::Page& page);

    WorkArea& widget;
    kernel::Kernel& kernel;
    PageRenderer renderer;
    ViewEditor editor;
    KeptView view;
    QTimer wheelTimer;
    double inch = 72.0;
    QPointF origin; /* of the paper, in the widget */
    bool isFitted = true;
    Drag dragging = Drag::None;
    QPointF dragStart;
    QPointF dragLast;
};

WorkArea::WorkArea(kernel::Kernel& kernel, QWidget* parent)
    : QWidget(parent)
    , m_impl(std::make_unique<Impl>(*this, kernel))
{
    setObjectName(QStringLiteral("workArea"));
    setMouseTracking(true);
    setFocusPolicy(Qt::WheelFocus);
    setAttribute(Qt::WA_OpaquePaintEvent);
}

WorkArea::~WorkArea() = default;

PageRenderer& WorkArea::renderer() const
{
    return m_impl->renderer;
}

QSize WorkArea::sizeHint() const
{
    return {1000, 760};
}

void WorkArea::fitPaper()
{
    m_impl->isFitted = true;
    const kernel::Page* page = m_impl->page();
    if (!page) {
        return;
    }
    const QSizeF paper = m_impl->renderer.paperSize(*page);
    const double margin = 12.0;
    const double ruler = m_impl->paperStyle(*page).hasRuler ? PaperRuler::thickness : 0.0;
    const QSizeF area(width() - ruler, height() - ruler);
    m_impl->inch = std::max(
        5.0, std::min((area.width() - 2.0 * margin) / paper.width(), (area.height() - 2.0 * margin) / paper.height()));
    m_impl->origin = QPointF(ruler + 0.5 * (area.width() - paper.width() * m_impl->inch),
                             ruler + 0.5 * (area.height() - paper.height() * m_impl->inch));
    update();
}

void WorkArea::redraw()
{
    m_impl->view.request();
    update();
}

double WorkArea::zoom() const
{
    return m_impl->inch;
}

void WorkArea::setZoom(double pixelsPerInch)
{
    m_impl->zoomPaper(pixelsPerInch / m_impl->inch, QPointF(0.5 * width(), 0.5 * height()));
}

void WorkArea::fitPlot()
{
    const FramePlot* plot = m_impl->activePlot();
    if (plot) {
        m_impl->endGesture();
        m_impl->editor.begin("Fit View");
        m_impl->editor.fit(*m_impl->frame(), *plot);
        m_impl->editor.end();
        redraw();
    }
}

QPointF WorkArea::toWidget(QPointF paper) const
{
    return m_impl->origin + paper * m_impl->inch;
}

QPointF WorkArea::toPaper(QPointF widget) const
{
    return (widget - m_impl->origin) / m_impl->inch;
}

long WorkArea::frameAt(QPointF widget) const
{
    const kernel::Page* page = m_impl->page();
    if (page) {
        for (auto frame = page->frames.rbegin(); frame != page->frames.rend(); ++frame) {
            if (m_impl->renderer.frameRect(**frame).contains(toPaper(widget))) {
                return (*frame)->id();
            }
        }
    }
    return 0;
}

void WorkArea::Impl::zoomPaper(double factor, QPointF about)
{
    isFitted = false;
    const QPointF paper = widget.toPaper(about);
    inch = std::clamp(inch * factor, 10.0, 2000.0);
    origin = about - paper * inch;
    widget.update();
}

void WorkArea::Impl::activate(QPointF place)
{
    const long id = widget.frameAt(place);
    if (id != 0 && (!frame() || frame()->id() != id)) {
        endGesture();
        kernel.document().setActiveFrame(id);
    }
}

void WorkArea::Impl::endGesture()
{
    wheelTimer.stop();
    if (editor.isEditing()) {
        view.request();
    }
    editor.end();
    renderer.setMoving(false);
    widget.update();
}

void WorkArea::Impl::startDrag(MouseMode_e mode, QPointF place)
{
    endGesture();
    dragStart = place;
    dragLast = place;
    const FramePlot* plot = activePlot();
    const bool isPlot = plot && (plot->camera || plot->x);
    if (!isPlot) {
        dragging = mode == MouseMode_Translate ? Drag::Paper : Drag::None;
        return;
    }
    switch (mode) {
    case MouseMode_Zoom:
        dragging = plot->camera ? Drag::Zoom : Drag::RubberBand;
        break;
    case MouseMode_Translate:
        dragging = Drag::Move;
        break;
    case MouseMode_Rotate:
        dragging = plot->camera ? Drag::Rotate : Drag::None;
        break;
    default:
        dragging = Drag::None;
        break;
    }
}

void WorkArea::Impl::drag(QPointF place)
{
    const QPointF by = place - dragLast;
    dragLast = place;
    const FramePlot* plot = activePlot();
    if (dragging == Drag::Paper) {
        isFitted = false;
        origin += by;
        widget.update();
        return;
    }
    if (dragging == Drag::RubberBand) {
        widget.update();
        return;
    }
    if (dragging == Drag::None || !plot) {
        return;
    }
    renderer.setMoving(true);
    const kernel::Frame& target = *frame();
    switch (dragging) {
    case Drag::Move:
        editor.begin("Translate");
        editor.move(target, *plot, by / inch);
        break;
    case Drag::Rotate:
        editor.begin("Rotate");
        editor.turn(target, *plot, -by.x() * degreesPerPixel, -by.y() * degreesPerPixel);
        break;
    case Drag::Zoom:
        editor.begin("Zoom");
        editor.magnify(target, *plot, std::pow(1.01, -by.y()), plot->area.center());
        break;
    default:
        break;
    }
    // The next move starts from what this one shows.
    view.request();
    widget.repaint();
}

void WorkArea::Impl::endDrag(QPointF place)
{
    const Drag ended = dragging;
    dragging = Drag::None;
    if (ended == Drag::RubberBand && frame()) {
        const FramePlot* plot = activePlot();
        const QRectF band =
            plot ? QRectF(inFrame(dragStart), inFrame(place)).normalized().intersected(plot->area) : QRectF();
        if (band.width() * inch > 4.0 && band.height() * inch > 4.0) {
            editor.begin("Zoom");
            editor.showRect(*frame(), *plot, band);
        }
    }
    endGesture();
}

void WorkArea::Impl::click(MouseMode_e mode, QPointF place)
{
    const FramePlot* plot = activePlot();
    if (!plot) {
        return;
    }
    const QPointF at = inFrame(place);
    std::array<double, 3> point{0.0, 0.0, 0.0};
    bool isHit = false;
    if (const auto flat = plot->dataAt(at)) {
        point = {flat->x(), flat->y(), 0.0};
        isHit = true;
    } else if (const auto surface = renderer.pick(frame()->id(), at)) {
        point = *surface;
        isHit = true;
    }
    Q_EMIT widget.clickedInMode(mode, frame()->id(), point[0], point[1], point[2], isHit);
}

bool WorkArea::event(QEvent* event)
{
    // Whoever takes the mouse away in the middle of a drag ends the drag.
    if (event->type() == QEvent::UngrabMouse || event->type() == QEvent::Hide ||
        event->type() == QEvent::WindowDeactivate) {
        m_impl->dragging = Impl::Drag::None;
        m_impl->endGesture();
    }
    return QWidget::event(event);
}

void WorkArea::Impl::paintPaper(QPainter& painter, const kernel::Page& page)
{
    painter.fillRect(widget.rect(), deskColor);
    painter.save();
    painter.translate(origin);
    const PaperStyle style = paperStyle(page);
    if (style.isShown) {
        const QRectF paper(QPointF(), style.size * inch);
        painter.fillRect(paper.translated(3.0, 3.0), QColor(0, 0, 0, 45));
        painter.fillRect(paper, style.color);
        if (style.hasGrid) {
            PaperGrid(style.gridSpacing).paint(painter, paper, inch);
        }
    }
    renderer.paintFrames(painter, page, inch);
    if (frame() && page.frames.size() > 1) {
        const QRectF active = renderer.frameRect(*frame());
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(activeColor, 2.0));
        painter.drawRect(QRectF(active.topLeft() * inch, active.size() * inch));
    }
    painter.restore();
    if (style.hasRuler) {
        PaperRuler(style.rulerSpacing).paint(painter, widget.rect(), origin, inch);
    }
}

void WorkArea::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    const kernel::Page* page = m_impl->page();
    if (!page) {
        painter.fillRect(rect(), deskColor);
        return;
    }
    const KeptView::Place place{size(), devicePixelRatioF(), m_impl->origin, m_impl->inch, page->id};
    m_impl->view.paint(painter, place, m_impl->renderer.settings().redrawsAlways,
                       [&](QPainter& onto) { m_impl->paintPaper(onto, *page); });
    if (m_impl->dragging == Impl::Drag::RubberBand) {
        const QRectF band = QRectF(m_impl->dragStart, m_impl->dragLast).normalized();
        painter.setPen(QPen(activeColor, 1.0, Qt::DashLine));
        painter.setBrush(QColor(activeColor.red(), activeColor.green(), activeColor.blue(), 30));
        painter.drawRect(band);
    }
}

void WorkArea::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (m_impl->isFitted) {
        fitPaper();
    }
}

void WorkArea::mousePressEvent(QMouseEvent* event)
{
    const MouseMode_e mode = m_impl->kernel.mouseModes().current();
    m_impl->activate(event->position());
    if (event->button() == Qt::MiddleButton) {
        m_impl->startDrag(MouseMode_Translate, event->position());
    } else if (event->button() == Qt::LeftButton) {
        const bool isOwn = mode == MouseMode_Selector || mode == MouseMode_Zoom || mode == MouseMode_Translate ||
                           mode == MouseMode_Rotate;
        if (isOwn) {
            m_impl->startDrag(mode, event->position());
        } else if (m_impl->frame() && frameAt(event->position()) != 0) {
            m_impl->click(mode, event->position());
        }
    }
}

void WorkArea::mouseMoveEvent(QMouseEvent* event)
{
    const QPointF place = event->position();
    m_impl->drag(place);
    const long id = frameAt(place);
    const kernel::Frame* frame = id ? m_impl->kernel.document().frameById(id) : nullptr;
    const FramePlot* plot = frame ? m_impl->renderer.plot(id) : nullptr;
    const QPointF inFrame = frame ? toPaper(place) - m_impl->renderer.frameRect(*frame).topLeft() : QPointF();
    Q_EMIT coordinatesChanged(coordinatesText(plot, inFrame, toPaper(place)));
}

void WorkArea::mouseReleaseEvent(QMouseEvent* event)
{
    if (m_impl->dragging != Impl::Drag::None || m_impl->editor.isEditing()) {
        m_impl->endDrag(event->position());
    }
}

void WorkArea::mouseDoubleClickEvent(QMouseEvent* event)
{
    const long id = frameAt(event->position());
    if (event->button() != Qt::LeftButton || id == 0) {
        fitPaper();
    } else if (m_impl->kernel.mouseModes().current() == MouseMode_Selector) {
        Q_EMIT frameActivated(id);
    } else {
        fitPlot();
    }
}

void WorkArea::wheelEvent(QWheelEvent* event)
{
    const double notches = event->angleDelta().y() / 120.0;
    const QPointF place = event->position();
    const long id = frameAt(place);
    event->accept();
    if (notches == 0.0) {
        return;
    }
    const FramePlot* plot = id ? m_impl->renderer.plot(id) : nullptr;
    if ((event->modifiers() & Qt::ControlModifier) || !plot || !(plot->camera || plot->x)) {
        m_impl->zoomPaper(std::pow(zoomPerNotch, notches), place);
        return;
    }
    m_impl->activate(place);
    m_impl->editor.begin("Zoom");
    m_impl->renderer.setMoving(true);
    m_impl->editor.magnify(*m_impl->frame(), *plot, std::pow(zoomPerNotch, notches), m_impl->inFrame(place));
    m_impl->wheelTimer.start(wheelPause);
    m_impl->view.request();
    repaint();
}

void WorkArea::leaveEvent(QEvent* event)
{
    QWidget::leaveEvent(event);
    Q_EMIT coordinatesChanged(QString());
}

void WorkArea::keyPressEvent(QKeyEvent* event)
{
    m_impl->endGesture();
    QWidget::keyPressEvent(event);
}

} // namespace vantrix::view
