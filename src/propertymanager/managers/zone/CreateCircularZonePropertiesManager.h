#pragma once

#include "property/PropertyAbstract.h"
#include "propertymanager/RelevanceInterface.h"

#include <memory>

namespace vantrix::sdk::ui::propertymanager {

/// What the user chooses for a new circular zone, and the action that creates it.
///
/// The dimensions are kept for the life of the process and shared by all managers. Radius, origin and Z range are
/// computed from the extents of the data when the manager is made.
class CreateCircularZonePropertiesManager
{
public:
    using LongProperty = boost::shared_ptr<PropertyAbstract<long>>;
    using DoubleProperty = boost::shared_ptr<PropertyAbstract<double>>;

    /// @throws InvalidPropertyValueException when the data have no extent in X and Y, as the radius would be 0
    CreateCircularZonePropertiesManager();
    ~CreateCircularZonePropertiesManager();

    LongProperty IDim() const; ///< points along the radius, at least 2
    LongProperty JDim() const; ///< points around the circumference, at least 4
    LongProperty KDim() const; ///< points from top to bottom, at least 1

    DoubleProperty Radius() const; ///< above 0
    DoubleProperty XOrg() const;
    DoubleProperty YOrg() const;
    DoubleProperty ZMin() const;
    DoubleProperty ZMax() const;

    /// Creates the zone in the current data set and reports how that ended. The mouse mode is as before afterwards.
    void createCircularZone();

    /// Holds while a zone can be created: in a 2D or 3D Cartesian plot, or in a sketch that has no data yet.
    static boost::shared_ptr<RelevanceInterface const> relevance();

    /// Holds while a zone with more than one K plane can be created. Asking it sets the K dimension to 1 where not.
    boost::shared_ptr<RelevanceInterface const> threeDElementsRelevance() const;

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace vantrix::sdk::ui::propertymanager
