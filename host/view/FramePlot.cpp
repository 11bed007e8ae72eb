#include "view/FramePlot.h"

namespace vantrix::view {

std::optional<QPointF> FramePlot::dataAt(QPointF place) const
{
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
