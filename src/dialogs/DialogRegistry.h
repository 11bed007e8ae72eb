#pragma once

#include "ui/QtDialogAbstract.h"

#include <QPointer>
#include <QString>

#include <functional>
#include <vector>

namespace vantrix::sdk::ui::dialogs {

/// One dialog as an application offers it: where it stands in the menus, and how it is opened and closed.
class DialogEntry
{
public:
    using GetInstance = std::function<vantrix::dialogs::common::QtDialogAbstract&(QWidget& parent)>;

    /// @param menuPath  titles from the menu bar down, with access keys, joined by '/' ("&Data/&Create
    /// Zone/&Circular...")
    /// @param name      of files about the dialog, such as a picture of it ("create_zone_circular")
    DialogEntry(QString menuPath, QString name, GetInstance getInstance);

    QString const& menuPath() const { return m_menuPath; }
    QString const& name() const { return m_name; }

    /// Shows the dialog, creating it on first use. When the present data do not let it be created, the user is told why
    /// and null is returned; otherwise the dialog, which belongs to its parent.
    vantrix::dialogs::common::QtDialogAbstract* launch(QWidget& parent) const;

    /// Hides the dialog if it is there.
    void drop() const;

private:
    QString m_menuPath;
    QString m_name;
    GetInstance m_getInstance;
    mutable QPointer<vantrix::dialogs::common::QtDialogAbstract> m_dialog; ///< the one that was launched
};

/// All dialogs, in the order of the menus. A new dialog is added here and nowhere else.
std::vector<DialogEntry> const& dialogRegistry();

} // namespace vantrix::sdk::ui::dialogs
