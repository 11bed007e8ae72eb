#pragma once

#include <QAction>

class QDialog;

namespace vantrix::dialogs::common {

/// Opens a help page of the host when it is triggered. Give it to QtDialogAbstract::setHelpAction().
class LaunchHelpAction : public QAction
{
    Q_OBJECT

public:
    /// @param page    the name of the page's file ("create_zone_circular.html")
    /// @param dialog  owns the action
    LaunchHelpAction(QString page, QDialog* dialog);

    /// The page that would be opened now.
    virtual QString page() const { return m_page; }

private:
    void launch() const;

    QString m_page;
};

} // namespace vantrix::dialogs::common
