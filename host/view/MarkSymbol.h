#pragma once

#include "view/Canvas.h"
#include "view/PlotStyle.h"

#include <QPolygonF>

namespace vantrix::view {

/* A symbol of a line map, drawn at as many places as needed. */
class MarkSymbol
{
public:
    /* `frameHeight` in inches. */
    MarkSymbol(const Canvas& canvas, double frameHeight, const SymbolStyle& style);

    void draw(QPointF middle) const;

    /* From the middle to where it ends, in logical units. */
    double radius() const { return m_radius; }

private:
    const Canvas& m_canvas;
    const SymbolStyle& m_style;
    double m_radius;
    QPen m_pen;
    QFont m_font;
    QPolygonF m_outline;
};

} // namespace vantrix::view
