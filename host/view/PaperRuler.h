#pragma once

#include "view/PaperSpacing.h"

#include <QPointF>
#include <QRect>
#include <QString>

#include <vector>

class QPainter;

namespace vantrix::view {

/* The rulers along the upper and left edges of the work area. They count from the paper's upper left corner; ticks are
 * as far apart as the spacing says, fewer where they would stand too close, and labelled in its unit where there is
 * room. */
class PaperRuler
{
public:
    static constexpr int thickness = 20; /* pixels */

    struct Tick
    {
        double inches; /* from the paper's upper left corner */
        QString label; /* empty for a tick without one */
    };

    explicit PaperRuler(PaperUnitSpacing_e spacing);

    /* The ticks from one place to another, in inches. */
    std::vector<Tick> ticks(double from, double to, double pixelsPerInch) const;

    /* `area` is the work area, `origin` the paper's upper left corner in it. */
    void paint(QPainter& painter, const QRect& area, QPointF origin, double pixelsPerInch) const;

private:
    void paintHorizontal(QPainter& painter, const QRect& area, double origin, double pixelsPerInch) const;
    void paintVertical(QPainter& painter, const QRect& area, double origin, double pixelsPerInch) const;

    PaperSpacing m_spacing;
};

} // namespace vantrix::view
