#include "propertymanager/managers/zone/CreateCircularZonePropertiesManager.h"

#include "api/VtxUtil.h"
#include "property/BoundedValueValidator.h"
#include "property/Property.h"
#include "propertymanager/managers/zone/ZoneCreation.h"
#include "sdk/AppLock.h"
#include "sdk/DataQueries.h"
#include "sdk/VtxUtilActionReporter.h"
#include "toolbox/StateChangeEventInterface.h"
#include "ui/relevance/StateChangeDependentRelevance.h"

#include <cmath>
#include <limits>

namespace vantrix::sdk::ui::propertymanager {

namespace {

using vantrix::toolbox::StateChangeEventInterface;

bool isCreatingZone = false;

/// Tells, while it lives, that the state changes to come are the dialog's own.
class CreatingZone
{
public:
    CreatingZone()
        : m_before(std::exchange(isCreatingZone, true))
    {}
    ~CreatingZone() { isCreatingZone = m_before; }
    CreatingZone(CreatingZone const&) = delete;
    CreatingZone& operator=(CreatingZone const&) = delete;

private:
    bool m_before;
};

boost::shared_ptr<Property<long>> newDimension(long initial, long minimum)
{
    return boost::make_shared<Property<long>>(
        initial, boost::make_shared<BoundedValueValidator<long>>(minimum, std::numeric_limits<long>::max()));
}

boost::shared_ptr<Property<long>> const iDimension = newDimension(10, 2);
boost::shared_ptr<Property<long>> const jDimension = newDimension(25, 4);
boost::shared_ptr<Property<long>> const kDimension = newDimension(10, 1);

boost::shared_ptr<Property<double>> newRadius(double initial)
{
    using Validator = BoundedValueValidator<double>;
    return boost::make_shared<Property<double>>(
        initial,
        boost::make_shared<Validator>(0.0, std::numeric_limits<double>::max(), Validator::LowerBound::Exclusive));
}

bool isOkToCreateCircularZone()
{
    bool const isOk = IsOkToMake3DZone();
    if (!isOk) {
        kDimension->setValue(1);
    }
    return isOk;
}

bool mayChangeThreeDRelevance(StateChangeEventInterface const& event)
{
    return !isCreatingZone && zonecreation::mayAffect3DZones(event);
}

} // namespace

class CreateCircularZonePropertiesManager::Impl
{
public:
    Impl();

    boost::shared_ptr<Property<double>> radius;
    boost::shared_ptr<Property<double>> xOrigin;
    boost::shared_ptr<Property<double>> yOrigin;
    boost::shared_ptr<Property<double>> zMin;
    boost::shared_ptr<Property<double>> zMax;
    boost::shared_ptr<StateChangeDependentRelevance> threeDElementsRelevance;
};

CreateCircularZonePropertiesManager::Impl::Impl()
{
    double xMin = 0.0, yMin = 0.0, zLow = 0.0, xMax = 0.0, yMax = 0.0, zHigh = 0.0;
    GetDataExtents(xMin, yMin, zLow, xMax, yMax, zHigh);
    bool const isSketch = VtxUtilFrameGetPlotType() == PlotType_Sketch;
    radius = newRadius(isSketch ? 1.0 : std::hypot((xMax - xMin) / 2, (yMax - yMin) / 2));
    xOrigin = boost::make_shared<Property<double>>(isSketch ? 0.0 : (xMin + xMax) / 2);
    yOrigin = boost::make_shared<Property<double>>(isSketch ? 0.0 : (yMin + yMax) / 2);
    zMin = boost::make_shared<Property<double>>(zLow);
    zMax = boost::make_shared<Property<double>>(zHigh);
    threeDElementsRelevance = boost::make_shared<StateChangeDependentRelevance>(
        &mayChangeThreeDRelevance, &isOkToCreateCircularZone, zonecreation::oneKPlaneExplanation);
}

CreateCircularZonePropertiesManager::CreateCircularZonePropertiesManager()
    : m_impl(std::make_unique<Impl>())
{}

CreateCircularZonePropertiesManager::~CreateCircularZonePropertiesManager() = default;

CreateCircularZonePropertiesManager::LongProperty CreateCircularZonePropertiesManager::IDim() const
{
    return iDimension;
}

CreateCircularZonePropertiesManager::LongProperty CreateCircularZonePropertiesManager::JDim() const
{
    return jDimension;
}

CreateCircularZonePropertiesManager::LongProperty CreateCircularZonePropertiesManager::KDim() const
{
    return kDimension;
}

CreateCircularZonePropertiesManager::DoubleProperty CreateCircularZonePropertiesManager::Radius() const
{
    return m_impl->radius;
}

CreateCircularZonePropertiesManager::DoubleProperty CreateCircularZonePropertiesManager::XOrg() const
{
    return m_impl->xOrigin;
}

CreateCircularZonePropertiesManager::DoubleProperty CreateCircularZonePropertiesManager::YOrg() const
{
    return m_impl->yOrigin;
}

CreateCircularZonePropertiesManager::DoubleProperty CreateCircularZonePropertiesManager::ZMin() const
{
    return m_impl->zMin;
}

CreateCircularZonePropertiesManager::DoubleProperty CreateCircularZonePropertiesManager::ZMax() const
{
    return m_impl->zMax;
}

void CreateCircularZonePropertiesManager::createCircularZone()
{
    AppLock const lock;
    zonecreation::MouseModeKeeper const mouseMode;
    CreatingZone const creatingZone;
    VtxUtilUndoSetStepName("Create Circular Zone");
    // The first zone of a new data set changes so much in the plot that it needs no announcement.
    std::string const success = VtxUtilDataSetIsAvailable() ? "Circular zone created." : "";
    std::string const failure = "Error creating circular zone. One or more index values may be too large.";
    bool const created =
        VtxUtilCreateCircularZone(IDim()->value(), JDim()->value(), KDim()->value(), XOrg()->value(), YOrg()->value(),
                                  Radius()->value(), ZMin()->value(), ZMax()->value(), FieldDataType_Float);
    VtxUtilActionReporter().reportResult(created, failure, success);
}

boost::shared_ptr<RelevanceInterface const> CreateCircularZonePropertiesManager::relevance()
{
    static auto const relevance = boost::make_shared<StateChangeDependentRelevance const>(
        &zonecreation::contextIsValid, zonecreation::contextExplanation);
    return relevance;
}

boost::shared_ptr<RelevanceInterface const> CreateCircularZonePropertiesManager::threeDElementsRelevance() const
{
    return m_impl->threeDElementsRelevance;
}

} // namespace vantrix::sdk::ui::propertymanager
