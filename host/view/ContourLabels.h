#pragma once

#include "view/Canvas.h"
#include "view/PlotStyle.h"

#include <QPolygonF>
#include <QRectF>

#include <functional>
#include <vector>

namespace vantrix::view {

/* A contour line as it is seen: places are parts of the picture from its lower left corner. */
struct SeenContourLine
{
    std::size_t group = 0; /* from 0 */
    double level = 0.0;
    QPolygonF places;
    std::vector<double> depths; /* of the places; the smaller, the nearer */
};

struct ContourLabel
{
    std::size_t group;
    QPointF middle; /* as a place of a line */
    double angle;   /* degrees, counter-clockwise, so that the text is never upside down */
    QString text;
};

/* The numbers along contour lines. */
class ContourLabels
{
public:
    /* `frameHeight` in inches; `area` is where the picture lies. */
    ContourLabels(const Canvas& canvas, double frameHeight, const QRectF& area,
                  const std::vector<ContourGroupStyle>& groups)
        : m_canvas(canvas)
        , m_frameHeight(frameHeight)
        , m_area(area)
        , m_groups(groups)
    {}

    /* Finds places where a line is long and straight enough, spread over it, and no label covers another. `isSeen`
     * tells whether nothing is in front of a place. */
    std::vector<ContourLabel> place(const std::vector<SeenContourLine>& lines,
                                    const std::function<bool(QPointF place, double depth)>& isSeen) const;

    void paint(const std::vector<ContourLabel>& labels) const;

private:
    QFont font(const ContourGroupStyle& group) const;

    const Canvas& m_canvas;
    double m_frameHeight;
    QRectF m_area;
    const std::vector<ContourGroupStyle>& m_groups;
};

} // namespace vantrix::view
