#pragma once

#include "api/VtxEnumerations.h"
#include "view/FramePlot.h"

#include <QPointF>
#include <QSizeF>

#include <optional>

/* Where texts and geometries are. Places are in inches from the frame's upper left corner; `frame` is its size. */
namespace vantrix::view {

/* None where the plot has nothing to measure the coordinates by, such as those of 3D while it is flat. */
std::optional<QPointF> objectPlace(const FramePlot& plot, QSizeF frame, CoordSys_e coordSys, const Point3& position);

/* The coordinates, X and Y, of a place; none in 3D and, of a polar plot, outside of the circle. */
std::optional<QPointF> objectPosition(const FramePlot& plot, QSizeF frame, CoordSys_e coordSys, QPointF place);

} // namespace vantrix::view
