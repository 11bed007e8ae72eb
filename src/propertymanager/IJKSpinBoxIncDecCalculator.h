#pragma once

#include "property/PropertyAbstract.h"
#include "propertymanager/SpinBoxIncDecCalculatorIJKAbstract.h"

namespace vantrix::sdk::ui::propertymanager {

/// Steps the index at which the plot is probed: within the zone chosen, in a line plot within the zone behind the line
/// map chosen.
class IJKSpinBoxIncDecCalculator : public SpinBoxIncDecCalculatorIJKAbstract
{
public:
    /// @param zone, lineMap  the numbers chosen; outlive the calculator
    IJKSpinBoxIncDecCalculator(PropertyAbstract<int> const& zone, PropertyAbstract<int> const& lineMap, Plane_e plane);

    /// The zone's dimension along the plane's direction; of a finite-element zone its points, and 1 for J and K.
    int getMaxIndex() const override;

    /// The zone that a line map shows; 0 when there is no such line map.
    static long getZoneNumFromLineMap(long lineMap);

private:
    PropertyAbstract<int> const& m_zone;
    PropertyAbstract<int> const& m_lineMap;
    Plane_e m_plane;
};

} // namespace vantrix::sdk::ui::propertymanager
