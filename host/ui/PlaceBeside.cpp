#include "ui/PlaceBeside.h"

#include <QMainWindow>
#include <QScreen>
#include <QStyle>

#include <algorithm>

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
    int const top = std::clamp(covered.top(), screen.top(), std::max(screen.top(), screen.bottom() - size.height()));
    auto const coveredAt = [&](int x) { return area(QRect(QPoint(x, top), size) & covered); };
    dialog.move(coveredAt(left) < coveredAt(right) ? left : right, top);
}

} // namespace vantrix::dialogs::common
