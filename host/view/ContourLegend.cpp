#include "view/ContourLegend.h"

#include "view/ContourColors.h"
#include "view/NumberText.h"

#include <algorithm>
#include <cmath>

namespace vantrix::view {

ContourLegend::ContourLegend(const Canvas& canvas, const PlotMeasures& measures, const ContourGroupStyle& group)
    : m_canvas(canvas)
    , m_measures(measures)
    , m_group(group)
    , m_labelFont(canvas.font(measures.label))
    , m_titleFont(canvas.font(measures.title))
{}

std::vector<QString> ContourLegend::labels() const
{
    // As few digits as tell every two neighbours apart.
    std::vector<QString> texts;
    for (int digits = 3; digits <= 12; ++digits) {
        texts.clear();
        bool isExact = true;
        for (const double level : m_group.levels) {
            const std::string text = numberText(level, digits);
            texts.push_back(QString::fromStdString(text));
            const double range = m_group.levels.back() - m_group.levels.front();
            isExact = isExact && std::abs(std::stod(text) - level) <= 0.005 * range / double(m_group.levels.size());
        }
        if (isExact) {
            break;
        }
    }
    return texts;
}

double ContourLegend::width() const
{
    double widest = 0.0;
    for (const QString& text : labels()) {
        widest = std::max(widest, m_canvas.textSize(text, m_labelFont).width());
    }
    const double bar = 1.6 * m_measures.label * m_canvas.inch;
    const double title = m_canvas.textSize(QString::fromStdString(m_group.title), m_titleFont).width();
    return std::max(bar + m_measures.gap * m_canvas.inch + widest, title);
}

void ContourLegend::paint(const QRectF& column) const
{
    const std::vector<double>& levels = m_group.levels;
    if (levels.empty()) {
        return;
    }
    QPainter& painter = m_canvas.painter;
    const double inch = m_canvas.inch;
    const double gap = m_measures.gap * inch;
    const double labelHeight = m_canvas.textSize(QStringLiteral("0"), m_labelFont).height();
    const double titleHeight = m_canvas.textSize(QStringLiteral("X"), m_titleFont).height();
    const double room = std::max(1.0, column.height() - titleHeight - 2.0 * gap);
    const double barHeight = std::min(room, labelHeight * 1.25 * double(levels.size() + 1) + 2.0 * labelHeight);
    const double top = column.center().y() - 0.5 * (barHeight + titleHeight + 2.0 * gap);
    const QRectF bar = m_canvas.aligned(
        QRectF(column.left(), top + titleHeight + 2.0 * gap, 1.6 * m_measures.label * inch, barHeight));
    m_canvas.drawText({column.left(), top}, Qt::AlignLeft | Qt::AlignTop, QString::fromStdString(m_group.title),
                      m_titleFont, Qt::black);

    const bool isContinuous = m_group.isContinuous && levels.size() > 1;
    const double bands = isContinuous ? double(levels.size() - 1) : double(levels.size() + 1);
    const auto levelPlace = [&](double index) {
        return bar.bottom() - (isContinuous ? index : index + 1.0) / bands * bar.height();
    };
    painter.setRenderHint(QPainter::Antialiasing, false);
    const int steps = isContinuous ? std::max(2, int(bar.height() * m_canvas.resolution())) : int(bands);
    for (int i = 0; i < steps; ++i) {
        double value = 0.0;
        if (isContinuous) {
            const double along = (i + 0.5) / steps * bands;
            const auto lower = std::min(static_cast<std::size_t>(along), levels.size() - 2);
            value = std::lerp(levels[lower], levels[lower + 1], along - double(lower));
        } else if (i == 0) {
            value = levels.front() - 1.0;
        } else if (i == int(levels.size())) {
            value = levels.back() + 1.0;
        } else {
            value = 0.5 * (levels[std::size_t(i - 1)] + levels[std::size_t(i)]);
        }
        const double lower = bar.bottom() - double(i) / steps * bar.height();
        const double upper = bar.bottom() - double(i + 1) / steps * bar.height();
        painter.fillRect(QRectF(QPointF(bar.left(), upper), QPointF(bar.right(), lower)), contourColor(m_group, value));
    }
    painter.setRenderHint(QPainter::Antialiasing, true);
    painter.setPen(m_canvas.pen(Qt::black, m_measures.line));
    painter.setBrush(Qt::NoBrush);
    painter.drawRect(bar);

    const std::vector<QString> texts = labels();
    const double distance = bar.height() / bands;
    const auto stride = static_cast<std::size_t>(std::max(1.0, std::ceil(1.15 * labelHeight / distance)));
    for (std::size_t i = 0; i < levels.size(); i += stride) {
        m_canvas.drawText({bar.right() + gap, levelPlace(double(i))}, Qt::AlignLeft | Qt::AlignVCenter, texts[i],
                          m_labelFont, Qt::black);
    }
}

} // namespace vantrix::view
