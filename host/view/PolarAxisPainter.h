#pragma once

#include "view/AxisLinePainter.h"
#include "view/Canvas.h"
#include "view/PlotStyle.h"
#include "view/PolarScale.h"

#include <QPainterPath>
#include <QRectF>

#include <vector>

namespace vantrix::view {

/*
 * The axes of a polar plot: theta along the outer (or inner) circle, R along one or more rays or beside the plot,
 * circles and rays as grid lines. What they span is a sector of a ring, as large as the viewport and the room for
 * numbers and titles allow.
 */
class PolarAxisPainter
{
public:
    /* `frameHeight` in inches. The style must outlive this. */
    PolarAxisPainter(const Canvas& canvas, double frameHeight, const PlotStyle& style);

    /* Places the plot in `frame`; axes, numbers and titles fit into `room`. Returns the box around the sector. To be
     * called before anything is painted. */
    QRectF layOut(const QRectF& room, const QRectF& frame);

    /* The fill and the grid lines that lie below the data. */
    void paintBehind() const;

    /* Everything else; lies above the data. */
    void paintFront() const;

    const PolarScale& scale() const { return m_scale; }
    QPointF center() const { return m_center; }
    double radius() const { return m_radius; }
    QPointF place(double theta, double r) const { return onPaper(m_scale.place(theta, r)); }

    /* What data are cut off at, as the axes ask for it; empty for nothing. */
    QPainterPath clip() const;

private:
    struct Line
    {
        AxisLinePainter painter;
        bool isAtBorder;
    };

    QPointF onPaper(QPointF unit) const { return m_center + QPointF(unit.x(), -unit.y()) * m_radius; }
    QPointF onCircle(double angle, double radius) const;
    QPainterPath sector(double inner, double outer, double from, double to) const;
    QPainterPath wholeSector() const;
    void fit(const QRectF& area);
    QRectF sectorBox() const;
    AxisPath thetaPath(double radius, bool isInner) const;
    AxisPath ray(double angle) const;
    AxisPath beside(AxisAlignment_e side, double offset) const;
    double offsetUnits(double percent) const { return percent / 100.0 * m_frameHeight * m_canvas.inch; }
    void addThetaLines(std::vector<Line>& lines) const;
    void addRLines(std::vector<Line>& lines) const;
    std::vector<Line> lines() const;
    QRectF bounds() const;
    AxisTicks thetaTicks() const;
    AxisTicks rTicks() const;
    void paintFills() const;
    void paintGrid(bool isLast) const;
    void paintPreciseGrid() const;

    const Canvas& m_canvas;
    double m_frameHeight;
    const PlotStyle& m_style;
    PolarScale m_scale;
    QRectF m_viewport;
    QPointF m_center;
    double m_radius = 1.0;
};

} // namespace vantrix::view
