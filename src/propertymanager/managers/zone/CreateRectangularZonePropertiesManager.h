#pragma once

#include "propertymanager/RelevanceInterface.h"
#include "propertymanager/UILocalStyleProperty.h"
#include "sdk/OnIdleAfterStateChangeActionPerformer.h"

#include <boost/shared_ptr.hpp>

namespace vantrix::sdk::ui::propertymanager {

/// What the user chooses for a new rectangular zone, and the action that creates it.
///
/// The dimensions outlive the manager: the next one starts with them. The coordinates start as the extents of the data.
class CreateRectangularZonePropertiesManager
{
public:
    CreateRectangularZonePropertiesManager();
    ~CreateRectangularZonePropertiesManager();
    CreateRectangularZonePropertiesManager(CreateRectangularZonePropertiesManager const&) = delete;
    CreateRectangularZonePropertiesManager& operator=(CreateRectangularZonePropertiesManager const&) = delete;

    UILocalStyleProperty<double>& XMin() { return m_xMin; }
    UILocalStyleProperty<double>& YMin() { return m_yMin; }
    UILocalStyleProperty<double>& ZMin() { return m_zMin; } ///< sensitive while zones may have a third dimension
    UILocalStyleProperty<double>& XMax() { return m_xMax; }
    UILocalStyleProperty<double>& YMax() { return m_yMax; }
    UILocalStyleProperty<double>& ZMax() { return m_zMax; } ///< as ZMin()
    UILocalStyleProperty<long>& I() { return m_i; }
    UILocalStyleProperty<long>& J() { return m_j; }
    UILocalStyleProperty<long>& K() { return m_k; } ///< as ZMin(); 1 while it is not sensitive

    /// Creates the zone in the current data set and reports how that ended. The mouse mode is as before afterwards.
    void createRectangularZone();

    /// Sets K to 1 when no zone with a third dimension can be made, then updateSensitivities().
    void update();
    void updateSensitivities();

    /// Whether a state change calls for update().
    bool stateChangeRequiresUpdate(toolbox::StateChangeEventInterface const& event) const;

    static bool contextIsValid();

    /// Holds while contextIsValid(); one for the process.
    static boost::shared_ptr<RelevanceInterface const> relevance();

private:
    UILocalStyleProperty<double> m_xMin;
    UILocalStyleProperty<double> m_yMin;
    UILocalStyleProperty<double> m_zMin;
    UILocalStyleProperty<double> m_xMax;
    UILocalStyleProperty<double> m_yMax;
    UILocalStyleProperty<double> m_zMax;
    UILocalStyleProperty<long> m_i;
    UILocalStyleProperty<long> m_j;
    UILocalStyleProperty<long> m_k;
    OnIdleAfterStateChangeActionPerformer m_updateOnIdle;

    static long m_iDimension;
    static long m_jDimension;
    static long m_kDimension;
};

} // namespace vantrix::sdk::ui::propertymanager
