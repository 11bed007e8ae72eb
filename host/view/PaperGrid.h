#pragma once

#include "view/PaperSpacing.h"

#include <QRectF>

class QPainter;

namespace vantrix::view {

/* The grid on the paper, counted from its upper left corner. Where lines would stand too close on the screen, only
 * every second, fifth, tenth, ... is drawn. */
class PaperGrid
{
public:
    explicit PaperGrid(PaperUnitSpacing_e spacing);

    /* `paper` in the painter's units, of which an inch has `inch`. */
    void paint(QPainter& painter, const QRectF& paper, double inch) const;

private:
    PaperSpacing m_spacing;
};

} // namespace vantrix::view
