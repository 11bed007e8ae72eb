#pragma once

#include "view/RenderSettings.h"

#include <QImage>
#include <QRect>
#include <QRectF>

#include <functional>

class QPainter;

namespace vantrix::view {

/*
 * How a frame looks on the screen: the pixels of it that are seen, kept until the frame changes or another part of it
 * is seen. Moving it by whole pixels does not change it.
 */
class FramePicture
{
public:
    /* What a frame looks like depends on; `changes` counts those of its style, data and objects. */
    struct Version
    {
        unsigned long changes = 0;
        RenderSettings settings;
        bool isMoving = false;
        bool isApproximate = false;
        bool operator==(const Version&) const = default;
    };

    /* Paints by `paintNow`, or what that painted before. `extent` is all that it touches, in the painter's logical
     * units, which are those of the painter that it is given, too. */
    void paint(QPainter& painter, const QRectF& extent, const Version& version,
               const std::function<void(QPainter&)>& paintNow);

    /* The next painting is a new one. */
    void forget() { m_image = {}; }

private:
    /* Where it was painted: pixels of the device, from the whole one at the extent's upper left corner. */
    struct Place
    {
        QRectF extent;
        QRect seen;
        bool operator==(const Place&) const = default;
    };

    QImage m_image; /* null when it has to be painted */
    Version m_version;
    Place m_place;
};

} // namespace vantrix::view
