#pragma once

#include <QPointF>
#include <QRectF>
#include <QSizeF>

namespace vantrix::view {

/* Where the paper lies in the work area: its place and magnification. Places on the paper are in inches from its upper
 * left corner, those in the widget in pixels. */
class PaperView
{
public:
    QPointF toWidget(QPointF paper) const { return m_origin + paper * m_inch; }
    QPointF toPaper(QPointF widget) const { return (widget - m_origin) / m_inch; }
    QRectF toWidget(const QRectF& paper) const { return {toWidget(paper.topLeft()), paper.size() * m_inch}; }

    QPointF origin() const { return m_origin; }

    /* Pixels for an inch of paper. */
    double inch() const { return m_inch; }

    /* Whether the paper was left as fit() put it. */
    bool isFitted() const { return m_isFitted; }

    /* Shows the whole paper in the middle of an area of the widget. */
    void fit(QSizeF paper, const QRectF& area);

    /* Magnifies to 10 to 2000 pixels for an inch; what lies at `about` in the widget stays there. */
    void zoom(double factor, QPointF about);
    void move(QPointF by);

private:
    double m_inch = 72.0;
    QPointF m_origin;
    bool m_isFitted = true;
};

} // namespace vantrix::view
