#include "view/Coordinates.h"

#include "view/NumberText.h"

namespace vantrix::view {
namespace {

QString number(double value, int digits)
{
    return QString::fromStdString(numberText(value, digits));
}

QString name(const AxisStyle& axis, const char* otherwise)
{
    return axis.title.words.empty() ? QString::fromLatin1(otherwise) : QString::fromStdString(axis.title.words);
}

} // namespace

QString coordinatesText(const FramePlot* plot, QPointF inFrame, QPointF onPaper, const PaperSpacing& ruler)
{
    if (plot) {
        if (const auto data = plot->dataAt(inFrame)) {
            return QStringLiteral("%1 = %2   %3 = %4")
                .arg(name(plot->style.axes[0], plot->polar ? "Theta" : "X"), number(data->x(), 6),
                     name(plot->style.axes[1], plot->polar ? "R" : "Y"), number(data->y(), 6));
        }
    }
    const auto inUnits = [&](double inches) { return QString::number(inches * ruler.unitsPerInch, 'f', 2); };
    return QStringLiteral("Paper: %1, %2 %3")
        .arg(inUnits(onPaper.x()), inUnits(onPaper.y()), QString::fromLatin1(ruler.unit));
}

} // namespace vantrix::view
