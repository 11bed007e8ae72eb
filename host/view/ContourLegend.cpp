#include "view/ContourLegend.h"

#include "view/ContourColors.h"
#include "view/NumberText.h"

#include <algorithm>
#include <cmath>

namespace vantrix::view {

/* As few digits as tell every two neighbours apart. */
std::vector<QString> levelTexts(const ContourGroupStyle& group)
{
    std::vector<QString> texts;
    for (int digits = 3; digits <= 12; ++digits) {
        texts.clear();
        bool isExact = true;
        for (const double level : group.levels) {
            texts.push_back(QString::fromStdString(numberText(level, digits)));
            const double range = group.levels.back() - group.levels.front();
            isExact =
                isExact && std::abs(texts.back().toDouble() - level) <= 0.005 * range / double(group.levels.size());
        }
        if (isExact) {
            break;
        }
    }
    return texts;
}

ContourLegend::ContourLegend(const Canvas& canvas, double frameHeight, const ContourGroupStyle& group)
    : m_canvas(canvas)
    , m_frameHeight(frameHeight)
    , m_group(group)
    , m_box(canvas, frameHeight, group.legend)
    , m_texts(levelTexts(group))
{}

bool ContourLegend::isContinuous() const
{
    return m_group.isContinuous && m_group.levels.size() > 1;
}

/* Bands of one colour from end to end; a continuous run has one from level to level. */
double ContourLegend::bands() const
{
    return isContinuous() ? double(m_group.levels.size() - 1) : double(m_group.levels.size() + 1);
}

/* Where a level lies along the bar, 0 to 1. */
double ContourLegend::levelPart(double index) const
{
    return (isContinuous() ? index : index + 1.0) / bands();
}

double ContourLegend::titleHeight() const
{
    return m_group.title.empty() ? 0.0 : m_box.textHeight() + m_box.gap();
}

double ContourLegend::widestText() const
{
    double widest = 0.0;
    for (const QString& text : m_texts) {
        widest = std::max(widest, m_box.textWidth(text));
    }
    return widest;
}

QSizeF ContourLegend::size() const
{
    const double margins = 2.0 * m_box.margin();
    const double title = m_box.textWidth(QString::fromStdString(m_group.title));
    const auto count = double(m_group.levels.size());
    if (m_group.isLegendUpright) {
        const double length = m_box.rowHeight() * (count + 1.0) + 2.0 * m_box.textHeight();
        return {std::max(thickness() + m_box.gap() + widestText(), title) + margins, titleHeight() + length + margins};
    }
    const double length = std::max((widestText() + m_box.gap()) * (count + 1.0), title);
    return {std::min(length, 8.0 * m_frameHeight * m_canvas.inch / 10.0) + margins,
            titleHeight() + thickness() + m_box.gap() + m_box.textHeight() + margins};
}

void ContourLegend::paint(const QRectF& rect) const
{
    if (m_group.levels.empty()) {
        return;
    }
    m_canvas.painter.save();
    m_box.paintBox(rect);
    const double margin = m_box.margin();
    const QRectF inside = rect.adjusted(margin, margin, -margin, -margin);
    m_box.drawText(inside.topLeft(), Qt::AlignLeft | Qt::AlignTop, QString::fromStdString(m_group.title));
    QRectF bar = inside;
    bar.setTop(inside.top() + titleHeight());
    if (m_group.isLegendUpright) {
        // Half a number stands out above the first and below the last level.
        const double above = isContinuous() ? 0.5 * m_box.textHeight() : 0.0;
        bar.setWidth(thickness());
        bar.adjust(0.0, above, 0.0, -above);
    } else {
        const double beside = isContinuous() ? 0.5 * widestText() : 0.0;
        bar.setHeight(thickness());
        bar.adjust(beside, 0.0, -beside, 0.0);
    }
    bar = m_canvas.aligned(bar);
    paintBar(bar);
    paintTexts(bar);
    m_canvas.painter.restore();
}

void ContourLegend::paintBar(const QRectF& bar) const
{
    QPainter& painter = m_canvas.painter;
    const std::vector<double>& levels = m_group.levels;
    const bool isUpright = m_group.isLegendUpright;
    const double length = isUpright ? bar.height() : bar.width();
    const int steps = isContinuous() ? std::max(2, int(length * m_canvas.resolution())) : int(bands());
    painter.setRenderHint(QPainter::Antialiasing, false);
    for (int i = 0; i < steps; ++i) {
        double value = 0.0;
        if (isContinuous()) {
            const double along = (i + 0.5) / steps * bands();
            const auto lower = std::min(static_cast<std::size_t>(along), levels.size() - 2);
            value = std::lerp(levels[lower], levels[lower + 1], along - double(lower));
        } else if (i == 0) {
            value = levels.front() - 1.0;
        } else if (i == int(levels.size())) {
            value = levels.back() + 1.0;
        } else {
            value = 0.5 * (levels[std::size_t(i - 1)] + levels[std::size_t(i)]);
        }
        const double from = double(i) / steps;
        const double to = double(i + 1) / steps;
        const QRectF step = isUpright ? QRectF(QPointF(bar.left(), bar.bottom() - to * bar.height()),
                                               QPointF(bar.right(), bar.bottom() - from * bar.height()))
                                      : QRectF(QPointF(bar.left() + from * bar.width(), bar.top()),
                                               QPointF(bar.left() + to * bar.width(), bar.bottom()));
        painter.fillRect(step, contourColor(m_group, value));
    }
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(m_canvas.pen(Qt::black, 0.0015 * m_frameHeight));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(bar);
}

void ContourLegend::paintTexts(const QRectF& bar) const
{
    // Where numbers would touch, every second one is left away, or every third
    // and so on.
    const bool isUpright = m_group.isLegendUpright;
    const double distance = (isUpright ? bar.height() : bar.width()) / bands() * m_group.legendLabelSkip;
    const double needed = isUpright ? 1.15 * m_box.textHeight() : widestText() + m_box.gap();
    const auto thinned = static_cast<std::size_t>(std::max(1.0, std::ceil(needed / distance)));
    for (std::size_t i = 0; i < m_texts.size(); i += thinned * std::size_t(m_group.legendLabelSkip)) {
        const double part = levelPart(double(i));
        if (isUpright) {
            m_box.drawText({bar.right() + m_box.gap(), bar.bottom() - part * bar.height()},
                           Qt::AlignLeft | Qt::AlignVCenter, m_texts[i]);
        } else {
            m_box.drawText({bar.left() + part * bar.width(), bar.bottom() + m_box.gap()},
                           Qt::AlignHCenter | Qt::AlignTop, m_texts[i]);
        }
    }
}

} // namespace vantrix::view
