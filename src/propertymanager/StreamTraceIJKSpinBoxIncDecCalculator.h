#pragma once

#include "property/PropertyAbstract.h"
#include "propertymanager/SpinBoxIncDecCalculatorIJKAbstract.h"

namespace vantrix::sdk::ui::propertymanager {

/// Steps the index at which a streamtrace starts, within the zone chosen.
class StreamTraceIJKSpinBoxIncDecCalculator : public SpinBoxIncDecCalculatorIJKAbstract
{
public:
    /// @param zone  number of the zone; outlives the calculator
    StreamTraceIJKSpinBoxIncDecCalculator(PropertyAbstract<int> const& zone, Plane_e plane);

    /// The zone's dimension along the plane's direction.
    int getMaxIndex() const override;

private:
    PropertyAbstract<int> const& m_zone;
    Plane_e m_plane;
};

} // namespace vantrix::sdk::ui::propertymanager
