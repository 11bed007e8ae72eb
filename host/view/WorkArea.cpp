#include "view/WorkArea.h"

#include "api/VtxUtilState.h"
#include "kernel/Document.h"
#include "kernel/Frame.h"
#include "kernel/Kernel.h"
#include "kernel/MouseModes.h"
#include "kernel/PickList.h"
#include "kernel/StateChanges.h"
#include "view/Coordinates.h"
#include "view/FramePlot.h"
#include "view/PaperGrid.h"
#include "view/PaperRuler.h"
#include "view/PaperStyle.h"
#include "view/RenderSettings.h"
#include "view/mouse/CreateFrameTool.h"
#include "view/mouse/InsertTool.h"
#include "view/mouse/MouseContext.h"
#include "view/mouse/ProbeTool.h"
#include "view/mouse/RotateTool.h"
#include "view/mouse/SelectorTool.h"
#include "view/mouse/StreamtraceTool.h"
#include "view/mouse/TextTool.h"
#include "view/mouse/TranslateTool.h"
#include "view/mouse/ZoomTool.h"

#include <QMouseEvent>
#include <QPainter>
#include <QTimer>
#include <QWheelEvent>

#include <cmath>
#include <map>
#include <utility>

namespace vantrix::view {
namespace {

constexpr double zoomPerNotch = 1.2;
constexpr int wheelPause = 350; /* milliseconds after which turning the wheel again is another step of undo */
const QColor deskColor(0xd9, 0xdd, 0xe3);

bool isModifier(int key)
{
    return key == Qt::Key_Shift || key == Qt::Key_Control || key == Qt::Key_Alt || key == Qt::Key_AltGr ||
           key == Qt::Key_Meta;
}

} // namespace

struct WorkArea::Impl : kernel::PickSurface
{
    Impl(WorkArea& owner, kernel::Kernel& kernel)
        : widget(owner)
        , context(owner, kernel)
    {
        tools[MouseMode_Selector] = std::make_unique<SelectorTool>(context);
        tools[MouseMode_Zoom] = std::make_unique<ZoomTool>(context);
        tools[MouseMode_Translate] = std::make_unique<TranslateTool>(context);
        tools[MouseMode_Rotate] = std::make_unique<RotateTool>(context);
        tools[MouseMode_CreateFrame] = std::make_unique<CreateFrameTool>(context);
        tools[MouseMode_Probe] = std::make_unique<ProbeTool>(context);
        tools[MouseMode_Streamtrace] = std::make_unique<StreamtraceTool>(context);
        tools[MouseMode_Text] = std::make_unique<TextTool>(context);
        kernel.stateChanges().addListener(&Impl::stateChanged, this);
        kernel.pickList().setSurface(this);
        wheelTimer.setSingleShot(true);
        QObject::connect(&wheelTimer, &QTimer::timeout, &owner, [this] { endGesture(); });
    }
    ~Impl() override
    {
        context.kernel.pickList().setSurface(nullptr);
        context.kernel.stateChanges().removeListener(&Impl::stateChanged, this);
    }
    Impl(const Impl&) = delete;
    Impl& operator=(const Impl&) = delete;

    static void stateChanged(VtxStateChangeHandle change, void* impl)
    {
        auto* self = static_cast<Impl*>(impl);
        self->widget.update();
        if (change->kind == StateChange_HistoryStep) { // what is dragged may be gone
            self->cancelDrag();
        }
        if (change->kind == StateChange_MouseMode) {
            self->widget.endInsert();
        }
    }

    /* On the next turn of the event loop: nothing changes while it is painted. */
    void tellTickSpacings()
    {
        const kernel::Frame* frame = context.kernel.document().activeFrame();
        const FramePlot* plot = frame ? context.renderer.plot(frame->id()) : nullptr;
        if (plot && plot->hits.tickSpacings() != tickSpacings) {
            tickSpacings = plot->hits.tickSpacings();
            QTimer::singleShot(0, &widget, [this] { context.kernel.stateChanges().send(StateChange_View); });
        }
    }

    std::optional<kernel::PickedObject> objectAt(double x, double y) const override
    {
        const double height = context.page() ? paperStyle(*context.page()).size.height() : 0.0;
        return context.objectAt(context.paper.toWidget(QPointF(x, height - y)));
    }

    MouseTool& tool() { return inserting ? *inserting : *tools.at(context.kernel.mouseModes().current()); }
    PaperStyle paperStyle(const kernel::Page& page) const { return PaperStyle::read(context.kernel.style(), page.id); }

    void press(MouseTool& tool, const QMouseEvent& event)
    {
        endGesture();
        pressed = &tool;
        tool.press(event);
    }

