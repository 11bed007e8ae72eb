#include "view/LineLegend.h"

#include "view/LinePlot.h"
#include "view/MarkSymbol.h"

#include <algorithm>

namespace vantrix::view {
namespace {

constexpr double sampleWidthInTexts = 2.4;
constexpr double gapInTexts = 0.5;

/* Which part of a box lies before its anchor: across and down. */
QPointF anchorParts(AnchorAlignment_e anchor)
{
    const int number = static_cast<int>(anchor);
    return {0.5 * (number % 3), 0.5 * (number / 3)};
}

} // namespace

LineLegend::LineLegend(const Canvas& canvas, double frameHeight, const PlotStyle& style)
    : m_canvas(canvas)
    , m_frameHeight(frameHeight)
    , m_style(style)
    , m_legend(style.lineLegend)
    , m_font(canvas.font(m_legend.text.font, m_legend.text.inches(frameHeight)))
    , m_textHeight(canvas.textSize(QStringLiteral("X"), m_font).height())
{
    for (const LineMapStyle& map : style.lineMaps) {
        if (map.hasLines || map.hasSymbols) {
            m_maps.push_back(&map);
        }
    }
}

bool LineLegend::isShown() const
{
    return m_legend.isShown && !m_maps.empty();
}

double LineLegend::margin() const
{
    return m_legend.box == TextBox_None ? 0.0 : m_legend.boxMargin / 100.0 * m_textHeight;
}

double LineLegend::sampleWidth() const
{
    return sampleWidthInTexts * m_textHeight;
}

double LineLegend::rowHeight() const
{
    return m_legend.rowSpacing * m_textHeight;
}

QSizeF LineLegend::size() const
{
    double widest = 0.0;
    for (const LineMapStyle* map : m_maps) {
        widest = std::max(widest, m_canvas.textSize(QString::fromStdString(map->name), m_font).width());
    }
    const double text = m_legend.hasNames ? gapInTexts * m_textHeight + widest : 0.0;
    return {sampleWidth() + text + 2.0 * margin(), rowHeight() * double(m_maps.size()) + 2.0 * margin()};
}

QRectF LineLegend::placedRect(const QRectF& frame) const
{
    const QPointF anchor(frame.left() + m_legend.position.x() * frame.width(),
                         frame.bottom() - m_legend.position.y() * frame.height());
    const QPointF parts = anchorParts(m_legend.anchor);
    const QSizeF room = size();
    return {anchor - QPointF(parts.x() * room.width(), parts.y() * room.height()), room};
}

void LineLegend::paint(const QRectF& rect) const
{
    QPainter& painter = m_canvas.painter;
    painter.save();
    if (m_legend.box != TextBox_None) {
        painter.setPen(m_canvas.pen(m_legend.boxColor, m_legend.boxThickness / 100.0 * m_frameHeight));
        painter.setBrush(m_legend.box == TextBox_Filled ? QBrush(m_legend.boxFill) : QBrush(Qt::NoBrush));
        painter.drawRect(rect);
    }
    painter.setClipRect(rect.adjusted(-1.0, -1.0, 1.0, 1.0), Qt::IntersectClip);
    const double left = rect.left() + margin();
    double y = rect.top() + margin() + 0.5 * rowHeight();
    for (const LineMapStyle* map : m_maps) {
        if (y + 0.5 * m_textHeight > rect.bottom() + 1.0) {
            break;
        }
        if (map->hasLines) {
            painter.setPen(LinePlot::pen(m_canvas, m_frameHeight, *map));
            painter.drawLine(QPointF(left, y), QPointF(left + sampleWidth(), y));
        }
        if (map->hasSymbols) {
            MarkSymbol(m_canvas, m_frameHeight, map->symbol).draw({left + 0.5 * sampleWidth(), y});
        }
        if (m_legend.hasNames) {
            m_canvas.drawText({left + sampleWidth() + gapInTexts * m_textHeight, y}, Qt::AlignLeft | Qt::AlignVCenter,
                              QString::fromStdString(map->name), m_font, m_legend.text.color);
        }
        y += rowHeight();
    }
    painter.restore();
}

} // namespace vantrix::view
