#include "view/PaperGrid.h"

#include <QPainter>

namespace vantrix::view {

namespace {

constexpr double closestLines = 5.0; /* pixels */
const QColor lineColor(0xc8, 0xd2, 0xdf);

} // namespace

PaperGrid::PaperGrid(PaperUnitSpacing_e spacing)
    : m_spacing(PaperSpacing::of(spacing))
{}

void PaperGrid::paint(QPainter& painter, const QRectF& paper, double inch) const
{
    const double step = m_spacing.stepsFor(closestLines, inch) * m_spacing.inches * inch;
    painter.save();
    painter.setRenderHint(QPainter::Antialiasing, false);
    painter.setPen(QPen(lineColor, 0));
    // Counted, not added up, so that the last line is as exact as the first.
    for (int i = 1; i * step < paper.width(); ++i) {
        const double x = paper.left() + i * step;
        painter.drawLine(QPointF(x, paper.top()), QPointF(x, paper.bottom()));
    }
    for (int i = 1; i * step < paper.height(); ++i) {
        const double y = paper.top() + i * step;
        painter.drawLine(QPointF(paper.left(), y), QPointF(paper.right(), y));
    }
    painter.restore();
}

} // namespace vantrix::view
