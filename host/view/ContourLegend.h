#pragma once

#include "view/Canvas.h"
#include "view/PlotMeasures.h"
#include "view/PlotStyle.h"

namespace vantrix::view {

/* The colour bar of a contour group: title, bands or a continuous run, and the numbers of the levels. */
class ContourLegend
{
public:
    ContourLegend(const Canvas& canvas, const PlotMeasures& measures, const ContourGroupStyle& group);

    /* The width it takes, in logical units. */
    double width() const;

    /* Paints at the left of a column, centred up and down. */
    void paint(const QRectF& column) const;

private:
    std::vector<QString> labels() const;

    const Canvas& m_canvas;
    PlotMeasures m_measures;
    const ContourGroupStyle& m_group;
    QFont m_labelFont;
    QFont m_titleFont;
};

} // namespace vantrix::view
