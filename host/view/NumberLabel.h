#pragma once

#include "view/Canvas.h"
#include "view/NumberText.h"

#include <QPolygonF>

namespace vantrix::view {

/* A number ready to be drawn, its exponent raised. Sizes in logical units. */
class NumberLabel
{
public:
    NumberLabel(const Canvas& canvas, const NumberText& number, const QFont& font);

    QSizeF size() const { return m_size; }

    /* With its middle at a place, turned by degrees counter-clockwise. */
    void draw(QPointF middle, double degrees, const QColor& color) const;

private:
    const Canvas& m_canvas;
    QString m_text;
    QString m_exponent;
    QFont m_font;
    QFont m_exponentFont;
    QSizeF m_size;
    double m_textWidth;
    double m_raise;
};

/* The corners of a box of that size about its middle, turned by degrees counter-clockwise. */
QPolygonF turnedBox(QPointF middle, QSizeF size, double degrees);

} // namespace vantrix::view
