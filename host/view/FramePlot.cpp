#include "view/FramePlot.h"

#include <cmath>

namespace vantrix::view {

std::optional<QPointF> FramePlot::dataAt(QPointF place) const
{
    if (polar && polarRadius > 0.0 && area.contains(place)) {
        const QPointF from = (place - polarCenter) / polarRadius;
        const QPointF values = polar->valuesAt({from.x(), -from.y()});
        return std::isfinite(values.y()) ? std::optional(values) : std::nullopt;
    }
    if (!x || !y || !area.contains(place)) {
        return std::nullopt;
    }
    return QPointF(x->value((place.x() - area.left()) / area.width()),
                   y->value((area.bottom() - place.y()) / area.height()));
}

QPointF FramePlot::onPicture(QPointF place) const
{
    const QPointF from = place - area.center();
    return {from.x() / area.width(), -from.y() / area.width()};
}

} // namespace vantrix::view
