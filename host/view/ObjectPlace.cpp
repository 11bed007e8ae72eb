#include "view/ObjectPlace.h"

#include <cmath>

namespace vantrix::view {

std::optional<QPointF> objectPlace(const FramePlot& plot, QSizeF frame, CoordSys_e coordSys, const Point3& position)
{
    if (coordSys == CoordSys_Frame) {
        return QPointF(position[0] / 100.0 * frame.width(), (1.0 - position[1] / 100.0) * frame.height());
    }
    const bool isThreeD = coordSys == CoordSys_Grid3D;
    if (isThreeD != plot.camera.has_value()) {
        return std::nullopt;
    }
    const auto place = plot.placeOf({position[0], position[1], isThreeD ? position[2] : 0.0});
    return place && std::isfinite(place->x()) && std::isfinite(place->y()) ? place : std::nullopt;
}

std::optional<QPointF> objectPosition(const FramePlot& plot, QSizeF frame, CoordSys_e coordSys, QPointF place)
{
    if (coordSys == CoordSys_Frame) {
        return QPointF(100.0 * place.x() / frame.width(), 100.0 * (1.0 - place.y() / frame.height()));
    }
    if (coordSys == CoordSys_Grid3D || plot.camera) {
        return std::nullopt;
    }
    if (plot.polar || !plot.x || !plot.y) {
        return plot.dataAt(place);
    }
    const QRectF& area = plot.area; // beside the axes as well
    return QPointF(plot.x->value((place.x() - area.left()) / area.width()),
                   plot.y->value((area.bottom() - place.y()) / area.height()));
}

} // namespace vantrix::view
