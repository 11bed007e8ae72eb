#include "view/AxisPath.h"

#include <algorithm>
#include <cmath>

namespace vantrix::view {
namespace {

QPointF directionAt(double angle)
{
    return {std::cos(angle), -std::sin(angle)};
}

} // namespace

AxisPath AxisPath::line(QPointF from, QPointF to, QPointF outward, std::function<double(double)> along)
{
    AxisPath path;
    path.m_place = [=, along = std::move(along)](double fraction) {
        return from + (along ? along(fraction) : fraction) * (to - from);
    };
    path.m_outward = [=](double) { return outward; };
    path.m_length = std::hypot((to - from).x(), (to - from).y());
    return path;
}

AxisPath AxisPath::arc(QPointF center, double radius, double from, double to, bool isInner)
{
    AxisPath path;
    path.m_place = [=](double fraction) { return center + radius * directionAt(std::lerp(from, to, fraction)); };
    path.m_outward = [=](double fraction) {
        return (isInner ? -1.0 : 1.0) * directionAt(std::lerp(from, to, fraction));
    };
    path.m_length = radius * std::abs(to - from);
    path.m_isStraight = false;
    return path;
}

QPointF AxisPath::direction(double fraction) const
{
    constexpr double step = 1e-4;
    const QPointF along = m_place(fraction + step) - m_place(fraction - step);
    const double size = std::hypot(along.x(), along.y());
    return size > 0.0 ? along / size : QPointF(1.0, 0.0);
}

QPainterPath AxisPath::painterPath() const
{
    QPainterPath path(m_place(0.0));
    const int steps = m_isStraight ? 1 : 180;
    for (int i = 1; i <= steps; ++i) {
        path.lineTo(m_place(double(i) / steps));
    }
    return path;
}

} // namespace vantrix::view
