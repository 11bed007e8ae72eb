#include "view/BoxHandles.h"

#include <algorithm>
#include <array>

namespace vantrix::view {

namespace {

/* Which edges each handle takes along. */
struct HandleEdges
{
    int across; /* -1 the left edge, 1 the right one */
    int down;   /* -1 the top, 1 the bottom */
    Qt::CursorShape cursor;
};

constexpr std::array<HandleEdges, 8> handleEdges{{
    {-1, -1, Qt::SizeFDiagCursor},
    {0, -1, Qt::SizeVerCursor},
    {1, -1, Qt::SizeBDiagCursor},
    {1, 0, Qt::SizeHorCursor},
    {1, 1, Qt::SizeFDiagCursor},
    {0, 1, Qt::SizeVerCursor},
    {-1, 1, Qt::SizeBDiagCursor},
    {-1, 0, Qt::SizeHorCursor},
}};

} // namespace

QPolygonF boxHandles(const QRectF& box)
{
    QPolygonF places;
    for (const HandleEdges& edges : handleEdges) {
        places << box.center() + QPointF(0.5 * edges.across * box.width(), 0.5 * edges.down * box.height());
    }
    return places;
}

Qt::CursorShape boxHandleCursor(int handle)
{
    return handleEdges[static_cast<std::size_t>(handle)].cursor;
}

QRectF resizedBox(const QRectF& box, int handle, QPointF place, double least)
{
    const HandleEdges& edges = handleEdges[static_cast<std::size_t>(handle)];
    QRectF resized = box;
    if (edges.across < 0) {
        resized.setLeft(std::min(place.x(), box.right() - least));
    } else if (edges.across > 0) {
        resized.setRight(std::max(place.x(), box.left() + least));
    }
    if (edges.down < 0) {
        resized.setTop(std::min(place.y(), box.bottom() - least));
    } else if (edges.down > 0) {
        resized.setBottom(std::max(place.y(), box.top() + least));
    }
    return resized;
}

} // namespace vantrix::view
