#pragma once

#include "kernel/Geometry.h"
#include "view/FramePlot.h"

#include <QPolygonF>
#include <QRectF>

#include <optional>
#include <vector>

namespace vantrix::view {

/*
 * Where a geometry is on the paper, and what it becomes when one of its handles is dragged. Places are in inches from
 * the frame's upper left corner; `frame` is the frame's size. A geometry has no shape where the plot has nothing to
 * measure its coordinates by, such as a line in 3D coordinates while the plot is flat.
 */
class GeometryShape
{
public:
    GeometryShape(const FramePlot& plot, QSizeF frame, const kernel::Geometry& geometry);

    /* Each line, or the closed outline. */
    std::vector<QPolygonF> outlines() const;

    /* The points of lines; of others those of the box around it (see BoxHandles.h), of squares and circles its corners
     * only, in the same order. */
    QPolygonF handles() const;

    Qt::CursorShape handleCursor(int handle) const;

    /* The geometry with a handle at another place: a line's point moves, anything else is resized. None where that
     * place has no such coordinates, nor for 3D coordinates, as a place on the paper is no place in space. */
    std::optional<kernel::Geometry> withHandleAt(int handle, QPointF place) const;

private:
    struct LinePoint
    {
        std::size_t line;
        std::size_t point;
        QPointF place;
    };
    bool isRound() const;
    bool isSquare() const { return kernel::isAsHighAsWide(m_geometry.type); }
    std::optional<QPointF> place(double x, double y, double z = 0.0) const;
    std::optional<QPointF> position(QPointF place) const;
    std::vector<LinePoint> linePoints() const;
    std::optional<QRectF> box() const;
    int boxHandle(int handle) const;
    std::optional<kernel::Geometry> withPointAt(std::size_t handle, QPointF place) const;
    std::optional<kernel::Geometry> withBox(const QRectF& box) const;

    const FramePlot& m_plot;
    QSizeF m_frame;
    const kernel::Geometry& m_geometry;
};

} // namespace vantrix::view
