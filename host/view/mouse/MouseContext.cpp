#include "view/mouse/MouseContext.h"

#include "api/VtxUtilDocument.h"
#include "kernel/ApplicationLock.h"
#include "kernel/Document.h"
#include "kernel/FrameObjects.h"
#include "kernel/Kernel.h"
#include "view/BoxHandles.h"
#include "view/GeometryShape.h"
#include "view/PaperSpacing.h"
#include "view/PaperStyle.h"
#include "view/WorkArea.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>
#include <cmath>

namespace vantrix::view {

kernel::Page* MouseContext::page() const
{
    return kernel.document().activePage();
}

kernel::Frame* MouseContext::frame() const
{
    return kernel.document().activeFrame();
}

const FramePlot* MouseContext::activePlot() const
{
    const FramePlot* plot = frame() ? renderer.plot(frame()->id()) : nullptr;
    return plot && plot->hasView() ? plot : nullptr;
}

QPointF MouseContext::inFrame(QPointF place) const
{
    return paper.toPaper(place) - renderer.frameRect(*frame()).topLeft();
}

long MouseContext::frameAt(QPointF place) const
{
    if (page()) {
        for (auto each = page()->frames.rbegin(); each != page()->frames.rend(); ++each) {
            if (renderer.frameRect(**each).contains(paper.toPaper(place))) {
                return (*each)->id();
            }
        }
    }
    return 0;
}

QPointF MouseContext::snapped(QPointF place) const
{
    const PaperStyle style = page() ? PaperStyle::read(kernel.style(), page()->id) : PaperStyle();
    if (!page() || !style.isShown || !style.hasGrid) {
        return place;
    }
    const double spacing = PaperSpacing::of(style.gridSpacing).inches;
    return {std::round(place.x() / spacing) * spacing, std::round(place.y() / spacing) * spacing};
}

QPointF MouseContext::pointedPlace(const QMouseEvent& event) const
{
    const QPointF place = paper.toPaper(event.position());
    return event.modifiers() & Qt::AltModifier ? place : snapped(place);
}

QPointF MouseContext::percentOfFrame(QPointF place) const
{
    const QRectF rect = renderer.frameRect(*frame());
    return {100.0 * (place.x() - rect.left()) / rect.width(), 100.0 * (rect.bottom() - place.y()) / rect.height()};
}

std::optional<kernel::PickedObject> MouseContext::objectAt(QPointF place) const
{
    constexpr double reach = 5.0; /* pixels */
    const long id = frameAt(place);
    if (id == 0) {
        return std::nullopt;
    }
    const QPointF corner = renderer.frameRect(*kernel.document().frameById(id)).topLeft();
    return renderer.objectAt(id, paper.toPaper(place) - corner, reach / paper.inch());
}

void MouseContext::activate(QPointF place)
{
    const long id = frameAt(place);
    if (id != 0 && (!frame() || frame()->id() != id)) {
        endGesture();
        const kernel::ActionLock lock(kernel.lock());
        VtxUtilFrameActivate(id);
    }
}

void MouseContext::showMove()
{
    view.request();
    widget.repaint();
}

void MouseContext::endGesture()
{
    if (editor.isEditing()) {
        view.request();
    }
    editor.end();
    renderer.setMoving(false);
    widget.update();
}

QPolygonF MouseContext::handles(const kernel::PickedObject& object) const
{
    const kernel::Frame* owner = kernel.document().frameById(object.frameId);
    if (!owner) {
        return {};
    }
    const QRectF rect = renderer.frameRect(*owner);
    QPolygonF places;
    const FramePlot* plot = renderer.plot(object.frameId);
    const kernel::Geometry* geometry =
        object.type == PickObject_Geometry ? kernel.geometries().find(object.number) : nullptr;
    if (object.type == PickObject_Frame) {
        places = boxHandles(rect);
    } else if (geometry && plot) {
        places = GeometryShape(*plot, rect.size(), *geometry).handles().translated(rect.topLeft());
    } else {
        places = renderer.handles(object).translated(rect.topLeft());
    }
    for (QPointF& place : places) {
        place = paper.toWidget(place);
    }
    return places;
}

QRectF MouseContext::handleRect(QPointF place)
{
    constexpr double half = 3.5;
    return {place - QPointF(half, half), QSizeF(2.0 * half, 2.0 * half)};
}

int MouseContext::handleAt(const kernel::PickedObject& object, QPointF place) const
{
    constexpr double reach = 3.0; /* pixels around a handle */
    const QPolygonF places = handles(object);
    const auto isThere = [&](QPointF handle) {
        return handleRect(handle).adjusted(-reach, -reach, reach, reach).contains(place);
    };
    const auto found = std::find_if(places.begin(), places.end(), isThere);
    return found != places.end() ? int(found - places.begin()) : -1;
}

bool MouseContext::isDrag(QPointF way)
{
    constexpr double leastPixels = 3.0;
    return way.manhattanLength() > leastPixels;
}

void MouseContext::paintRubberBand(QPainter& painter, QPointF from, QPointF to)
{
    painter.setPen(QPen(highlight, 1.0, Qt::DashLine));
    painter.setBrush(QColor(highlight.red(), highlight.green(), highlight.blue(), 30));
    painter.drawRect(QRectF(from, to).normalized());
}

} // namespace vantrix::view
