#include "view/LinePlot.h"

#include "kernel/DataSet.h"

#include <QPolygonF>

#include <algorithm>
#include <cmath>

namespace vantrix::view {
namespace {

QPen curvePen(const Canvas& canvas, const LineMapStyle& map, double frameHeight)
{
    QPen pen = canvas.pen(map.color, map.thickness / 100.0 * frameHeight);
    pen.setCapStyle(Qt::RoundCap);
    pen.setJoinStyle(Qt::RoundJoin);
    switch (map.pattern) {
    case LinePattern_Dashed:
        pen.setStyle(Qt::DashLine);
        break;
    case LinePattern_DashDot:
        pen.setStyle(Qt::DashDotLine);
        break;
    case LinePattern_Dotted:
        pen.setStyle(Qt::DotLine);
        break;
    case LinePattern_LongDash:
        pen.setDashPattern({8.0, 4.0});
        break;
    case LinePattern_DashDotDot:
        pen.setStyle(Qt::DashDotDotLine);
        break;
    case LinePattern_Solid:
        break;
    }
    return pen;
}

} // namespace

void LinePlot::paintCurves(const Canvas& canvas, const QRectF& area, const AxisScale& x, const AxisScale& y,
                           double frameHeight) const
{
    QPainter& painter = canvas.painter;
    painter.save();
    painter.setClipRect(area, Qt::IntersectClip);
    painter.setBrush(Qt::NoBrush);
    for (const LineMapStyle& map : m_style.lineMaps) {
        const kernel::FieldArray* xField = m_dataSet.field(map.zone, map.xVariable);
        const kernel::FieldArray* yField = m_dataSet.field(map.zone, map.yVariable);
        const auto xs = xField ? xField->load() : nullptr;
        const auto ys = yField ? yField->load() : nullptr;
        if (!xs || !ys || !map.hasLines) {
            continue;
        }
        painter.setPen(curvePen(canvas, map, frameHeight));
        QPolygonF curve;
        const auto finish = [&] {
            painter.drawPolyline(curve);
            curve.clear();
        };
        const vtkIdType count = std::min(xs->GetNumberOfTuples(), ys->GetNumberOfTuples());
        for (vtkIdType i = 0; i < count; ++i) {
            const double across = x.fraction(xs->GetComponent(i, 0));
            const double up = y.fraction(ys->GetComponent(i, 0));
            if (!std::isfinite(across) || !std::isfinite(up)) {
                finish(); // a gap where a value is missing or has no logarithm
                continue;
            }
            // Far outside of the area the painter would lose precision.
            curve << QPointF(area.left() + std::clamp(across, -100.0, 100.0) * area.width(),
                             area.bottom() - std::clamp(up, -100.0, 100.0) * area.height());
        }
        finish();
    }
    painter.restore();
}

double LinePlot::legendWidth(const Canvas& canvas, const PlotMeasures& measures) const
{
    if (m_style.lineMaps.size() < 2) {
        return 0.0;
    }
    const QFont font = canvas.font(measures.label);
    double widest = 0.0;
    for (const LineMapStyle& map : m_style.lineMaps) {
        widest = std::max(widest, canvas.textSize(QString::fromStdString(map.name), font).width());
    }
    return widest + 3.0 * measures.label * canvas.inch;
}

void LinePlot::paintLegend(const Canvas& canvas, const PlotMeasures& measures, const QRectF& column) const
{
    const QFont font = canvas.font(measures.label);
    const double height = canvas.textSize(QStringLiteral("X"), font).height() * 1.25;
    double y = column.top() + 0.5 * height;
    for (const LineMapStyle& map : m_style.lineMaps) {
        if (y + 0.5 * height > column.bottom()) {
            break;
        }
        canvas.painter.setPen(curvePen(canvas, map, 40.0 * measures.label));
        canvas.painter.drawLine(QPointF(column.left(), y),
                                QPointF(column.left() + 2.0 * measures.label * canvas.inch, y));
        canvas.drawText({column.left() + 2.6 * measures.label * canvas.inch, y}, Qt::AlignLeft | Qt::AlignVCenter,
                        QString::fromStdString(map.name), font, Qt::black);
        y += height;
    }
}

} // namespace vantrix::view
