#pragma once

#include "api/VtxEnumerations.h"

#include <QPolygonF>

namespace vantrix::view {

/* The outline of a flat symbol, closed, within a circle of diameter 1 about the origin, Y up. Of a solid (cube, sphere,
 * octahedron) what it looks like drawn flat. A point is a small disc. */
QPolygonF symbolOutline(GeomShape_e shape);

/* Whether the symbol is a solid in a 3D plot. */
bool isSolidSymbol(GeomShape_e shape);

} // namespace vantrix::view
