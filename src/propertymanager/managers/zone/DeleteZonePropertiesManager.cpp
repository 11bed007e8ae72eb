#include "propertymanager/managers/zone/DeleteZonePropertiesManager.h"

#include "api/VtxUtil.h"
#include "sdk/AppLock.h"
#include "sdk/DataQueries.h"
#include "sdk/VtxUtilActionReporter.h"
#include "toolbox/Set.h"
#include "ui/relevance/StateChangeDependentRelevance.h"

namespace vantrix::sdk::ui::propertymanager {

DeleteZonePropertiesManager::DeleteZonePropertiesManager()
    : m_selectedZones(boost::make_shared<Property<std::set<int>>>(std::set<int>()))
    , m_enabledZonesModel(boost::make_shared<dialogs::propertybindings::models::ZoneListModel>())
{}

void DeleteZonePropertiesManager::deleteZones()
{
    AppLock const lock;
    std::set<int> const selected = m_selectedZones->value();
    if (selected.empty()) {
        VtxUtilDialogMessageBox("No zones are selected", MessageBox_Information);
        return;
    }
    if (selected == getEnabledZones().members()) {
        VtxUtilDialogErrMsg("Cannot delete the last zone in a data set.");
        return;
    }
    VtxUtilUndoSetStepName("Delete Zone");
    bool const deleted = VtxUtilDataSetDeleteZone(toolbox::Set(selected).handle());
    VtxUtilActionReporter().reportResult(deleted, "Error attempting to delete zone(s)", "Zone deletion successful");
    m_selectedZones->setValue({});
}

bool DeleteZonePropertiesManager::contextIsValid()
{
    AppLock const lock(false);
    return dataSetAndFrameAreAvailable();
}

boost::shared_ptr<RelevanceInterface const> DeleteZonePropertiesManager::relevance()
{
    static auto const relevance = boost::make_shared<StateChangeDependentRelevance const>(
        &DeleteZonePropertiesManager::contextIsValid,
        "There is no data set whose zones could be deleted. Open a file first.");
    return relevance;
}

} // namespace vantrix::sdk::ui::propertymanager
