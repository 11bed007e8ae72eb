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

QString coordinatesText(const FramePlot* plot, QPointF inFrame, QPointF onPaper)
{
    if (plot) {
        if (const auto data = plot->dataAt(inFrame)) {
            return QStringLiteral("%1 = %2   %3 = %4")
                .arg(name(plot->style.axes[0], plot->polar ? "Theta" : "X"), number(data->x(), 6),
                     name(plot->style.axes[1], plot->polar ? "R" : "Y"), number(data->y(), 6));
        }
    }
    return QStringLiteral("Paper: %1, %2 in")
        .arg(QString::number(onPaper.x(), 'f', 2), QString::number(onPaper.y(), 'f', 2));
}

} // namespace vantrix::view
