#include "view/FramePainter.h"

#include "kernel/DataError.h"
#include "kernel/DataSet.h"
#include "view/AxisBoxPainter.h"
#include "view/AxisPainter.h"
#include "view/GeometryPainter.h"
#include "view/LinePlot.h"
#include "view/PlotLegends.h"
#include "view/PlotMeasures.h"
#include "view/PolarAxisPainter.h"
#include "view/TextPainter.h"

#include <algorithm>
#include <chrono>
#include <cmath>
#include <new>

namespace vantrix::view {
namespace {

constexpr int smoothSamples = 8;
constexpr int sortedSurfaces = 8; /* translucent ones behind each other; more take longer */
constexpr int mostSurfaces = 64;

/* Whether the frame's plot draws anything of a field. */
bool hasField(const PlotStyle& style)
{
    return (style.type == PlotType_Cartesian2D || style.type == PlotType_Cartesian3D) && !style.zones.empty();
}

} // namespace

FramePainter::FramePainter(OffscreenWindow& window)
    : m_window(window)
    , m_scene(window)
{}

FramePainter::~FramePainter() = default;

void FramePainter::show(PlotStyle style, std::shared_ptr<const kernel::DataSet> dataSet)
{
    if (m_revision == 0 || style != m_plot.style || dataSet != m_dataSet) {
        ++m_revision;
    }
    m_plot.style = std::move(style);
    m_dataSet = std::move(dataSet);
}

void FramePainter::setStreamtraces(std::shared_ptr<const kernel::TracedStreamtraces> traced)
{
    if (traced != m_traced) {
        m_traced = std::move(traced);
        ++m_revision;
    }
}

void FramePainter::setObjects(const kernel::ObjectList<kernel::Geometry>& geometries,
                              const kernel::ObjectList<kernel::Text>& texts)
{
    if (geometries != m_geometries || texts != m_texts) {
        m_geometries = geometries;
        m_texts = texts;
        ++m_objectChanges;
    }
}

QRectF FramePainter::extent(const QRectF& rect) const
{
    const FrameStyle& style = m_plot.style.frame;
    const double outside = style.hasBorder ? 0.5 * style.borderThickness / 100.0 * rect.height() + 1.0 : 0.0;
    return rect.adjusted(-outside, -outside, outside, outside);
}

void FramePainter::paint(QPainter& onto, double inch, TextEdges edges, const QRectF& rect, const PaintRequest& request)
{
    const Canvas canvas(onto, inch, edges, &m_plot.hits);
    m_plot.hits.begin(onto.transform().inverted() * QTransform::fromTranslate(-rect.left(), -rect.top()) *
                      QTransform::fromScale(1.0 / inch, 1.0 / inch));
    m_request = request;
    m_isApproximate = mayApproximate(request);
    m_rect = rect;
    m_frameHeight = rect.height();
    m_plot.frameSize = rect.size() / canvas.inch;
    m_plot.area = {};
    m_plot.x.reset();
    m_plot.y.reset();
    m_plot.camera.reset();
    m_plot.polar.reset();
    m_plot.moreScales.clear();

    const FrameStyle& style = m_plot.style.frame;
    QPainter& painter = canvas.painter;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing);
    if (!style.isTransparent) {
        painter.fillRect(rect, style.background);
    }
    painter.save();
    painter.setClipRect(rect, Qt::IntersectClip);
    const QPen border = canvas.pen(Qt::black, style.borderThickness / 100.0 * rect.height() / canvas.inch);
    const double covered =
        style.hasBorder ? std::min(0.5 * border.widthF(), 0.25 * std::min(rect.width(), rect.height())) : 0.0;
    QRectF inside = rect.adjusted(covered, covered, -covered, -covered);
    if (style.hasHeader) {
        const QRectF header(inside.topLeft(), QSizeF(inside.width(), std::min(0.2 * canvas.inch, 0.2 * rect.height())));
        paintHeader(canvas, header);
        inside.setTop(header.bottom());
    }
    try {
        paintPlot(canvas, inside);
    } catch (const kernel::DataError& error) {
        paintNotice(canvas, inside, QString::fromStdString(error.what()));
    } catch (const std::bad_alloc&) {
        paintNotice(canvas, inside, QObject::tr("There is not enough memory to draw the data."));
    }
    if (hasTexts()) {
        for (const auto& geometry : m_geometries) {
            GeometryPainter(canvas, rect, m_plot, *geometry).paint();
        }
        for (const auto& text : m_texts) {
            TextPainter(canvas, rect, m_plot, *text, request.latex).paint();
        }
    }
    painter.restore();
    if (style.hasBorder) {
        painter.setPen(border);
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(canvas.aligned(rect));
    }
    painter.restore();
}

