#include "view/PolarScale.h"

#include "view/Angles.h"
#include "view/PlotStyle.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>

namespace vantrix::view {
namespace {

QPointF onCircle(double angle)
{
    return {std::cos(angle), std::sin(angle)};
}

/* The range of theta, at most one period. */
AxisScale thetaScale(const AxisStyle& axis, double period)
{
    const AxisScale whole(axis.minimum, axis.maximum, false, axis.isReversed);
    return {whole.minimum(), std::min(whole.maximum(), whole.minimum() + period), false, axis.isReversed};
}

/* The value at the centre, below the range; of a logarithmic axis it must be positive. */
double centerOf(const AxisStyle& axis, const AxisScale& scale)
{
    const bool isUsable = axis.valueAtOrigin < scale.maximum() && (!scale.isLogarithmic() || axis.valueAtOrigin > 0.0);
    return isUsable ? std::min(axis.valueAtOrigin, scale.minimum()) : scale.minimum();
}

} // namespace

PolarScale::PolarScale(const PlotStyle& style)
    : m_theta(thetaScale(style.axes[0], style.thetaPeriod))
    , m_r(style.axes[1].minimum, style.axes[1].maximum, style.axes[1].isLogarithmic, style.axes[1].isReversed)
    , m_period(style.thetaPeriod)
    , m_thetaOnRight(style.axes[0].valueAtOrigin)
    , m_rAtCenter(centerOf(style.axes[1], m_r))
    , m_inner(0.0)
{
    const AxisScale whole(m_rAtCenter, m_r.maximum(), m_r.isLogarithmic());
    m_inner = m_rAtCenter < m_r.minimum() ? std::clamp(whole.fraction(m_r.minimum()), 0.0, 0.999) : 0.0;
}

double PolarScale::angle(double theta) const
{
    return (m_theta.isReversed() ? -turn : turn) * (theta - m_thetaOnRight) / m_period;
}

double PolarScale::radius(double r) const
{
    return m_inner + (1.0 - m_inner) * m_r.fraction(r);
}

QPointF PolarScale::place(double theta, double r) const
{
    const double distance = radius(r);
    if (!(distance >= 0.0)) {
        return {std::numeric_limits<double>::quiet_NaN(), std::numeric_limits<double>::quiet_NaN()};
    }
    return distance * onCircle(angle(theta));
}

QPointF PolarScale::valuesAt(QPointF place) const
{
    const double radius = std::hypot(place.x(), place.y());
    const double circles = std::atan2(place.y(), place.x()) / (m_theta.isReversed() ? -turn : turn);
    const double theta = m_thetaOnRight + circles * m_period;
    const double periods = std::floor((theta - m_theta.minimum()) / m_period);
    return {theta - periods * m_period, m_r.value((radius - m_inner) / (1.0 - m_inner))};
}

bool PolarScale::isFullCircle() const
{
    return m_theta.maximum() - m_theta.minimum() >= m_period * (1.0 - 1e-9);
}

bool PolarScale::hasAngle(double angle) const
{
    const double from = std::min(firstAngle(), lastAngle());
    const double span = std::abs(lastAngle() - firstAngle());
    const double along = angle - from - turn * std::floor((angle - from) / turn);
    return isFullCircle() || along <= span + 1e-9 || along >= turn - 1e-9;
}

QRectF PolarScale::bounds() const
{
    double left = 1.0;
    double right = -1.0;
    double bottom = 1.0;
    double top = -1.0;
    const auto include = [&](QPointF point) {
        left = std::min(left, point.x());
        right = std::max(right, point.x());
        bottom = std::min(bottom, point.y());
        top = std::max(top, point.y());
    };
    for (const double angle : {firstAngle(), lastAngle()}) {
        include(onCircle(angle));
        include(m_inner * onCircle(angle));
    }
    for (int quarter = 0; quarter < 4; ++quarter) {
        if (hasAngle(quarter * 0.25 * turn)) {
            include(onCircle(quarter * 0.25 * turn));
        }
    }
    return {QPointF(left, bottom), QPointF(right, top)};
}

} // namespace vantrix::view
