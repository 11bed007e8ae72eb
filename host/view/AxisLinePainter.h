#pragma once

#include "view/AxisPath.h"
#include "view/AxisStyle.h"
#include "view/AxisTicks.h"
#include "view/Canvas.h"

#include <QRectF>

#include <functional>
#include <optional>
#include <vector>

namespace vantrix::view {

/* What is drawn of an axis on one of its lines. */
struct AxisParts
{
    bool hasLine = true;
    bool hasTicks = true;
    bool hasLabels = true;
    bool hasTitle = true;

    /* On the line that the axis has of itself, or on another one that `where` answers for. */
    static AxisParts of(const AxisStyle& style, bool hasLine, bool ShownOn::*where);
};

/*
 * One line of an axis with its ticks, numbers and title, along any path; the one place that lays these out. Numbers do
 * not touch each other or the ticks, and the title lies beyond the numbers.
 */
class AxisLinePainter
{
public:
    /* `frameHeight` in inches. The style must outlive this. */
    AxisLinePainter(const Canvas& canvas, double frameHeight, const AxisStyle& style, const AxisScale& scale,
                    const AxisPath& path, AxisParts parts);

    /* Leaves away ticks and labels at the end of the axis, where it meets its own beginning. */
    void closeRing();

    /* Leaves away labels where other axes cross this one at a fraction. */
    void clearIntersections(const std::vector<double>& fractions);

    /* A title that would not be whole inside of a rectangle stands at an end of the axis instead, if that is better. */
    void keepTitleInside(const QRectF& room);

    /* Everything that paint() draws lies inside. */
    QRectF bounds() const;

    /* How far things reach away from the plot, from the line on. */
    double reach() const;

    /* `paintGround` paints what the plot has below everything else, here cut off at the boxes of labels, which so erase
     * the lines behind them; without it nothing is erased. */
    void paint(const std::function<void()>& paintGround = {}) const;

    /* Tells the hit map where line, numbers and title of the axis are, and the spacing of its ticks; see VtxUtilAxis.h
     * for how axes are named. */
    void mark(char axis, int axisNumber = 1) const;

    const AxisStyle& style() const { return m_style; }
    const AxisTicks& ticks() const { return m_ticks; }

    /* The ticks that an axis has along a path, whatever is drawn of them. */
    static AxisTicks ticksAlong(const Canvas& canvas, double frameHeight, const AxisStyle& style,
                                const AxisScale& scale, const AxisPath& path);

private:
    struct Label
    {
        double fraction;
        NumberText number;
        QPointF middle;
        double degrees;
        QSizeF size;
    };
    struct Title
    {
        QString text;
        QFont font;
        QPointF middle;
        double degrees = 0.0;
        QSizeF size;
    };

    double units(double percent) const { return percent / 100.0 * m_frameHeight * m_canvas.inch; }
    double ticksOutside() const;
    double labelDegrees(double fraction) const;
    void layOut();
    void paintTicks(const std::vector<Tick>& ticks, double length, double thickness) const;

    const Canvas& m_canvas;
    double m_frameHeight;
    const AxisStyle& m_style;
    AxisPath m_path;
    AxisParts m_parts;
    AxisTicks m_ticks;
    QFont m_labelFont;
    std::vector<Label> m_labels;
    std::optional<Title> m_title;
    double m_reach = 0.0;
};

} // namespace vantrix::view
