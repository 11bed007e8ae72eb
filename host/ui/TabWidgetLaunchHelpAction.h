#pragma once

#include "ui/LaunchHelpAction.h"

#include <QPointer>

#include <map>

class QTabWidget;

namespace vantrix::dialogs::common {

/// Opens the help page of the tab that is current.
class TabWidgetLaunchHelpAction : public LaunchHelpAction
{
    Q_OBJECT

public:
    using Pages = std::map<QWidget const*, QString>;

    /// @param pages      the help page of each page widget; a tab without one has the help of the first tab
    /// @param tabWidget  not null
    /// @param dialog     owns the action
    TabWidgetLaunchHelpAction(Pages pages, QTabWidget* tabWidget, QDialog* dialog);

    QString page() const override;

private:
    Pages m_pages;
    QPointer<QTabWidget> m_tabWidget;
};

} // namespace vantrix::dialogs::common
