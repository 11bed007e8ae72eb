#pragma once

#include "kernel/PickList.h"

#include <QPolygonF>
#include <QTransform>

#include <map>
#include <optional>
#include <utility>
#include <vector>

namespace vantrix::view {

/*
 * Where the objects of a frame were painted: what a click means, and where an object's handles are. Places are in
 * inches from the frame's upper left corner. Zones of field plots are not in it, they are found in the rendered
 * picture.
 */
class HitMap
{
public:
    /* Forgets everything; outlines that are added from now on are in coordinates that `toInches` maps. */
    void begin(const QTransform& toInches);

    /* An object's outline: an area, or a line that is not closed. */
    void addArea(const kernel::PickedObject& object, const QPolygonF& outline);
    void addLine(const kernel::PickedObject& object, const QPolygonF& line);

    /* The object at a place, or not farther away from it than `reach`; of several the one that is picked first. */
    std::optional<kernel::PickedObject> at(QPointF place, double reach) const;

    /* The ends and a few points of an object's lines, else the corners of its area, or of the
     * box around several; none when it was not painted. */
    QPolygonF handles(const kernel::PickedObject& object) const;

    /* How far ticks of an axis are apart where they are drawn first; 0 where they are not evenly spaced, or there are
     * none. */
    void addTicks(char axis, int axisNumber, double spacing);
    double tickSpacing(char axis, int axisNumber) const;

    /* By the axis and its number. */
    using TickSpacings = std::map<std::pair<char, int>, double>;
    const TickSpacings& tickSpacings() const { return m_tickSpacings; }

private:
    struct Shape
    {
        kernel::PickedObject object;
        QPolygonF outline;
        bool isArea;
    };
    void add(const kernel::PickedObject& object, const QPolygonF& outline, bool isArea);

    QTransform m_toInches;
    std::vector<Shape> m_shapes;
    TickSpacings m_tickSpacings;
};

/* A part of an axis; see VtxUtilAxis.h for its character and number. */
inline kernel::PickedObject axisObject(char axis, AxisSubObject_e part, int axisNumber = 1)
{
    return {.type = PickObject_Axis, .axis = axis, .axisNumber = axisNumber, .part = part};
}

/* The smaller, the sooner picked: texts and geometries, axis titles, axis lines, legends, streamtraces, zones and line
 * maps, grid areas, frames. */
int pickOrder(const kernel::PickedObject& object);

} // namespace vantrix::view
