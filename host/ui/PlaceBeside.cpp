#include "ui/PlaceBeside.h"

#include <QDialog>
#include <QMainWindow>
#include <QScreen>
#include <QStyle>

#include <algorithm>
#include <limits>
#include <vector>

namespace vantrix::dialogs::common {

namespace {

int area(QRect const& rect)
{
    return rect.isEmpty() ? 0 : rect.width() * rect.height();
}

} // namespace

void placeBesidePlot(QWidget& dialog)
{
    QWidget const* const parent = dialog.parentWidget();
    if (!parent || !parent->isVisible()) {
        return;
    }
    QWidget const& window = *parent->window();
    auto const* const mainWindow = qobject_cast<QMainWindow const*>(&window);
    QWidget const& plot = mainWindow && mainWindow->centralWidget() ? *mainWindow->centralWidget() : window;
    QRect const covered(plot.mapToGlobal(QPoint()), plot.size());
    QRect const frame = window.frameGeometry();
    QRect const screen = window.screen()->availableGeometry();

    int const title = dialog.style()->pixelMetric(QStyle::PM_TitleBarHeight);
    QSize const size = dialog.size() + QSize(0, title);
    int const right = std::min(frame.right() + 1, screen.right() + 1 - size.width());
    int const left = std::max(frame.left() - size.width(), screen.left());
    int const lowest = std::max(screen.top(), screen.bottom() - size.height());
    int const top = std::clamp(covered.top(), screen.top(), lowest);
    std::vector<QRect> toLeaveFree{covered};
    std::vector<int> tops{top};
    for (QDialog const* const other : window.findChildren<QDialog*>()) {
        if (other != &dialog && other->isVisible()) {
            toLeaveFree.push_back(other->frameGeometry());
            tops.push_back(std::clamp(toLeaveFree.back().bottom() + 1, screen.top(), lowest));
        }
    }
    QPoint best;
    int least = std::numeric_limits<int>::max();
    for (int const y : tops) {
        for (int const x : {right, left}) {
            int hidden = 0;
            for (QRect const& shown : toLeaveFree) {
                hidden += area(QRect(QPoint(x, y), size) & shown);
            }
            if (hidden < least) {
                least = hidden;
                best = {x, y};
            }
        }
    }
    dialog.move(best);
}

} // namespace vantrix::dialogs::common
