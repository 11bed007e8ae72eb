#pragma once

#include <QPainterPath>
#include <QPointF>

#include <functional>

namespace vantrix::view {

/*
 * Where one line of an axis runs, in the painter's logical units: a place for each fraction of the axis (0 its
 * beginning, 1 its end), and the direction away from what is plotted, a unit vector.
 */
class AxisPath
{
public:
    using Place = std::function<QPointF(double fraction)>;

    /* A straight line. `along` maps fractions of the axis to fractions of the line where perspective makes them differ.
     */
    static AxisPath line(QPointF from, QPointF to, QPointF outward, std::function<double(double)> along = {});

    /* A part of a circle; angles in radians, counted as on paper: from the right, counter-clockwise. `isInner` when the
     * plot lies outside of the circle. */
    static AxisPath arc(QPointF center, double radius, double from, double to, bool isInner = false);

    QPointF place(double fraction) const { return m_place(fraction); }
    QPointF outward(double fraction) const { return m_outward(fraction); }

    /* A unit vector. */
    QPointF direction(double fraction) const;

    double length() const { return m_length; }
    bool isStraight() const { return m_isStraight; }
    QPainterPath painterPath() const;

private:
    Place m_place;
    Place m_outward;
    double m_length = 0.0;
    bool m_isStraight = true;
};

} // namespace vantrix::view