void FramePainter::paintHeader(const Canvas& canvas, const QRectF& header) const
{
    const FrameStyle& style = m_plot.style.frame;
    canvas.painter.fillRect(header, style.header);
    const bool isDark = style.header.lightnessF() < 0.55F;
    canvas.drawText(QPointF(header.left() + 0.1 * canvas.inch, header.center().y()), Qt::AlignLeft | Qt::AlignVCenter,
                    QString::fromStdString(style.name),
                    canvas.font(style.headerFont, 0.6 * header.height() / canvas.inch), isDark ? Qt::white : Qt::black);
}

void FramePainter::paintNotice(const Canvas& canvas, const QRectF& rect, const QString& text) const
{
    const PlotMeasures measures = PlotMeasures::forFrame(m_plot.frameSize);
    canvas.drawText(rect.center(), Qt::AlignCenter, text, canvas.font(measures.label), Qt::gray);
}

void FramePainter::paintPlot(const Canvas& canvas, const QRectF& inside)
{
    const PlotStyle& style = m_plot.style;
    m_plot.area = QRectF((inside.topLeft() - m_rect.topLeft()) / canvas.inch, inside.size() / canvas.inch);
    if (style.type != PlotType_Sketch && !m_dataSet) {
        return;
    }
    if (hasField(style) && !OffscreenWindow::isAvailable()) {
        paintNotice(canvas, inside, QStringLiteral("Field plots need a graphics display"));
        return;
    }
    const PlotLegends legends(canvas, frameHeightInches(canvas), style, m_traced.get());
    const QRectF room = legends.room(inside);
    switch (style.type) {
    case PlotType_Cartesian3D:
        paintThreeD(canvas, room);
        break;
    case PlotType_PolarLine:
        paintPolar(canvas, room);
        break;
    default:
        paintFlat(canvas, room);
        break;
    }
    legends.paint(m_rect, inside,
                  {m_rect.topLeft() + m_plot.area.topLeft() * canvas.inch, m_plot.area.size() * canvas.inch});
}

double FramePainter::frameHeightInches(const Canvas& canvas) const
{
    return m_frameHeight / canvas.inch;
}

QRectF FramePainter::inFrame(const Canvas& canvas, const QRectF& rect) const
{
    return {(rect.topLeft() - m_rect.topLeft()) / canvas.inch, rect.size() / canvas.inch};
}

void FramePainter::paintFlat(const Canvas& canvas, const QRectF& room)
{
    const PlotStyle& style = m_plot.style;
    AxisPainter axes(canvas, frameHeightInches(canvas), style);
    const QRectF area = axes.layOut(room, {m_rect.left(), room.top(), m_rect.width(), room.height()});
    m_plot.area = inFrame(canvas, area);
    m_plot.x = axes.xScale();
    m_plot.y = axes.yScale();
    for (const NumberedAxis& more : style.moreAxes) {
        m_plot.moreScales.push_back(
            {more.kind, more.number, more.kind == 0 ? axes.xScale(more.number) : axes.yScale(more.number)});
    }
    axes.paintBehind();
    if (style.type == PlotType_Cartesian2D) {
        paintPicture(canvas, area, [&](QSize pixels) { return scene().picture(axes.xScale(), axes.yScale(), pixels); });
    } else if (m_dataSet) {
        LinePlot(canvas, frameHeightInches(canvas), *m_dataSet, style).paint(area, {}, [&](const LineMapStyle& map) {
            return [&area, &xScale = axes.xScale(map.xAxis), &yScale = axes.yScale(map.yAxis)](double x, double y) {
                return QPointF(area.left() + xScale.fraction(x) * area.width(),
                               area.bottom() - yScale.fraction(y) * area.height());
            };
        });
    }
    axes.paintFront();
}

