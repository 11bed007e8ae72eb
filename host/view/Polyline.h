#pragma once

#include <QPolygonF>
#include <QRectF>

#include <vector>

namespace vantrix::view {

/*
 * The part of a long line that is seen, made of as few points as look the same: what leaves the clip rectangle is cut
 * off exactly, and of the points in a row that fall into one pixel column the first, the highest, the lowest and the
 * last are kept, so that no extreme is lost.
 */
class Polyline
{
public:
    /* `pixel` is the width of a pixel in the units of the points. */
    Polyline(const QRectF& clip, double pixel);

    /* The next point; one that is not finite makes a gap. */
    void add(QPointF point);
    void gap();

    /* What there is to be drawn; the line is empty afterwards. */
    std::vector<QPolygonF> take();

private:
    void flushColumn();
    void emitPoint(QPointF point);

    QRectF m_clip;
    double m_pixel;
    std::vector<QPolygonF> m_pieces;

    bool m_hasColumn = false;
    double m_column = 0.0;
    QPointF m_first;
    QPointF m_lowest;
    QPointF m_highest;
    QPointF m_last;
    long m_lowestAt = 0;
    long m_highestAt = 0;
    long m_count = 0;

    bool m_hasPrevious = false;
    QPointF m_previous; /* the point emitted last, cut off or not */
    bool m_isPieceOpen = false;
};

} // namespace vantrix::view
