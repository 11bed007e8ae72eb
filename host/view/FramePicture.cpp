#include "view/FramePicture.h"

#include <QPainter>

#include <cmath>

namespace vantrix::view {

void FramePicture::paint(QPainter& painter, const QRectF& extent, const Version& version,
                         const std::function<void(QPainter&)>& paintNow)
{
    const QTransform toDevice = painter.deviceTransform();
    const QRectF device = toDevice.mapRect(extent);
    const QPoint corner(int(std::floor(device.left())), int(std::floor(device.top())));
    const QRectF surface = (painter.worldTransform().inverted() * toDevice).mapRect(QRectF(painter.viewport()));
    QRect seen = device.intersected(surface).toAlignedRect();
    if (seen.isEmpty()) { /* what is where in it is of use all the same */
        seen = QRect(corner, QSize(1, 1));
    }
    const Place place{device.translated(-corner), seen.translated(-corner)};
    if (m_image.isNull() || version != m_version || place != m_place) {
        m_image = QImage(seen.size(), QImage::Format_ARGB32_Premultiplied);
        m_image.fill(Qt::transparent);
        QPainter onImage(&m_image);
        onImage.setWorldTransform(toDevice * QTransform::fromTranslate(-seen.left(), -seen.top()));
        paintNow(onImage);
        m_version = version;
        m_place = place;
    }
    painter.drawImage(toDevice.inverted().mapRect(QRectF(seen)), m_image);
}

} // namespace vantrix::view
