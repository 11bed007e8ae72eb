#include "view/ContourLabels.h"

#include "view/ContourLegend.h"

#include <QLineF>

#include <algorithm>
#include <cmath>

namespace vantrix::view {
namespace {

constexpr double leastStraightness = 0.92; /* of the line below a label: the chord to its length */
constexpr double labelsApart = 8.0;        /* label widths from one to the next on the same line */

/* A line measured along itself. */
class MeasuredLine
{
public:
    MeasuredLine(const SeenContourLine& line, const QRectF& area)
        : m_line(line)
    {
        for (const QPointF& place : line.places) {
            m_points << QPointF(area.left() + place.x() * area.width(), area.bottom() - place.y() * area.height());
        }
        m_lengths.push_back(0.0);
        for (qsizetype i = 1; i < m_points.size(); ++i) {
            m_lengths.push_back(m_lengths.back() + QLineF(m_points[i - 1], m_points[i]).length());
        }
    }

    double length() const { return m_lengths.back(); }
    bool isClosed() const { return m_points.size() > 2 && m_points.first() == m_points.last(); }

    QPointF pointAt(double length) const
    {
        const auto [i, part] = find(length);
        return m_points[i] + part * (m_points[i + 1] - m_points[i]);
    }

    double depthAt(double length) const
    {
        const auto [i, part] = find(length);
        return std::lerp(m_line.depths[std::size_t(i)], m_line.depths[std::size_t(i + 1)], part);
    }

private:
    std::pair<qsizetype, double> find(double length) const
    {
        const auto next = std::upper_bound(m_lengths.begin() + 1, m_lengths.end() - 1, length);
        const auto i = next - m_lengths.begin() - 1;
        const double segment = m_lengths[std::size_t(i + 1)] - m_lengths[std::size_t(i)];
        return {i, segment > 0.0 ? std::clamp((length - m_lengths[std::size_t(i)]) / segment, 0.0, 1.0) : 0.0};
    }

    const SeenContourLine& m_line;
    QPolygonF m_points;
    std::vector<double> m_lengths;
};

} // namespace

QFont ContourLabels::font(const ContourGroupStyle& group) const
{
    return m_canvas.font(group.labels.text.font, group.labels.text.inches(m_frameHeight));
}

std::vector<ContourLabel> ContourLabels::place(const std::vector<SeenContourLine>& lines,
                                               const std::function<bool(QPointF, double)>& isSeen) const
{
    std::vector<std::vector<QString>> texts;
    for (const ContourGroupStyle& group : m_groups) {
        texts.push_back(group.labels.isShown ? levelTexts(group) : std::vector<QString>());
    }
    std::vector<ContourLabel> labels;
    std::vector<QRectF> taken;
    for (const SeenContourLine& line : lines) {
        const ContourGroupStyle& group = m_groups[line.group];
        const auto nearest =
            std::ranges::min_element(group.levels, {}, [&](double level) { return std::abs(level - line.level); });
        const auto index = std::size_t(nearest - group.levels.begin());
        if (!group.labels.isShown || index % std::size_t(group.labels.skip) != 0 || line.places.size() < 2) {
            continue;
        }
        const QString& text = texts[line.group][index];
        const QSizeF size = m_canvas.textSize(text, font(group));
        const double width = size.width() + 0.5 * size.height();
        const MeasuredLine measured(line, m_area);
        const double length = measured.length();
        if (length < 1.5 * width) {
            continue;
        }
        const int count = std::max(1, int(length / (labelsApart * width)));
        for (int i = 0; i < count; ++i) {
            // Around the middle of its share of the line, a label takes the first place that is good.
            const double share = length / count;
            for (const double shift : {0.0, 0.15, -0.15, 0.3, -0.3, 0.4, -0.4}) {
                const double middle = (i + 0.5 + shift) * share;
                if (middle < 0.5 * width || middle > length - 0.5 * width) {
                    continue;
                }
                const QLineF chord(measured.pointAt(middle - 0.5 * width), measured.pointAt(middle + 0.5 * width));
                const double radians = std::atan2(-chord.dy(), chord.dx());
                const QSizeF bounds(std::abs(width * std::cos(radians)) + std::abs(size.height() * std::sin(radians)),
                                    std::abs(width * std::sin(radians)) + std::abs(size.height() * std::cos(radians)));
                const QRectF box(chord.center() - QPointF(0.5 * bounds.width(), 0.5 * bounds.height()), bounds);
                const bool isFree =
                    std::ranges::none_of(taken, [&](const QRectF& other) { return other.intersects(box); });
                const QPointF place((chord.center().x() - m_area.left()) / m_area.width(),
                                    (m_area.bottom() - chord.center().y()) / m_area.height());
                if (chord.length() < leastStraightness * width || !isFree || !m_area.contains(box) ||
                    !isSeen(place, measured.depthAt(middle))) {
                    continue;
                }
                double angle = radians * 180.0 / M_PI;
                angle = angle > 90.0 ? angle - 180.0 : angle <= -90.0 ? angle + 180.0 : angle;
                labels.push_back({line.group, place, angle, text});
                taken.push_back(box);
                break;
            }
        }
    }
    return labels;
}

void ContourLabels::paint(const std::vector<ContourLabel>& labels) const
{
    QPainter& painter = m_canvas.painter;
    for (const ContourLabel& label : labels) {
        const ContourLabelStyle& style = m_groups[label.group].labels;
        const QFont labelFont = font(m_groups[label.group]);
        const QPointF middle(m_area.left() + label.middle.x() * m_area.width(),
                             m_area.bottom() - label.middle.y() * m_area.height());
        if (style.isFilled) {
            const QSizeF size = m_canvas.textSize(label.text, labelFont);
            painter.save();
            painter.translate(middle);
            painter.rotate(-label.angle);
            painter.fillRect(QRectF(-0.5 * size.width() - 0.15 * size.height(), -0.5 * size.height(),
                                    size.width() + 0.3 * size.height(), size.height()),
                             style.fill);
            painter.restore();
        }
        m_canvas.drawTurnedText(middle, label.angle, label.text, labelFont, style.text.color);
    }
}

} // namespace vantrix::view
