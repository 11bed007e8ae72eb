#include "propertymanager/StreamTraceIJKSpinBoxIncDecCalculator.h"

#include "api/VtxUtilData.h"

namespace vantrix::sdk::ui::propertymanager {

StreamTraceIJKSpinBoxIncDecCalculator::StreamTraceIJKSpinBoxIncDecCalculator(PropertyAbstract<int> const& zone,
                                                                             Plane_e plane)
    : SpinBoxIncDecCalculatorBase(1.0)
    , SpinBoxIncDecCalculatorIJKAbstract(1)
    , m_zone(zone)
    , m_plane(plane)
{}

int StreamTraceIJKSpinBoxIncDecCalculator::getMaxIndex() const
{
    long iMax = 0;
    long jMax = 0;
    long kMax = 0;
    VtxUtilZoneGetIJK(m_zone.value(), &iMax, &jMax, &kMax);
    switch (m_plane) {
    case IPlane:
        return static_cast<int>(iMax);
    case JPlane:
        return static_cast<int>(jMax);
    case KPlane:
        return static_cast<int>(kMax);
    default:
        return 1;
    }
}

} // namespace vantrix::sdk::ui::propertymanager
