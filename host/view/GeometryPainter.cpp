#include "view/GeometryPainter.h"

#include "view/ColorMap.h"
#include "view/GeometryShape.h"
#include "view/LinePattern.h"

#include <QLineF>
#include <QTransform>

#include <cmath>

namespace vantrix::view {

using kernel::Geometry;

GeometryPainter::GeometryPainter(const Canvas& canvas, const QRectF& frame, const FramePlot& plot,
                                 const Geometry& geometry)
    : m_canvas(canvas)
    , m_frame(frame)
    , m_plot(plot)
    , m_geometry(geometry)
{}

double GeometryPainter::ofFrameHeight(double percent) const
{
    return percent / 100.0 * m_frame.height() / m_canvas.inch;
}

std::vector<QPolygonF> GeometryPainter::outlines() const
{
    std::vector<QPolygonF> found = GeometryShape(m_plot, m_frame.size() / m_canvas.inch, m_geometry).outlines();
    const QTransform onCanvas = QTransform(m_canvas.inch, 0.0, 0.0, m_canvas.inch, m_frame.left(), m_frame.top());
    for (QPolygonF& outline : found) {
        outline = onCanvas.map(outline);
    }
    return found;
}

QPointF GeometryPainter::arrowBase(QPointF tip, QPointF from) const
{
    QLineF back(tip, from);
    back.setLength(std::min(back.length(), ofFrameHeight(m_geometry.arrowheadSize) * m_canvas.inch));
    return back.p2();
}

void GeometryPainter::paintArrowhead(QPointF tip, QPointF from) const
{
    const QPointF back = arrowBase(tip, from) - tip;
    const double half = std::tan(m_geometry.arrowheadAngle * M_PI / 180.0);
    const QPointF across = QPointF(-back.y(), back.x()) * std::min(half, 4.0);
    const QPolygonF edges{tip + back + across, tip, tip + back - across};
    QPainter& painter = m_canvas.painter;
    painter.save();
    painter.setPen(patternPen(m_canvas, indexedColor(m_geometry.color), ofFrameHeight(m_geometry.lineThickness),
                              LinePattern_Solid, 1.0));
    if (m_geometry.arrowheadStyle == ArrowheadStyle_Plain) {
        painter.setBrush(Qt::NoBrush);
        painter.drawPolyline(edges);
    } else {
        painter.setBrush(m_geometry.arrowheadStyle == ArrowheadStyle_Filled ? QBrush(indexedColor(m_geometry.color))
                                                                            : QBrush(m_plot.style.frame.background));
        painter.drawPolygon(edges);
    }
    painter.restore();
}

void GeometryPainter::paintLine(QPolygonF line) const
{
    const QPolygonF whole = line;
    const bool hasFirst = m_geometry.arrowheadAttachment & ArrowheadAttachment_Beginning;
    const bool hasLast = m_geometry.arrowheadAttachment & ArrowheadAttachment_End;
    if (m_geometry.isFilled) {
        m_canvas.painter.save();
        m_canvas.painter.setPen(Qt::NoPen);
        m_canvas.painter.drawPolygon(whole);
        m_canvas.painter.restore();
    }
    if (m_geometry.arrowheadStyle != ArrowheadStyle_Plain) { // the tip stays sharp
        if (hasFirst) {
            line.first() = arrowBase(whole[0], whole[1]);
        }
        if (hasLast) {
            line.last() = arrowBase(whole.last(), whole[whole.size() - 2]);
        }
    }
    m_canvas.painter.drawPolyline(line);
    if (hasFirst) {
        paintArrowhead(whole[0], whole[1]);
    }
    if (hasLast) {
        paintArrowhead(whole.last(), whole[whole.size() - 2]);
    }
}

void GeometryPainter::paint() const
{
    QPainter& painter = m_canvas.painter;
    const kernel::PickedObject object{.type = PickObject_Geometry, .number = m_geometry.handle};
    painter.save();
    if (m_geometry.isClipped) {
        painter.setClipRect(
            {m_frame.topLeft() + m_plot.area.topLeft() * m_canvas.inch, m_plot.area.size() * m_canvas.inch},
            Qt::IntersectClip);
    }
    painter.setPen(patternPen(m_canvas, indexedColor(m_geometry.color), ofFrameHeight(m_geometry.lineThickness),
                              m_geometry.linePattern, ofFrameHeight(m_geometry.patternLength)));
    painter.setBrush(m_geometry.isFilled ? QBrush(indexedColor(m_geometry.fillColor)) : QBrush());
    for (const QPolygonF& outline : outlines()) {
        if (m_geometry.type == GeomType_Line) {
            paintLine(outline);
        } else {
            painter.drawPolygon(outline);
        }
        if (m_geometry.isFilled) {
            m_canvas.markArea(object, outline);
        }
        m_canvas.markLine(object, outline);
    }
    painter.restore();
}

} // namespace vantrix::view
