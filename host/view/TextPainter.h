#pragma once

#include "kernel/Text.h"
#include "view/Canvas.h"
#include "view/FramePlot.h"
#include "view/latex/LatexPictures.h"

#include <QPolygonF>
#include <QStringList>

#include <optional>

namespace vantrix::view {

/*
 * Paints a text of a frame: its lines, or what LaTeX makes of it, turned about the anchor, and its box. `frame` is the
 * frame's rectangle in the canvas' logical units; a place in data coordinates needs the plot that was painted there.
 * LaTeX that cannot be set is painted as its source.
 */
class TextPainter
{
public:
    TextPainter(const Canvas& canvas, const QRectF& frame, const FramePlot& plot, const kernel::Text& text,
                LatexPictures* latex = nullptr);

    void paint() const;

    /* The corners of what is painted, the box included; empty for a text whose place is not on the paper, such as one
     * in 3D coordinates while the plot is flat. */
    QPolygonF outline() const;

private:
    std::optional<QPointF> anchor(const QRectF& frame, const FramePlot& plot) const;
    double height(const QRectF& frame, const FramePlot& plot) const;
    QFont font(double height) const;
    const LatexPictures::Picture* picture(LatexPictures* latex) const;
    void paintLines(const QRectF& place) const;
    double lineDistance() const;
    QSizeF size() const;
    QRectF body() const;
    QRectF box() const;

    const Canvas& m_canvas;
    const kernel::Text& m_text;
    std::optional<QPointF> m_anchor;
    double m_height; /* of a capital letter, in logical units */
    QFont m_font;
    QStringList m_lines;
    const LatexPictures::Picture* m_picture; /* null for plain text */
    double m_frameHeight;
};

} // namespace vantrix::view
