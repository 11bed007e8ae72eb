#include "view/Polyline.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace vantrix::view {
namespace {

/* The part of a segment inside of a rectangle, as fractions of it (Liang and Barsky); false when there is none. */
bool clipSegment(const QRectF& clip, QPointF from, QPointF to, double& enter, double& leave)
{
    const QPointF along = to - from;
    enter = 0.0;
    leave = 1.0;
    const auto cut = [&](double direction, double room) {
        if (direction == 0.0) {
            return room >= 0.0;
        }
        const double at = room / direction;
        if (direction < 0.0) {
            enter = std::max(enter, at);
        } else {
            leave = std::min(leave, at);
        }
        return enter <= leave;
    };
    return cut(-along.x(), from.x() - clip.left()) && cut(along.x(), clip.right() - from.x()) &&
           cut(-along.y(), from.y() - clip.top()) && cut(along.y(), clip.bottom() - from.y());
}

} // namespace

Polyline::Polyline(const QRectF& clip, double pixel)
    : m_clip(clip)
    , m_pixel(pixel)
{}

void Polyline::add(QPointF point)
{
    if (!std::isfinite(point.x()) || !std::isfinite(point.y())) {
        gap();
        return;
    }
    const double column = std::floor(point.x() / m_pixel);
    if (!m_hasColumn || column != m_column) {
        flushColumn();
        m_hasColumn = true;
        m_column = column;
        m_first = m_lowest = m_highest = m_last = point;
        m_lowestAt = m_highestAt = m_count = 0;
        return;
    }
    ++m_count;
    m_last = point;
    if (point.y() < m_lowest.y()) {
        m_lowest = point;
        m_lowestAt = m_count;
    }
    if (point.y() > m_highest.y()) {
        m_highest = point;
        m_highestAt = m_count;
    }
}

void Polyline::gap()
{
    flushColumn();
    m_hasPrevious = false;
    m_isPieceOpen = false;
}

std::vector<QPolygonF> Polyline::take()
{
    gap();
    std::erase_if(m_pieces, [](const QPolygonF& piece) { return piece.isEmpty(); });
    return std::exchange(m_pieces, {});
}

void Polyline::flushColumn()
{
    if (!m_hasColumn) {
        return;
    }
    m_hasColumn = false;
    emitPoint(m_first);
    const bool isLowestEarlier = m_lowestAt < m_highestAt;
    for (const bool isLowest : {isLowestEarlier, !isLowestEarlier}) {
        const long at = isLowest ? m_lowestAt : m_highestAt;
        if (at > 0 && at < m_count) {
            emitPoint(isLowest ? m_lowest : m_highest);
        }
    }
    if (m_count > 0) {
        emitPoint(m_last);
    }
}

void Polyline::emitPoint(QPointF point)
{
    if (!m_hasPrevious) {
        m_hasPrevious = true;
        m_previous = point;
        m_isPieceOpen = m_clip.contains(point);
        if (m_isPieceOpen) {
            m_pieces.push_back({point});
        }
        return;
    }
    double enter = 0.0;
    double leave = 1.0;
    if (!clipSegment(m_clip, m_previous, point, enter, leave)) {
        m_isPieceOpen = false;
    } else {
        const QPointF along = point - m_previous;
        if (!m_isPieceOpen || enter > 0.0) {
            m_pieces.push_back({m_previous + enter * along});
        }
        m_pieces.back() << (leave < 1.0 ? m_previous + leave * along : point);
        m_isPieceOpen = leave >= 1.0;
    }
    m_previous = point;
}

} // namespace vantrix::view
