#include "ui/TabWidgetLaunchHelpAction.h"

#include <QTabWidget>

namespace vantrix::dialogs::common {

namespace {

QString pageOf(QWidget const* widget, TabWidgetLaunchHelpAction::Pages const& pages)
{
    auto const found = pages.find(widget);
    return found == pages.end() ? QString() : found->second;
}

} // namespace

TabWidgetLaunchHelpAction::TabWidgetLaunchHelpAction(Pages pages, QTabWidget* tabWidget, QDialog* dialog)
    : LaunchHelpAction(pageOf(tabWidget->widget(0), pages), dialog)
    , m_pages(std::move(pages))
    , m_tabWidget(tabWidget)
{}

QString TabWidgetLaunchHelpAction::page() const
{
    QString const page = m_tabWidget ? pageOf(m_tabWidget->currentWidget(), m_pages) : QString();
    return page.isEmpty() ? LaunchHelpAction::page() : page;
}

} // namespace vantrix::dialogs::common
