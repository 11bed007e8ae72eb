#pragma once

#include "kernel/Geometry.h"
#include "view/Canvas.h"
#include "view/FramePlot.h"

#include <QPolygonF>

#include <vector>

namespace vantrix::view {

/*
 * Paints a geometry of a frame. `frame` is the frame's rectangle in the canvas' logical units; a place in data
 * coordinates needs the plot that was painted there. What has no shape there (see GeometryShape) is not painted.
 */
class GeometryPainter
{
public:
    GeometryPainter(const Canvas& canvas, const QRectF& frame, const FramePlot& plot, const kernel::Geometry& geometry);

    void paint() const;

    /* Each line, or the closed outline, in the canvas' logical units. */
    std::vector<QPolygonF> outlines() const;

private:
    double ofFrameHeight(double percent) const; /* in inches */

    QPointF arrowBase(QPointF tip, QPointF from) const;
    void paintArrowhead(QPointF tip, QPointF from) const;
    void paintLine(QPolygonF line) const;

    const Canvas& m_canvas;
    QRectF m_frame;
    const FramePlot& m_plot;
    const kernel::Geometry& m_geometry;
};

} // namespace vantrix::view
