#pragma once

#include "view/PlotStyle.h"

#include <vtkSmartPointer.h>

#include <QColor>

#include <vector>

class vtkLookupTable;

namespace vantrix::view {

/*
 * The colours of a contour group. Banded colours change at the levels: one band below the first level, one between each
 * two, one above the last. Continuous colours run from the first level to the last.
 */
struct ContourColors
{
    std::vector<double> levels;
    vtkSmartPointer<vtkLookupTable> table;
    ColorCutoff cutoff;

    static ContourColors make(const ContourGroupStyle& style);
};

/* The colour of a value; of no value (not a number), grey. */
QColor contourColor(const ContourGroupStyle& style, double value);

/* At most about `count` levels at round values inside a range; the middle of an empty one. */
std::vector<double> niceLevels(double minimum, double maximum, int count);

} // namespace vantrix::view
