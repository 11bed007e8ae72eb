#pragma once

#include "property/Property.h"
#include "propertymanager/RelevanceInterface.h"
#include "ui/models/ZoneListModel.h"

#include <set>

namespace vantrix::sdk::ui::propertymanager {

/// Which zones the user chose, and the action that deletes them.
class DeleteZonePropertiesManager
{
public:
    DeleteZonePropertiesManager();

    /// Zone numbers; empty at first and after each attempt to delete.
    boost::shared_ptr<PropertyAbstract<std::set<int>>> selectedZones() const { return m_selectedZones; }

    boost::shared_ptr<dialogs::propertybindings::models::ZoneListModel> enabledZonesModel() const
    {
        return m_enabledZonesModel;
    }

    /// Deletes the selected zones and tells how that ended. Refused with a message when none or every enabled zone is
    /// selected; the selection then stays.
    void deleteZones();

    /// Whether there is a frame with a data set.
    static bool contextIsValid();

    /// Holds while contextIsValid(); one for the process.
    static boost::shared_ptr<RelevanceInterface const> relevance();

private:
    boost::shared_ptr<Property<std::set<int>>> m_selectedZones;
    boost::shared_ptr<dialogs::propertybindings::models::ZoneListModel> m_enabledZonesModel;
};

} // namespace vantrix::sdk::ui::propertymanager
