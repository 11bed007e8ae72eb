#include "dialogs/zone/DeleteZoneDialog.h"

#include "dialogs/DialogInstance.h"
#include "propertybindings/ListViewPropertyBinding.h"
#include "propertybindings/ListViewPropertySynchronizer.h"
#include "propertymanager/managers/zone/DeleteZonePropertiesManager.h"
#include "ui/ButtonBinding.h"
#include "ui/LaunchHelpAction.h"
#include "ui_DeleteZoneDialog.h"

#include <boost/ptr_container/ptr_vector.hpp>

namespace vantrix::sdk::ui::dialogs {

using namespace propertybindings;

class DeleteZoneDialog::Impl
{
public:
    explicit Impl(DeleteZoneDialog& dialog);

private:
    void bindPropertiesToControls(QPushButton* deleteButton);

    propertymanager::DeleteZonePropertiesManager m_manager;
    Ui::DeleteZone m_form;
    boost::ptr_vector<BindingInterface> m_bindings;
    std::unique_ptr<ListViewPropertySynchronizer<std::set<int>>> m_zonesSynchronizer;
};

DeleteZoneDialog::Impl::Impl(DeleteZoneDialog& dialog)
{
    m_form.setupUi(&dialog);
    bindPropertiesToControls(m_form.buttonBox->addButton(tr("&Delete"), QDialogButtonBox::ActionRole));
}

void DeleteZoneDialog::Impl::bindPropertiesToControls(QPushButton* deleteButton)
{
    m_bindings.push_back(new ButtonBinding(deleteButton, [this] { m_manager.deleteZones(); }));
    ListViewPropertyBinding const list(*m_form.deleteZone_Select_MList, ListViewPropertyBinding::ExtendedSelection);
    m_zonesSynchronizer = std::make_unique<ListViewPropertySynchronizer<std::set<int>>>(
        *m_form.deleteZone_Select_MList, m_manager.selectedZones(), m_manager.enabledZonesModel(),
        BindingInterface::OnIdle);
}

DeleteZoneDialog& DeleteZoneDialog::getInstance(QWidget& parent)
{
    return dialogInstance<DeleteZoneDialog>([&parent] { return new DeleteZoneDialog(parent); });
}

DeleteZoneDialog::Relevance DeleteZoneDialog::relevance()
{
    return propertymanager::DeleteZonePropertiesManager::relevance();
}

DeleteZoneDialog::DeleteZoneDialog(QWidget& parent)
    : QtDialogAbstract(parent, relevance())
    , m_impl(std::make_unique<Impl>(*this))
{
    setHelpAction(new vantrix::dialogs::common::LaunchHelpAction(QStringLiteral("delete_zone.html"), this));
}

DeleteZoneDialog::~DeleteZoneDialog() = default;

} // namespace vantrix::sdk::ui::dialogs
