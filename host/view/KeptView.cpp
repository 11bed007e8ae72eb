#include "view/KeptView.h"

namespace vantrix::view {

void KeptView::paint(QPainter& painter, const Place& place, bool redrawsAlways,
                     const std::function<void(QPainter&)>& paintNow)
{
    if (redrawsAlways) {
        m_picture = {};
        paintNow(painter);
        return;
    }
    if (m_isRequested || m_picture.isNull() || place != m_place) {
        m_isRequested = false;
        m_place = place;
        m_picture = QPixmap(place.size * place.pixelRatio);
        m_picture.setDevicePixelRatio(place.pixelRatio);
        QPainter onPicture(&m_picture);
        paintNow(onPicture);
    }
    painter.drawPixmap(0, 0, m_picture);
}

} // namespace vantrix::view
