#pragma once

#include <QPolygonF>
#include <QRectF>

/* The eight handles of a box that can be resized: corners and middles of the sides, clockwise from the upper left
 * corner, numbered from 0. Y goes down. */
namespace vantrix::view {

QPolygonF boxHandles(const QRectF& box);

/* The cursor that tells what dragging the handle does. */
Qt::CursorShape boxHandleCursor(int handle);

/* The box with the handle at another place; no side gets shorter than `least`. */
QRectF resizedBox(const QRectF& box, int handle, QPointF place, double least);

} // namespace vantrix::view
