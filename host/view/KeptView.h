#pragma once

#include <QPainter>
#include <QPixmap>
#include <QPointF>
#include <QSize>

#include <functional>

namespace vantrix::view {

/*
 * What the work area shows. Where plots are redrawn on request only, it is the picture of the last request, until the
 * part of the paper that is seen changes.
 */
class KeptView
{
public:
    /* The part of the paper that is seen, and how large. */
    struct Place
    {
        QSize size;
        double pixelRatio = 1.0;
        QPointF origin;
        double inch = 0.0;
        long page = 0;
        bool operator==(const Place&) const = default;
    };

    /* The next painting is a new one. */
    void request() { m_isRequested = true; }

    /* Paints by `paintNow`, or what that painted before. */
    void paint(QPainter& painter, const Place& place, bool redrawsAlways,
               const std::function<void(QPainter&)>& paintNow);

private:
    bool m_isRequested = false;
    Place m_place;
    QPixmap m_picture; /* null while every painting is a new one */
};

} // namespace vantrix::view
