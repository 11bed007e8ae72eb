#include "view/PaperView.h"

#include <algorithm>

namespace vantrix::view {

void PaperView::fit(QSizeF paper, const QRectF& area)
{
    constexpr double margin = 12.0;
    const QRectF room = area.adjusted(margin, margin, -margin, -margin);
    m_isFitted = true;
    m_inch = std::max(5.0, std::min(room.width() / paper.width(), room.height() / paper.height()));
    m_origin = area.center() - 0.5 * m_inch * QPointF(paper.width(), paper.height());
}

void PaperView::zoom(double factor, QPointF about)
{
    const QPointF fixed = toPaper(about);
    m_isFitted = false;
    m_inch = std::clamp(m_inch * factor, 10.0, 2000.0);
    m_origin = about - fixed * m_inch;
}

void PaperView::move(QPointF by)
{
    m_isFitted = false;
    m_origin += by;
}

} // namespace vantrix::view
