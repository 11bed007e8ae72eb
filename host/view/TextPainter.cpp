#include "view/TextPainter.h"

#include "view/ColorMap.h"
#include "view/ObjectPlace.h"

#include <QFontMetricsF>
#include <QTransform>

#include <algorithm>
#include <cmath>

namespace vantrix::view {
namespace {

constexpr double pointsPerInch = 72.0;

/* 0, 0.5 or 1: the anchor's place along the width, from the left, and along the height, from the bottom. */
QPointF anchorPart(TextAnchor_e anchor)
{
    const int column = static_cast<int>(anchor) % 3;
    const int row = static_cast<int>(anchor) / 3;
    return {0.5 * column, 0.5 * row};
}

} // namespace

TextPainter::TextPainter(const Canvas& canvas, const QRectF& frame, const FramePlot& plot, const kernel::Text& text,
                         LatexPictures* latex)
    : m_canvas(canvas)
    , m_text(text)
    , m_anchor(anchor(frame, plot))
    , m_height(height(frame, plot))
    , m_font(font(m_height))
    , m_lines(QString::fromStdString(text.text).split(QLatin1Char('\n')))
    , m_picture(picture(latex))
    , m_frameHeight(frame.height())
{}

std::optional<QPointF> TextPainter::anchor(const QRectF& frame, const FramePlot& plot) const
{
    const auto place = objectPlace(plot, frame.size() / m_canvas.inch, m_text.coordSys, {m_text.x, m_text.y, m_text.z});
    return place ? std::optional(frame.topLeft() + *place * m_canvas.inch) : std::nullopt;
}

double TextPainter::height(const QRectF& frame, const FramePlot& plot) const
{
    switch (m_text.sizeUnits) {
    case Units_Point:
        return m_text.height / pointsPerInch * m_canvas.inch;
    case Units_Grid:
        if (plot.y && !plot.y->isLogarithmic()) {
            return m_text.height / (plot.y->maximum() - plot.y->minimum()) * plot.area.height() * m_canvas.inch;
        }
        break;
    case Units_Frame:
        break;
    }
    return m_text.height / 100.0 * frame.height();
}

QFont TextPainter::font(double height) const
{
    QFont font = m_canvas.font(height / m_canvas.inch, m_text.isBold);
    const QString family = QString::fromStdString(m_text.fontFamily);
    font.setFamilies(QStringList(family) + font.families());
    font.setItalic(m_text.isItalic);
    const double capital = QFontMetricsF(font, m_canvas.painter.device()).capHeight();
    if (capital > 0.0) {
        font.setPointSizeF(font.pointSizeF() * height / capital);
    }
    return font;
}

const LatexPictures::Picture* TextPainter::picture(LatexPictures* latex) const
{
    if (!latex || m_text.type != TextType_LaTeX || !m_anchor) {
        return nullptr;
    }
    const LatexPictures::Picture& made = latex->picture(QString::fromStdString(m_text.text), indexedColor(m_text.color),
                                                        m_height * m_canvas.resolution());
    return made.error.isEmpty() ? &made : nullptr;
}

double TextPainter::lineDistance() const
{
    return QFontMetricsF(m_font, m_canvas.painter.device()).height() * m_text.lineSpacing;
}

QSizeF TextPainter::size() const
{
    if (m_picture) {
        return QSizeF(m_picture->image.size()) / m_picture->dpi * (m_height / LatexCompiler::capitalHeight);
    }
    double width = 0.0;
    for (const QString& line : m_lines) {
        width = std::max(width, m_canvas.textSize(line, m_font).width());
    }
    const QFontMetricsF metrics(m_font, m_canvas.painter.device());
    return {width, double(m_lines.size() - 1) * lineDistance() + metrics.capHeight()};
}

QRectF TextPainter::body() const
{
    const QSizeF extent = size();
    const QPointF part = anchorPart(m_text.anchor);
    // Y goes down: the bottom is at part.y() heights below the anchor.
    return {QPointF(-part.x() * extent.width(), (part.y() - 1.0) * extent.height()), extent};
}

QRectF TextPainter::box() const
{
    const double margin = m_text.box == TextBox_None ? 0.0 : m_text.boxMargin / 100.0 * m_height;
    return body().adjusted(-margin, -margin, margin, margin);
}

QPolygonF TextPainter::outline() const
{
    if (!m_anchor) {
        return {};
    }
    return QTransform::fromTranslate(m_anchor->x(), m_anchor->y()).rotate(-m_text.angle).map(QPolygonF(box()));
}

void TextPainter::paint() const
{
    if (!m_anchor) {
        return;
    }
    QPainter& painter = m_canvas.painter;
    painter.save();
    painter.translate(*m_anchor);
    painter.rotate(-m_text.angle);
    if (m_text.box != TextBox_None) {
        const double thickness = m_text.boxLineThickness / 100.0 * m_frameHeight / m_canvas.inch;
        painter.setPen(m_canvas.pen(indexedColor(m_text.boxColor), thickness));
        painter.setBrush(m_text.box == TextBox_Filled ? QBrush(indexedColor(m_text.boxFillColor)) : QBrush());
        painter.drawRect(box());
    }
    if (m_picture) {
        painter.setRenderHint(QPainter::SmoothPixmapTransform);
        painter.drawImage(body(), m_picture->image);
    } else {
        paintLines(body());
    }
    painter.restore();
    m_canvas.markArea({.type = PickObject_Text, .number = m_text.handle}, outline());
}

void TextPainter::paintLines(const QRectF& place) const
{
    QPainter& painter = m_canvas.painter;
    painter.setFont(m_font);
    painter.setPen(indexedColor(m_text.color));
    double baseline = place.bottom() - double(m_lines.size() - 1) * lineDistance();
    for (const QString& line : m_lines) {
        // Lines are aligned to the side that the anchor is on.
        const double room = place.width() - m_canvas.textSize(line, m_font).width();
        painter.drawText(QPointF(place.left() + anchorPart(m_text.anchor).x() * room, baseline), line);
        baseline += lineDistance();
    }
}

} // namespace vantrix::view
