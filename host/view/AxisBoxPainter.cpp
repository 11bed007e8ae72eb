#include "view/AxisBoxPainter.h"

#include <algorithm>
#include <cmath>

namespace vantrix::view {
namespace {

double length(QPointF vector)
{
    return std::hypot(vector.x(), vector.y());
}

AxisScale scaleOf(const AxisStyle& axis)
{
    return {axis.minimum, axis.maximum, false, false};
}

/* How far a box of that size reaches from its middle in a direction. */
double reach(QSizeF size, QPointF direction)
{
    return 0.5 * (std::abs(direction.x()) * size.width() + std::abs(direction.y()) * size.height());
}

} // namespace

AxisBoxPainter::AxisBoxPainter(const Canvas& canvas, const PlotMeasures& measures, const std::array<AxisStyle, 3>& axes,
                               const Camera3D& camera, const std::array<double, 3>& scale, const QRectF& picture)
    : m_canvas(canvas)
    , m_measures(measures)
    , m_axes(axes)
    , m_scales{scaleOf(axes[0]), scaleOf(axes[1]), scaleOf(axes[2])}
    , m_camera(camera)
    , m_picture(picture)
{
    for (std::size_t i = 0; i < 3; ++i) {
        m_box.minimum[i] = m_scales[i].minimum() * scale[i];
        m_box.maximum[i] = m_scales[i].maximum() * scale[i];
        m_labelFonts[i] = canvas.font(measures.label * axes[i].labelScale);
        m_titleFonts[i] = canvas.font(measures.title * axes[i].titleScale);
    }
}

QPointF AxisBoxPainter::place(const Point3& world) const
{
    const QPointF point = m_camera.project(world);
    return m_picture.center() + QPointF(point.x(), -point.y()) * m_picture.width();
}

bool AxisBoxPainter::isFacing(std::size_t axis, bool atMaximum) const
{
    const double component = m_camera.toward()[axis];
    return atMaximum ? component > 1e-9 : component < -1e-9;
}

AxisBoxPainter::Edge AxisBoxPainter::edge(std::size_t axis) const
{
    const std::size_t first = (axis + 1) % 3;
    const std::size_t second = (axis + 2) % 3;
    const QPointF middle = place(m_box.center());
    Edge best;
    double bestRank = 0.0;
    for (int number = 0; number < 8; ++number) {
        const bool atFirst = number & (1 << first);
        const bool atSecond = number & (1 << second);
        if ((number & (1 << axis)) || isFacing(first, atFirst) == isFacing(second, atSecond)) {
            continue;
        }
        const QPointF from = place(m_box.corner(number));
        const QPointF to = place(m_box.corner(number | (1 << axis)));
        const QPointF along = to - from;
        if (length(along) < 6.0 * m_measures.label * m_canvas.inch) {
            continue;
        }
        QPointF outward = QPointF(-along.y(), along.x()) / length(along);
        if (QPointF::dotProduct(outward, 0.5 * (from + to) - middle) < 0.0) {
            outward = -outward;
        }
        // X and Y belong at the bottom of the picture, Z at its left.
        const double rank = axis == 2 ? -0.5 * (from.x() + to.x()) : 0.5 * (from.y() + to.y());
        if (!best.isUsable || rank > bestRank) {
            best = {from, to, outward, number, true};
            bestRank = rank;
        }
    }
    return best;
}

AxisTicks AxisBoxPainter::ticks(std::size_t axis, const Edge& edge) const
{
    const QPointF along = edge.to - edge.from;
    const double size = length(along);
    const QPointF direction = along / size;
    const double height = m_canvas.textSize(QStringLiteral("0"), m_labelFonts[axis]).height();
    TickRequest request;
    request.length = size;
    request.minimumDistance = 3.0 * height;
    request.labelExtent = [&](const std::string& label) {
        // Two boxes clear each other when they are apart across or up.
        const QSizeF box = m_canvas.textSize(QString::fromStdString(label), m_labelFonts[axis]);
        const double across =
            std::abs(direction.x()) > 1e-6 ? (box.width() + 0.8 * height) / std::abs(direction.x()) : 1e9;
        const double up = std::abs(direction.y()) > 1e-6 ? 1.15 * box.height() / std::abs(direction.y()) : 1e9;
        return std::min(across, up);
    };
    request.spacing = m_axes[axis].spacing;
    request.anchor = m_axes[axis].anchor;
    request.minorCount = m_axes[axis].minorTicks;
    return AxisTicks::make(m_scales[axis], request);
}

void AxisBoxPainter::paintBack() const
{
    QPainter& painter = m_canvas.painter;
    for (std::size_t normal = 0; normal < 3; ++normal) {
        const bool atMaximum = isFacing(normal, false);
        if (!atMaximum && !isFacing(normal, true)) {
            continue; // seen edge on
        }
        const double side = atMaximum ? m_box.maximum[normal] : m_box.minimum[normal];
        const std::size_t first = (normal + 1) % 3;
        const std::size_t second = (normal + 2) % 3;
        const auto point = [&](double a, double b) {
            Point3 world{};
            world[normal] = side;
            world[first] = a;
            world[second] = b;
            return place(world);
        };
        const std::array<QPointF, 4> corners{
            point(m_box.minimum[first], m_box.minimum[second]), point(m_box.maximum[first], m_box.minimum[second]),
            point(m_box.maximum[first], m_box.maximum[second]), point(m_box.minimum[first], m_box.maximum[second])};
        const QColor color = faint(m_axes[first].lineColor);
        if (!m_axes[first].isShown && !m_axes[second].isShown) {
            continue;
        }
        painter.setBrush(Qt::NoBrush);
        painter.setPen(m_canvas.pen(color, m_measures.line));
        painter.drawPolygon(corners.data(), 4);
        for (const auto& [axis, across] : {std::pair(first, second), std::pair(second, first)}) {
            const Edge carrier = edge(axis);
            if (!m_axes[axis].hasGridLines || !m_axes[axis].isShown || !carrier.isUsable) {
                continue;
            }
            painter.setPen(m_canvas.pen(faint(m_axes[axis].gridColor), 0.7 * m_measures.line));
            for (const Tick& tick : ticks(axis, carrier).major) {
                const double value = std::lerp(m_box.minimum[axis], m_box.maximum[axis], tick.fraction);
                Point3 from{};
                from[normal] = side;
                from[axis] = value;
                Point3 to = from;
                from[across] = m_box.minimum[across];
                to[across] = m_box.maximum[across];
                painter.drawLine(place(from), place(to));
            }
        }
    }
}

void AxisBoxPainter::paintAxes() const
{
    QPainter& painter = m_canvas.painter;
    const double tick = m_measures.tick * m_canvas.inch;
    const double gap = m_measures.gap * m_canvas.inch;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const AxisStyle& style = m_axes[axis];
        const Edge carrier = edge(axis);
        if (!style.isShown || !carrier.isUsable) {
            continue;
        }
        painter.setPen(m_canvas.pen(style.lineColor, m_measures.line * 1.4));
        painter.drawLine(carrier.from, carrier.to);
        const AxisTicks marks = ticks(axis, carrier);
        double depth = 0.0;
        for (const auto* set : {&marks.minor, &marks.major}) {
            for (const Tick& mark : *set) {
                // Through the camera: perspective makes equal steps unequal in the picture.
                Point3 world = m_box.corner(carrier.corner);
                world[axis] = std::lerp(m_box.minimum[axis], m_box.maximum[axis], mark.fraction);
                const QPointF at = place(world);
                painter.setPen(m_canvas.pen(style.lineColor, m_measures.line));
                painter.drawLine(at, at + carrier.outward * (mark.label.empty() ? 0.55 * tick : tick));
                if (mark.label.empty()) {
                    continue;
                }
                const QString text = QString::fromStdString(mark.label);
                const QSizeF size = m_canvas.textSize(text, m_labelFonts[axis]);
                const double off = tick + 0.8 * gap + reach(size, carrier.outward);
                m_canvas.drawText(at + carrier.outward * off, Qt::AlignCenter, text, m_labelFonts[axis],
                                  style.labelColor);
                depth = std::max(depth, off + reach(size, carrier.outward));
            }
        }
        const QString title = QString::fromStdString(style.title);
        const QSizeF size = m_canvas.textSize(title, m_titleFonts[axis]);
        const QPointF middle = 0.5 * (carrier.from + carrier.to);
        m_canvas.drawText(middle + carrier.outward * (depth + gap + reach(size, carrier.outward)), Qt::AlignCenter,
                          title, m_titleFonts[axis], style.titleColor);
    }
}

} // namespace vantrix::view
