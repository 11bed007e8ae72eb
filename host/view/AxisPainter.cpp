#include "view/AxisPainter.h"

#include <QMarginsF>

#include <algorithm>
#include <cmath>

namespace vantrix::view {

PlotMeasures PlotMeasures::forFrame(QSizeF inches)
{
    const double size = std::clamp(std::min(inches.width(), inches.height() * 1.1), 0.5, 20.0);
    const double label = std::clamp(0.021 * size, 0.055, 0.3);
    return {label, label * 1.15, label * 0.5, label * 0.45, label * 0.07};
}

QColor faint(const QColor& color)
{
    QColor result = color;
    result.setAlphaF(0.16F);
    return result;
}

AxisPainter::AxisPainter(const Canvas& canvas, const PlotMeasures& measures, const AxisStyle& x, const AxisStyle& y)
    : m_canvas(canvas)
    , m_measures(measures)
    , m_styles{x, y}
    , m_scales{AxisScale(x.minimum, x.maximum, x.isLogarithmic, x.isReversed),
               AxisScale(y.minimum, y.maximum, y.isLogarithmic, y.isReversed)}
    , m_labelFonts{canvas.font(measures.label * x.labelScale), canvas.font(measures.label * y.labelScale)}
    , m_titleFonts{canvas.font(measures.title * x.titleScale), canvas.font(measures.title * y.titleScale)}
{}

AxisTicks AxisPainter::ticks(std::size_t axis, const QRectF& area) const
{
    const double labelHeight = m_canvas.textSize(QStringLiteral("0"), m_labelFonts[axis]).height();
    TickRequest request;
    request.length = std::max(1.0, axis == 0 ? area.width() : area.height());
    request.minimumDistance = labelHeight * (axis == 0 ? 3.5 : 2.2);
    request.labelExtent = [&, axis](const std::string& label) {
        const QSizeF size = m_canvas.textSize(QString::fromStdString(label), m_labelFonts[axis]);
        return axis == 0 ? size.width() + 1.2 * labelHeight : size.height() * 1.3;
    };
    request.spacing = m_styles[axis].spacing;
    request.anchor = m_styles[axis].anchor;
    request.minorCount = m_styles[axis].minorTicks;
    return AxisTicks::make(m_scales[axis], request);
}

double AxisPainter::labelWidth(std::size_t axis, const AxisTicks& ticks) const
{
    double width = 0.0;
    for (const Tick& tick : ticks.major) {
        width = std::max(width, m_canvas.textSize(QString::fromStdString(tick.label), m_labelFonts[axis]).width());
    }
    return width;
}

QMarginsF AxisPainter::margins(const QRectF& area) const
{
    const double inch = m_canvas.inch;
    const double labelHeight = m_canvas.textSize(QStringLiteral("0"), m_labelFonts[0]).height();
    const double edge = 1.5 * m_measures.gap * inch;
    const double outside = (m_measures.tick + m_measures.gap) * inch;
    QMarginsF result(edge, edge, edge, edge);
    if (m_styles[0].isShown) {
        result.setBottom(edge + outside + labelHeight);
        if (!m_styles[0].title.empty()) {
            result.setBottom(result.bottom() + 0.5 * m_measures.gap * inch +
                             m_canvas.textSize(QStringLiteral("X"), m_titleFonts[0]).height());
        }
        // The last number reaches beyond the end of its axis.
        for (const Tick& tick : ticks(0, area).major) {
            const double half = 0.5 * m_canvas.textSize(QString::fromStdString(tick.label), m_labelFonts[0]).width();
            result.setRight(std::max(result.right(), edge + half - (1.0 - tick.fraction) * area.width()));
            result.setLeft(std::max(result.left(), edge + half - tick.fraction * area.width()));
        }
    }
    if (m_styles[1].isShown) {
        double left = edge + outside + labelWidth(1, ticks(1, area));
        if (!m_styles[1].title.empty()) {
            left += m_measures.gap * inch + m_canvas.textSize(QStringLiteral("X"), m_titleFonts[1]).height();
        }
        result.setLeft(std::max(result.left(), left));
        result.setTop(std::max(result.top(), edge + 0.5 * labelHeight));
    }
    return result;
}

QRectF AxisPainter::plotArea(const QRectF& room, const QRectF& viewport, double ratio) const
{
    // Which numbers there are depends on the length of the axis, and its length on the room for the numbers.
    QRectF area = room.intersected(viewport);
    for (int round = 0; round < 2; ++round) {
        area = room.marginsRemoved(margins(area.isValid() ? area : room)).intersected(viewport);
    }
    if (area.width() < 1.0 || area.height() < 1.0) {
        return {room.center(), QSizeF(1.0, 1.0)};
    }
    if (ratio > 0.0) {
        const double width = std::min(area.width(), area.height() / ratio);
        const QSizeF size(std::max(1.0, width), std::max(1.0, width * ratio));
        area = QRectF(area.center() - QPointF(0.5 * size.width(), 0.5 * size.height()), size);
    }
    return area;
}

void AxisPainter::paintGrid(const QRectF& area) const
{
    for (std::size_t axis = 0; axis < 2; ++axis) {
        if (!m_styles[axis].hasGridLines) {
            continue;
        }
        m_canvas.painter.setPen(m_canvas.pen(faint(m_styles[axis].gridColor), m_measures.line * 0.8));
        for (const Tick& tick : ticks(axis, area).major) {
            if (axis == 0) {
                const double x = area.left() + tick.fraction * area.width();
                m_canvas.painter.drawLine(QPointF(x, area.top()), QPointF(x, area.bottom()));
            } else {
                const double y = area.bottom() - tick.fraction * area.height();
                m_canvas.painter.drawLine(QPointF(area.left(), y), QPointF(area.right(), y));
            }
        }
    }
}

void AxisPainter::paintAxes(const QRectF& area) const
{
    QPainter& painter = m_canvas.painter;
    const double tick = m_measures.tick * m_canvas.inch;
    const double gap = m_measures.gap * m_canvas.inch;
    const double labelHeight = m_canvas.textSize(QStringLiteral("0"), m_labelFonts[0]).height();
    const double titleHeight = m_canvas.textSize(QStringLiteral("X"), m_titleFonts[1]).height();
    const AxisStyle& x = m_styles[0];
    const AxisStyle& y = m_styles[1];
    if (x.isShown && y.isShown) {
        painter.setPen(m_canvas.pen(x.lineColor, m_measures.line));
        painter.setBrush(Qt::NoBrush);
        painter.drawRect(area);
    }
    if (x.isShown) {
        painter.setPen(m_canvas.pen(x.lineColor, m_measures.line * 1.4));
        painter.drawLine(area.bottomLeft(), area.bottomRight());
        const AxisTicks marks = ticks(0, area);
        for (const auto* set : {&marks.minor, &marks.major}) {
            for (const Tick& mark : *set) {
                const double place = area.left() + mark.fraction * area.width();
                const double length = mark.label.empty() ? 0.55 * tick : tick;
                painter.setPen(m_canvas.pen(x.lineColor, m_measures.line));
                painter.drawLine(QPointF(place, area.bottom()), QPointF(place, area.bottom() + length));
                if (!mark.label.empty()) {
                    m_canvas.drawText({place, area.bottom() + tick + 0.6 * gap}, Qt::AlignHCenter | Qt::AlignTop,
                                      QString::fromStdString(mark.label), m_labelFonts[0], x.labelColor);
                }
            }
        }
        m_canvas.drawText({area.center().x(), area.bottom() + tick + gap + labelHeight + 0.5 * gap},
                          Qt::AlignHCenter | Qt::AlignTop, QString::fromStdString(x.title), m_titleFonts[0],
                          x.titleColor);
    }
    if (y.isShown) {
        painter.setPen(m_canvas.pen(y.lineColor, m_measures.line * 1.4));
        painter.drawLine(area.bottomLeft(), area.topLeft());
        const AxisTicks marks = ticks(1, area);
        for (const auto* set : {&marks.minor, &marks.major}) {
            for (const Tick& mark : *set) {
                const double place = area.bottom() - mark.fraction * area.height();
                const double length = mark.label.empty() ? 0.55 * tick : tick;
                painter.setPen(m_canvas.pen(y.lineColor, m_measures.line));
                painter.drawLine(QPointF(area.left(), place), QPointF(area.left() - length, place));
                if (!mark.label.empty()) {
                    m_canvas.drawText({area.left() - tick - 0.6 * gap, place}, Qt::AlignRight | Qt::AlignVCenter,
                                      QString::fromStdString(mark.label), m_labelFonts[1], y.labelColor);
                }
            }
        }
        const double offset = tick + 0.6 * gap + labelWidth(1, marks) + gap + 0.5 * titleHeight;
        m_canvas.drawTurnedText({area.left() - offset, area.center().y()}, 90.0, QString::fromStdString(y.title),
                                m_titleFonts[1], y.titleColor);
    }
}

} // namespace vantrix::view
