#include "propertymanager/managers/zone/CreateRectangularZonePropertiesManager.h"

#include "api/VtxUtil.h"
#include "propertymanager/UIPropertyClassicDirectRelevance.h"
#include "propertymanager/managers/zone/ZoneCreation.h"
#include "sdk/AppLock.h"
#include "sdk/DataQueries.h"
#include "sdk/VtxUtilActionReporter.h"
#include "ui/relevance/StateChangeDependentRelevance.h"

namespace vantrix::sdk::ui::propertymanager {

long CreateRectangularZonePropertiesManager::m_iDimension = 10;
long CreateRectangularZonePropertiesManager::m_jDimension = 10;
long CreateRectangularZonePropertiesManager::m_kDimension = 10;

CreateRectangularZonePropertiesManager::CreateRectangularZonePropertiesManager()
    : m_xMin(0.0)
    , m_yMin(0.0)
    , m_zMin(0.0)
    , m_xMax(0.0)
    , m_yMax(0.0)
    , m_zMax(0.0)
    , m_i(m_iDimension)
    , m_j(m_jDimension)
    , m_k(m_kDimension)
    , m_updateOnIdle(
          [this](toolbox::StateChangeEventInterface const& event) { return stateChangeRequiresUpdate(event); },
          [this] { update(); })
{
    double xMin = 0.0, yMin = 0.0, zMin = 0.0, xMax = 0.0, yMax = 0.0, zMax = 0.0;
    GetDataExtents(xMin, yMin, zMin, xMax, yMax, zMax);
    m_xMin.setValue(xMin);
    m_yMin.setValue(yMin);
    m_zMin.setValue(zMin);
    m_xMax.setValue(xMax);
    m_yMax.setValue(yMax);
    m_zMax.setValue(zMax);
    update();
}

CreateRectangularZonePropertiesManager::~CreateRectangularZonePropertiesManager()
{
    m_iDimension = m_i.value();
    m_jDimension = m_j.value();
    m_kDimension = m_k.value();
}

void CreateRectangularZonePropertiesManager::createRectangularZone()
{
    AppLock const lock;
    zonecreation::MouseModeKeeper const mouseMode;
    VtxUtilUndoSetStepName("Create Rectangular Zone");
    // The first zone of a new data set changes so much in the plot that it needs no announcement.
    std::string const success = VtxUtilDataSetIsAvailable() ? "Rectangular zone created." : "";
    bool const created = VtxUtilCreateRectangularZone(m_i.value(), m_j.value(), m_k.value(), m_xMin.value(),
                                                      m_yMin.value(), m_zMin.value(), m_xMax.value(), m_yMax.value(),
                                                      m_zMax.value(), FieldDataType_Float);
    VtxUtilActionReporter().reportResult(created, "Error creating rectangular zone", success);
}

void CreateRectangularZonePropertiesManager::update()
{
    if (!IsOkToMake3DZone()) {
        m_k.setValue(1);
    }
    updateSensitivities();
}

void CreateRectangularZonePropertiesManager::updateSensitivities()
{
    bool const isOk = IsOkToMake3DZone();
    UIPropertyClassicDirectRelevance::directSetPropertySensitivity(m_zMin, isOk);
    UIPropertyClassicDirectRelevance::directSetPropertySensitivity(m_zMax, isOk);
    UIPropertyClassicDirectRelevance::directSetPropertySensitivity(m_k, isOk);
}

bool CreateRectangularZonePropertiesManager::stateChangeRequiresUpdate(
    toolbox::StateChangeEventInterface const& event) const
{
    return zonecreation::mayAffect3DZones(event);
}

bool CreateRectangularZonePropertiesManager::contextIsValid()
{
    return zonecreation::contextIsValid();
}

boost::shared_ptr<RelevanceInterface const> CreateRectangularZonePropertiesManager::relevance()
{
    static auto const relevance = boost::make_shared<StateChangeDependentRelevance const>(
        &CreateRectangularZonePropertiesManager::contextIsValid, zonecreation::contextExplanation);
    return relevance;
}

} // namespace vantrix::sdk::ui::propertymanager
