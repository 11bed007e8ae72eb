#include "ui/ReadingOrder.h"

#include <QFormLayout>
#include <QGridLayout>
#include <QScrollArea>
#include <QSplitter>
#include <QStackedWidget>
#include <QTabBar>
#include <QTabWidget>

#include <algorithm>
#include <numeric>
#include <utility>

namespace vantrix::dialogs::common {

namespace {

using Widgets = std::vector<QWidget*>;

void collect(QWidget& widget, Widgets& found);

std::pair<int, int> position(QLayout const& layout, int index)
{
    std::pair<int, int> result(0, index);
    if (auto const* const grid = qobject_cast<QGridLayout const*>(&layout)) {
        int rowSpan = 0;
        int columnSpan = 0;
        grid->getItemPosition(index, &result.first, &result.second, &rowSpan, &columnSpan);
    } else if (auto const* const form = qobject_cast<QFormLayout const*>(&layout)) {
        QFormLayout::ItemRole role = QFormLayout::LabelRole;
        form->getItemPosition(index, &result.first, &role);
        result.second = role;
    }
    return result;
}

void collect(QLayout& layout, Widgets& found)
{
    std::vector<int> order(static_cast<std::size_t>(layout.count()));
    std::iota(order.begin(), order.end(), 0);
    std::stable_sort(order.begin(), order.end(),
                     [&](int left, int right) { return position(layout, left) < position(layout, right); });
    for (int const index : order) {
        QLayoutItem* const item = layout.itemAt(index);
        if (item->widget()) {
            collect(*item->widget(), found);
        } else if (item->layout()) {
            collect(*item->layout(), found);
        }
    }
}

template<typename Container>
void collectPages(Container const& container, Widgets& found)
{
    for (int index = 0; index < container.count(); ++index) {
        collect(*container.widget(index), found);
    }
}

void collect(QWidget& widget, Widgets& found)
{
    auto const* const tabs = qobject_cast<QTabWidget*>(&widget);
    if (tabs) {
        found.push_back(tabs->tabBar());
        collectPages(*tabs, found);
        return;
    }
    if (widget.focusPolicy() & Qt::TabFocus) {
        found.push_back(&widget);
    }
    if (auto const* const stack = qobject_cast<QStackedWidget*>(&widget)) {
        collectPages(*stack, found);
    } else if (auto const* const splitter = qobject_cast<QSplitter*>(&widget)) {
        collectPages(*splitter, found);
    } else if (auto const* const area = qobject_cast<QScrollArea*>(&widget); area && area->widget()) {
        collect(*area->widget(), found);
    } else if (widget.layout()) {
        collect(*widget.layout(), found);
    }
}

} // namespace

std::vector<QWidget*> widgetsInReadingOrder(QWidget& root)
{
    Widgets found;
    if (root.layout()) {
        collect(*root.layout(), found);
    }
    return found;
}

void applyTabOrder(std::vector<QWidget*> const& widgets)
{
    for (std::size_t index = 1; index < widgets.size(); ++index) {
        QWidget::setTabOrder(widgets[index - 1], widgets[index]);
    }
}

} // namespace vantrix::dialogs::common
