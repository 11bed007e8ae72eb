#pragma once

#include "api/VtxEnumerations.h"

#include <QFont>
#include <QPainter>
#include <QPointF>
#include <QRectF>
#include <QSizeF>
#include <QString>

namespace vantrix::kernel {
struct PickedObject;
}

namespace vantrix::view {

class HitMap;

/* Texts whose edges are not smoothed, which is quick to draw. */
struct TextEdges
{
    bool arePlain = false;
    bool arePlainWhereSmall = false;
};

/*
 * A painter with a measure: lengths are in inches of the paper, text sizes and line widths included, whatever the
 * device. Points are in the painter's logical units.
 */
class Canvas
{
public:
    Canvas(QPainter& onto, double unitsPerInch, TextEdges textEdges = {}, HitMap* hitMap = nullptr)
        : painter(onto)
        , inch(unitsPerInch)
        , edges(textEdges)
        , hits(hitMap)
    {}

    QPainter& painter;
    const double inch; /* in logical units */
    const TextEdges edges;
    HitMap* const hits; /* where to tell what was painted where; may be null */

    /* A sans-serif font, or one of a family, of a height in inches; Greek and mathematical ones are serif fonts. */
    QFont font(double height, bool isBold = false) const;
    QFont font(Font_e family, double height) const;

    /* The typeface of a family, of no size yet. */
    static QFont typeface(Font_e family);

    /* A line never thinner than a pixel of the device. */
    QPen pen(const QColor& color, double thickness) const;

    QSizeF textSize(const QString& text, const QFont& font) const;

    /* Draws a text with its box aligned to a point: Qt::AlignLeft puts the text to the right of the point. */
    void drawText(QPointF point, Qt::Alignment alignment, const QString& text, const QFont& font,
                  const QColor& color) const;

    /* The same, turned by degrees counter-clockwise about the point, the box centred on it. */
    void drawTurnedText(QPointF middle, double degrees, const QString& text, const QFont& font,
                        const QColor& color) const;

    /* Tells the hit map, if there is one, where an object was painted; see HitMap. */
    void markArea(const kernel::PickedObject& object, const QPolygonF& outline) const;
    void markLine(const kernel::PickedObject& object, const QPolygonF& line) const;

    /* Pixels of the device for a logical unit. */
    double resolution() const;

    /* The rectangle moved to whole pixels of the device. */
    QRectF aligned(const QRectF& rect) const;
};

} // namespace vantrix::view
