#pragma once

#include <QSizeF>

namespace vantrix::view {

/* Sizes of texts and marks of legends and notices, in inches; they follow the frame's size. */
struct PlotMeasures
{
    double label;
    double title;
    double gap;
    double line;

    static PlotMeasures forFrame(QSizeF inches);
};

} // namespace vantrix::view
