#pragma once

#include "view/Canvas.h"
#include "view/PlotStyle.h"

#include <QRectF>

#include <algorithm>
#include <cstddef>
#include <functional>

namespace vantrix::view {

/* What all legends have in common: font, measures, place and box. */
class LegendBox
{
public:
    /* `frameHeight` in inches. Canvas and style must outlive this. */
    LegendBox(const Canvas& canvas, double frameHeight, const LegendStyle& style);

    const LegendStyle& style() const { return m_style; }
    const QFont& font() const { return m_font; }

    /* Rows hold something besides texts that is so high, in logical units. */
    void makeRoom(double height) { m_leastRowHeight = height; }

    /* In logical units: the height of a line of text, the distance of rows, and that of the box from what it holds. */
    double textHeight() const { return m_textHeight; }
    double rowHeight() const { return std::max(m_style.rowSpacing * m_textHeight, m_leastRowHeight); }
    double margin() const;
    double gap() const { return 0.5 * m_textHeight; }

    double textWidth(const QString& text) const { return m_canvas.textSize(text, m_font).width(); }

    /* Where a legend of a size lies in the frame when the user has placed it. */
    QRectF placedRect(const QRectF& frame, QSizeF size) const;

    void paintBox(const QRectF& rect) const;

    /*
     * Paints the box and calls `paintRow` with the number of each row, from 0, and the middle of its left end. Rows
     * that do not fit are left away.
     */
    void paintRows(const QRectF& rect, std::size_t count,
                   const std::function<void(std::size_t row, QPointF left)>& paintRow) const;

    void drawText(QPointF point, Qt::Alignment alignment, const QString& text) const;

private:
    const Canvas& m_canvas;
    double m_frameHeight;
    const LegendStyle& m_style;
    QFont m_font;
    double m_textHeight;
    double m_leastRowHeight = 0.0;
};

} // namespace vantrix::view
