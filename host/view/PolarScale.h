#pragma once

#include "view/AxisTicks.h"

#include <QPainterPath>
#include <QPointF>
#include <QRectF>

#include <vector>

namespace vantrix::view {

struct PlotStyle;

/*
 * Where the values of a polar plot lie: theta becomes an angle and R a distance from the centre, 1 at the end of the R
 * axis. Angles are in radians, from the right, counter-clockwise.
 */
class PolarScale
{
public:
    explicit PolarScale(const PlotStyle& style);

    const AxisScale& theta() const { return m_theta; }
    const AxisScale& r() const { return m_r; }

    double angle(double theta) const;
    double radius(double r) const;

    /* In a plane whose Y points up, the largest circle having the radius 1. Not finite where R has no place. */
    QPointF place(double theta, double r) const;

    /* The values at a place: theta in one period from the minimum of its range on, and R. */
    QPointF valuesAt(QPointF place) const;

    /* What the ranges of both axes span: a sector of a ring. */
    double firstAngle() const { return angle(m_theta.minimum()); }
    double lastAngle() const { return angle(m_theta.maximum()); }
    double innerRadius() const { return m_inner; }
    bool isFullCircle() const;

    /* Whether an angle lies in the sector. */
    bool hasAngle(double angle) const;

    /* The box around the sector. */
    QRectF bounds() const;

private:
    AxisScale m_theta;
    AxisScale m_r;
    double m_period;
    double m_thetaOnRight;
    double m_rAtCenter;
    double m_inner;
};

} // namespace vantrix::view
