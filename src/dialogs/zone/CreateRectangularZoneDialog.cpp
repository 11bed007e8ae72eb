#include "dialogs/zone/CreateRectangularZoneDialog.h"

#include "dialogs/DialogInstance.h"
#include "dialogs/zone/CreateRectangularZoneDialogImpl.h"
#include "propertymanager/managers/zone/CreateRectangularZonePropertiesManager.h"
#include "ui/LaunchHelpAction.h"

namespace vantrix::sdk::ui::dialogs {

CreateRectangularZoneDialog& CreateRectangularZoneDialog::getInstance(QWidget& parent)
{
    return dialogInstance<CreateRectangularZoneDialog>([&parent] { return new CreateRectangularZoneDialog(parent); });
}

CreateRectangularZoneDialog::Relevance CreateRectangularZoneDialog::relevance()
{
    return propertymanager::CreateRectangularZonePropertiesManager::relevance();
}

CreateRectangularZoneDialog::CreateRectangularZoneDialog(QWidget& parent)
    : QtDialogAbstract(parent, relevance())
{
    setHelpAction(new vantrix::dialogs::common::LaunchHelpAction(QStringLiteral("create_zone_rectangular.html"), this));
}

CreateRectangularZoneDialog::~CreateRectangularZoneDialog() = default;

void CreateRectangularZoneDialog::launch()
{
    if (!m_impl) {
        m_impl = std::make_unique<CreateRectangularZoneDialogImpl>(*this);
        m_impl->setupPropertyBindings();
        m_impl->setupValidators();
    }
    QtDialogAbstract::launch();
}

void CreateRectangularZoneDialog::drop()
{
    if (m_impl) {
        m_impl->saveSize();
    }
    QtDialogAbstract::drop();
}

void CreateRectangularZoneDialog::reject()
{
    if (m_impl) {
        m_impl->saveAndCloseDialog();
    } else {
        QtDialogAbstract::reject();
    }
}

} // namespace vantrix::sdk::ui::dialogs
