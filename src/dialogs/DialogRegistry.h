#pragma once

#include "api/VtxEnumerations.h"
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

    /// The same entry, which besides opens on a picked object of one type: `getPicked` then returns the dialog, aimed
    /// at the first object of the pick list.
    DialogEntry editing(PickObject_e type, GetInstance getPicked) const;

    /// Whether the dialog edits picked objects of a type.
    bool edits(PickObject_e type) const { return m_getPicked && m_pickedType == type; }

    /// The same as launch(), on the first object of the pick list.
    vantrix::dialogs::common::QtDialogAbstract* launchForPicked(QWidget& parent) const;

private:
    vantrix::dialogs::common::QtDialogAbstract* launch(GetInstance const& getInstance, QWidget& parent) const;

    QString m_menuPath;
    QString m_name;
    GetInstance m_getInstance;
    GetInstance m_getPicked; ///< empty for a dialog that edits no picked object
    PickObject_e m_pickedType = PickObject_None;
    mutable QPointer<vantrix::dialogs::common::QtDialogAbstract> m_dialog; ///< the one that was launched
};

/// All dialogs, in the order of the menus. A new dialog is added here and nowhere else.
std::vector<DialogEntry> const& dialogRegistry();

/// Opens the dialog that edits picked objects of a type, on the first one; false when there is none.
bool launchDialogForPicked(PickObject_e type, QWidget& parent);

} // namespace vantrix::sdk::ui::dialogs