void FramePainter::paintPolar(const Canvas& canvas, const QRectF& room)
{
    const PlotStyle& style = m_plot.style;
    PolarAxisPainter axes(canvas, frameHeightInches(canvas), style);
    const QRectF area = axes.layOut(room, {m_rect.left(), room.top(), m_rect.width(), room.height()});
    m_plot.area = inFrame(canvas, area);
    m_plot.polar = axes.scale();
    m_plot.polarCenter = (axes.center() - m_rect.topLeft()) / canvas.inch;
    m_plot.polarRadius = axes.radius() / canvas.inch;
    axes.paintBehind();
    const QPainterPath clip = axes.clip();
    LinePlot(canvas, frameHeightInches(canvas), *m_dataSet, style)
        .paint(clip.isEmpty() ? room : room.intersected(clip.boundingRect()), clip,
               [&](const LineMapStyle&) { return [&axes](double theta, double r) { return axes.place(theta, r); }; });
    axes.paintFront();
}

void FramePainter::paintThreeD(const Canvas& canvas, const QRectF& room)
{
    const PlotStyle& style = m_plot.style;
    const QRectF area = canvas.aligned(room);
    m_plot.area = inFrame(canvas, area);
    const Box3 box = AxisBoxPainter::box(style);
    View3D view = style.view;
    for (std::size_t i = 0; i < 3; ++i) {
        view.position[i] *= style.axisScale[i];
    }
    // A plot that is fitted leaves just the room that numbers and titles need, which depends on how large it is.
    double margin = 0.02;
    m_plot.camera = Camera3D(view, box, area.width() / area.height(), margin);
    for (int round = 0; view.width <= 0.0 && round < 4; ++round) {
        const QRectF all =
            AxisBoxPainter(canvas, frameHeightInches(canvas), style, *m_plot.camera, area).bounds().united(area);
        margin += std::max({area.left() - all.left(), all.right() - area.right(), area.top() - all.top(),
                            all.bottom() - area.bottom()}) /
                  area.width();
        m_plot.camera = Camera3D(view, box, area.width() / area.height(), margin);
    }
    const AxisBoxPainter axes(canvas, frameHeightInches(canvas), style, *m_plot.camera, area);
    canvas.painter.save();
    canvas.painter.setClipRect(area, Qt::IntersectClip); // a plot that is magnified ends at its legends
    axes.paintBack();
    paintPicture(canvas, area, [&](QSize pixels) { return scene().picture(*m_plot.camera, pixels); });
    axes.paintAxes();
    canvas.painter.restore();
}

template<typename Render>
void FramePainter::paintPicture(const Canvas& canvas, const QRectF& area, Render render)
{
    if (!hasField(m_plot.style)) {
        return;
    }
    const QSizeF device = canvas.painter.deviceTransform().mapRect(area).size();
    const QSize pixels(int(std::lround(device.width())), int(std::lround(device.height())));
    const RenderSettings& settings = m_request.settings;
    const bool isExport = !m_request.isForScreen;
    const int sorted = isExport && settings.exportsSorted ? mostSurfaces : sortedSurfaces;
    // Smooth edges take longest; what moves is not looked at so closely.
    const bool isPlain = m_isApproximate || (settings.approximates && m_request.isMoving && !isExport);
    const PictureKey key{m_revision, pixels, m_isApproximate ? settings.keptPoints : 1.0,
                         hasTexts(), sorted, isPlain ? 0 : smoothSamples};
    const bool takesScreen =
        isExport && !settings.exportsAnew && !m_onScreen.image.isNull() && m_onScreen.key.isWhole(m_revision);
    const ContourLabels labels(canvas, frameHeightInches(canvas), area, m_plot.style.contourGroups);
    KeptPicture& kept = isExport && !takesScreen ? m_exported : m_onScreen;
    if (!takesScreen && (key != kept.key || kept.image.isNull())) {
        const auto begin = std::chrono::steady_clock::now();
        const FieldScene::Quality quality{key.samples, sorted, key.keptPoints};
        scene().setStreamtraces(m_traced);
        scene().update(*m_dataSet, m_plot.style, m_frameHeight * canvas.resolution(), quality);
        kept = {key, render(pixels.expandedTo({1, 1})), {}};
        if (hasTexts()) {
            kept.labels = labels.place(scene().contourLines(),
                                       [&](QPointF place, double depth) { return scene().isInFront(place, depth); });
        }
        m_paintedPoints = scene().surfacePointCount();
        ++m_renderCount;
        if (!isPlain) {
            const std::chrono::duration<double> time = std::chrono::steady_clock::now() - begin;
            m_fullTime = time.count();
        }
    }
    scene().release(settings.cache); // also when it is the setting alone that changed
    canvas.painter.setRenderHint(QPainter::SmoothPixmapTransform, kept.image.size() != pixels);
    canvas.painter.drawImage(area, kept.image);
    labels.paint(kept.labels);
}