    void cancelDrag()
    {
        if (pressed) {
            std::exchange(pressed, nullptr)->cancel();
            widget.update();
        }
        endGesture();
    }

    void endGesture()
    {
        wheelTimer.stop();
        context.endGesture();
    }

    void paintPaper(QPainter& painter, const kernel::Page& page);
    void paintPicked(QPainter& painter) const;

    WorkArea& widget;
    MouseContext context;
    std::map<MouseMode_e, std::unique_ptr<MouseTool>> tools;
    std::unique_ptr<MouseTool> inserting; /* takes the place of the mode's tool */
    MouseTool* pressed = nullptr;         /* the one whose drag is under way */
    QTimer wheelTimer;
    HitMap::TickSpacings tickSpacings; /* of the active frame, that listeners know */
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
    return m_impl->context.renderer;
}

QSize WorkArea::sizeHint() const
{
    return {1000, 760};
}

void WorkArea::fitPaper()
{
    if (const kernel::Page* page = m_impl->context.page()) {
        const PaperStyle style = m_impl->paperStyle(*page);
        const double ruler = style.hasRuler ? PaperRuler::thickness : 0.0;
        m_impl->context.paper.fit(style.size, QRectF(rect()).adjusted(ruler, ruler, 0.0, 0.0));
        update();
    }
}

void WorkArea::redraw()
{
    m_impl->context.renderer.forgetLatexErrors();
    m_impl->context.view.request();
    update();
}

double WorkArea::zoom() const
{
    return m_impl->context.paper.inch();
}

void WorkArea::setZoom(double pixelsPerInch)
{
    m_impl->context.paper.zoom(pixelsPerInch / zoom(), QRectF(rect()).center());
    update();
}

void WorkArea::fitPlot()
{
    MouseContext& context = m_impl->context;
    if (const FramePlot* plot = context.activePlot()) {
        m_impl->endGesture();
        context.editor.begin("Fit View");
        context.editor.fit(*context.frame(), *plot);
        context.editor.end();
        context.view.request();
        update();
    }
}

QPointF WorkArea::toWidget(QPointF paper) const
{
    return m_impl->context.paper.toWidget(paper);
}

QPointF WorkArea::toPaper(QPointF widget) const
{
    return m_impl->context.paper.toPaper(widget);
}

long WorkArea::frameAt(QPointF widget) const
{
    return m_impl->context.frameAt(widget);
}

void WorkArea::beginInsert(GeomType_e type, bool hasArrowhead)
{
    endInsert();
    m_impl->inserting = std::make_unique<InsertTool>(m_impl->context, type, hasArrowhead);
    setCursor(m_impl->tool().cursor());
}

void WorkArea::endInsert()
{
    if (m_impl->pressed == m_impl->inserting.get()) {
        m_impl->pressed = nullptr;
    }
    m_impl->inserting.reset();
    setCursor(m_impl->tool().cursor());
    update();
}

bool WorkArea::event(QEvent* event)
{
    // Whoever takes the mouse away in the middle of a drag ends the drag.
    if (event->type() == QEvent::UngrabMouse || event->type() == QEvent::Hide ||
        event->type() == QEvent::WindowDeactivate) {
        m_impl->cancelDrag();
    }
    return QWidget::event(event);
}

void WorkArea::Impl::paintPaper(QPainter& painter, const kernel::Page& page)
{
    painter.fillRect(widget.rect(), deskColor);
    const double inch = context.paper.inch();
    const PaperStyle style = paperStyle(page);
    painter.save();
    painter.translate(context.paper.origin());
    if (style.isShown) {
        const QRectF sheet(QPointF(), style.size * inch);
        painter.fillRect(sheet.translated(3.0, 3.0), QColor(0, 0, 0, 45));
        painter.fillRect(sheet, style.color);
        if (style.hasGrid) {
            PaperGrid(style.gridSpacing).paint(painter, sheet, inch);
        }
    }
    context.renderer.paintFrames(painter, page, inch);
    painter.restore();
    if (context.frame() && page.frames.size() > 1) {
        painter.setBrush(Qt::NoBrush);
        painter.setPen(QPen(MouseContext::highlight, 2.0));
        painter.drawRect(context.paper.toWidget(context.renderer.frameRect(*context.frame())));
    }
    if (style.hasRuler) {
        PaperRuler(style.rulerSpacing).paint(painter, widget.rect(), context.paper.origin(), inch);
    }
}

void WorkArea::Impl::paintPicked(QPainter& painter) const
{
    painter.setPen(QPen(Qt::white, 1.0));
    painter.setBrush(MouseContext::highlight);
    for (const kernel::PickedObject& object : context.kernel.pickList().objects()) {
        for (const QPointF& place : context.handles(object)) {
            painter.drawRect(MouseContext::handleRect(place));
        }
    }
}

void WorkArea::paintEvent(QPaintEvent* /*event*/)
{
    QPainter painter(this);
    MouseContext& context = m_impl->context;
    const kernel::Page* page = context.page();
    if (!page) {
        painter.fillRect(rect(), deskColor);
        return;
    }
    const KeptView::Place place{size(), devicePixelRatioF(), context.paper.origin(), context.paper.inch(), page->id};
    context.view.paint(painter, place, context.renderer.settings().redrawsAlways,
                       [&](QPainter& onto) { m_impl->paintPaper(onto, *page); });
    m_impl->tellTickSpacings();
    m_impl->paintPicked(painter);
    (m_impl->pressed ? *m_impl->pressed : m_impl->tool()).paint(painter);
}

void WorkArea::resizeEvent(QResizeEvent* event)
{
    QWidget::resizeEvent(event);
    if (m_impl->context.paper.isFitted()) {
        fitPaper();
    }
}

void WorkArea::mousePressEvent(QMouseEvent* event)
{
    MouseTool* tool = event->button() == Qt::LeftButton     ? &m_impl->tool()
                      : event->button() == Qt::MiddleButton ? m_impl->tools[MouseMode_Translate].get()
                                                            : nullptr;
    if (tool && tool->activatesFrames()) {
        m_impl->context.activate(event->position());
    }
    if (tool) {
        m_impl->press(*tool, *event);
    }
}

void WorkArea::mouseMoveEvent(QMouseEvent* event)
{
    const QPointF place = event->position();
    if (m_impl->pressed) {
        m_impl->pressed->drag(*event);
    } else {
        m_impl->tool().hover(place);
    }
    const MouseContext& context = m_impl->context;
    const long id = frameAt(place);
    const kernel::Frame* frame = id ? context.kernel.document().frameById(id) : nullptr;
    const FramePlot* plot = frame ? context.renderer.plot(id) : nullptr;
    const QPointF inFrame = frame ? toPaper(place) - context.renderer.frameRect(*frame).topLeft() : QPointF();
    const PaperSpacing ruler =
        PaperSpacing::of(context.page() ? m_impl->paperStyle(*context.page()).rulerSpacing : PaperStyle().rulerSpacing);
    Q_EMIT coordinatesChanged(coordinatesText(plot, inFrame, toPaper(place), ruler));
}

void WorkArea::mouseReleaseEvent(QMouseEvent* event)
{
    if (m_impl->pressed) {
        std::exchange(m_impl->pressed, nullptr)->release(*event);
        m_impl->endGesture();
    }
}

void WorkArea::mouseDoubleClickEvent(QMouseEvent* event)
{
    if (event->button() == Qt::LeftButton && frameAt(event->position()) != 0) {
        m_impl->tool().doubleClick(*event);
    } else {
        fitPaper();
    }
}

void WorkArea::wheelEvent(QWheelEvent* event)
{
    MouseContext& context = m_impl->context;
    const double notches = event->angleDelta().y() / 120.0;
    const QPointF place = event->position();
    event->accept();
    if (notches == 0.0) {
        return;
    }
    const double factor = std::pow(zoomPerNotch, notches);
    const long id = frameAt(place);
    const FramePlot* plot = id ? context.renderer.plot(id) : nullptr;
    if ((event->modifiers() & Qt::ControlModifier) || !plot || !plot->hasView()) {
        context.paper.zoom(factor, place);
        update();
        return;
    }
    context.activate(place);
    context.editor.begin("Zoom");
    context.renderer.setMoving(true);
    context.editor.magnify(*context.frame(), *plot, factor, context.inFrame(place));
    m_impl->wheelTimer.start(wheelPause);
    context.showMove();
}

void WorkArea::leaveEvent(QEvent* event)
{
    QWidget::leaveEvent(event);
    Q_EMIT coordinatesChanged(QString());
}

void WorkArea::keyPressEvent(QKeyEvent* event)
{
    if (isModifier(event->key())) { // says how to drag
        QWidget::keyPressEvent(event);
        return;
    }
    const bool takesBack = m_impl->pressed && event->key() == Qt::Key_Escape;
    if (takesBack && m_impl->context.editor.isEditing()) {
        VtxUtilLockRollBack();
    }
    m_impl->cancelDrag();
    if (takesBack && !m_impl->inserting) {
        return;
    }
    if (!m_impl->tool().keyPress(*event)) {
        QWidget::keyPressEvent(event);
    }
}

} // namespace vantrix::view
