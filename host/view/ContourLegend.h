#pragma once

#include "view/LegendBox.h"

#include <vector>

namespace vantrix::view {

/* The numbers at the levels of a contour group, with as few digits as tell
 * every two neighbours apart. */
std::vector<QString> levelTexts(const ContourGroupStyle& group);

/* The colour bar of a contour group: title, bands or a continuous run, and the
 * numbers of the levels. It stands upright with the numbers beside it, or lies
 * with the numbers below. */
class ContourLegend
{
public:
    /* `frameHeight` in inches. */
    ContourLegend(const Canvas& canvas, double frameHeight, const ContourGroupStyle& group);

    const LegendStyle& style() const { return m_box.style(); }

    /* The size that it likes best, box included, in logical units. Along its bar
     * it can be made smaller. */
    QSizeF size() const;

    QRectF placedRect(const QRectF& frame) const { return m_box.placedRect(frame, size()); }

    void paint(const QRectF& rect) const;

private:
    double titleHeight() const;
    double thickness() const { return 1.6 * m_box.textHeight(); }
    double widestText() const;
    double bands() const;
    bool isContinuous() const;
    double levelPart(double index) const;
    void paintBar(const QRectF& bar) const;
    void paintTexts(const QRectF& bar) const;

    const Canvas& m_canvas;
    double m_frameHeight;
    const ContourGroupStyle& m_group;
    LegendBox m_box;
    std::vector<QString> m_texts;
};

} // namespace vantrix::view