bool FramePainter::hasTexts() const
{
    return !m_isApproximate || m_request.settings.approximatesTexts;
}

bool FramePainter::mayApproximate(const PaintRequest& request) const
{
    const RenderSettings& settings = request.settings;
    if (!request.isForScreen || !settings.approximates || settings.keptPoints >= 1.0) {
        return false;
    }
    switch (settings.approximation) {
    case PlotApproximationMode_AllAlwaysApproximated:
        return true;
    case PlotApproximationMode_NonActiveAlwaysApproximated:
        if (!request.isActive) {
            return true;
        }
        break;
    case PlotApproximationMode_Automatic:
        break;
    }
    return request.isMoving && m_fullTime > settings.longestTime;
}

FieldScene& FramePainter::scene()
{
    if (!m_isApproximate) {
        return m_scene;
    }
    if (!m_thinScene) {
        m_thinScene = std::make_unique<FieldScene>(m_window);
    }
    return *m_thinScene;
}

void FramePainter::makeScene()
{
    if (m_request.settings.cache != GraphicsCache::All) { /* not all is kept from the last picture */
        scene().setStreamtraces(m_traced);
        scene().update(*m_dataSet, m_plot.style, m_frameHeight,
                       {smoothSamples, sortedSurfaces, m_onScreen.key.keptPoints});
    }
}

std::optional<Point3> FramePainter::pick(QPointF place)
{
    if (!m_plot.camera || !m_plot.area.contains(place) || !m_dataSet) {
        return std::nullopt;
    }
    makeScene();
    const std::optional<Point3> point = scene().pick((place.x() - m_plot.area.left()) / m_plot.area.width(),
                                                     (m_plot.area.bottom() - place.y()) / m_plot.area.height());
    scene().release(m_request.settings.cache);
    return point;
}

kernel::PickedObject FramePainter::objectAt(QPointF place, double reach)
{
    constexpr kernel::PickedObject frame{.type = PickObject_Frame};
    const kernel::PickedObject marked = m_plot.hits.at(place, reach).value_or(frame);
    if (!hasField(m_plot.style) || !m_plot.area.contains(place) || !m_dataSet) {
        return marked;
    }
    makeScene();
    const double across = (place.x() - m_plot.area.left()) / m_plot.area.width();
    const double up = (m_plot.area.bottom() - place.y()) / m_plot.area.height();
    kernel::PickedObject drawn{.type = PickObject_Streamtrace};
    drawn.number = scene().streamtraceAt(across, up, reach / m_plot.area.height());
    if (drawn.number == 0) {
        drawn = {.type = PickObject_Zone, .number = scene().zoneAt(across, up)};
    }
    scene().release(m_request.settings.cache);
    return drawn.number != 0 && pickOrder(drawn) < pickOrder(marked) ? drawn : marked;
}

QPolygonF FramePainter::handles(const kernel::PickedObject& object)
{
    if (object.type != PickObject_Zone && object.type != PickObject_Streamtrace) {
        return m_plot.hits.handles(object);
    }
    QPolygonF places;
    for (const QPointF& corner : object.type == PickObject_Zone ? scene().zoneCorners(object.number)
                                                                : scene().streamtracePlaces(object.number)) {
        const QPointF place(m_plot.area.left() + corner.x() * m_plot.area.width(),
                            m_plot.area.bottom() - corner.y() * m_plot.area.height());
        if (object.type == PickObject_Zone || m_plot.area.contains(place)) {
            places << place;
        }
    }
    return places;
}

} // namespace vantrix::view
