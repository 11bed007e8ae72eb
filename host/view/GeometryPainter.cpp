#include "view/GeometryPainter.h"

#include "view/ColorMap.h"
#include "view/LinePattern.h"
#include "view/ObjectPlace.h"

#include <QLineF>
#include <QPainterPath>

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

std::optional<QPointF> GeometryPainter::place(double x, double y, double z) const
{
    const auto inches = objectPlace(m_plot, m_frame.size() / m_canvas.inch, m_geometry.coordSys,
                                    {m_geometry.x + x, m_geometry.y + y, m_geometry.z + z});
    return inches ? std::optional(m_frame.topLeft() + *inches * m_canvas.inch) : std::nullopt;
}

double GeometryPainter::ofFrameHeight(double percent) const
{
    return percent / 100.0 * m_frame.height() / m_canvas.inch;
}

std::vector<QPolygonF> GeometryPainter::lines() const
{
    std::vector<QPolygonF> found;
    for (const auto& line : kernel::parseGeometryPoints(m_geometry.points)) {
        QPolygonF polygon;
        for (const kernel::GeometryPoint& point : line) {
            if (const auto at = place(point[0], point[1], point[2])) {
                polygon << *at;
            }
        }
        if (polygon.size() > 1) {
            found.push_back(std::move(polygon));
        }
    }
    return found;
}

std::optional<QRectF> GeometryPainter::rect() const
{
    const bool isRound = m_geometry.type == GeomType_Circle || m_geometry.type == GeomType_Ellipse;
    const bool isSquare = kernel::isAsHighAsWide(m_geometry.type);
    const double before = isRound ? -0.5 : 0.0; /* of the size: the part left of and below the place */
    const double height = isSquare ? 0.0 : m_geometry.height;
    const auto from = place(before * m_geometry.width, before * height);
    const auto to = place((1.0 + before) * m_geometry.width, (1.0 + before) * height);
    if (!from || !to) {
        return std::nullopt;
    }
    QRectF found = QRectF(*from, *to).normalized();
    if (isSquare) {
        const double middle = found.center().y();
        found.setTop(isRound ? middle - 0.5 * found.width() : middle - found.width());
        found.setHeight(found.width());
    }
    return found;
}

std::vector<QPolygonF> GeometryPainter::outlines() const
{
    if (m_geometry.type == GeomType_Line) {
        return lines();
    }
    const auto area = rect();
    if (!area) {
        return {};
    }
    QPainterPath path;
    if (m_geometry.type == GeomType_Circle || m_geometry.type == GeomType_Ellipse) {
        path.addEllipse(*area);
    } else {
        path.addRect(*area);
    }
    return {path.toFillPolygon()};
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
