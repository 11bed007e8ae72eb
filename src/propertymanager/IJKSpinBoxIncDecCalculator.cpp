#include "propertymanager/IJKSpinBoxIncDecCalculator.h"

#include "api/VtxUtil.h"

#include <algorithm>

namespace vantrix::sdk::ui::propertymanager {

IJKSpinBoxIncDecCalculator::IJKSpinBoxIncDecCalculator(PropertyAbstract<int> const& zone,
                                                       PropertyAbstract<int> const& lineMap, Plane_e plane)
    : SpinBoxIncDecCalculatorBase(1.0)
    , SpinBoxIncDecCalculatorIJKAbstract(1)
    , m_zone(zone)
    , m_lineMap(lineMap)
    , m_plane(plane)
{}

int IJKSpinBoxIncDecCalculator::getMaxIndex() const
{
    PlotType_e const plotType = VtxUtilFrameGetPlotType();
    bool const isLinePlot = plotType == PlotType_XYLine || plotType == PlotType_PolarLine;
    long const zone = isLinePlot ? getZoneNumFromLineMap(m_lineMap.value()) : m_zone.value();
    long iMax = 0;
    long jMax = 0;
    long kMax = 0;
    VtxUtilZoneGetIJK(zone, &iMax, &jMax, &kMax);
    if (!VtxUtilZoneIsOrdered(zone)) {
        jMax = 1;
        kMax = 1;
    }
    long const maxima[] = {iMax, jMax, kMax};
    return static_cast<int>(std::max(maxima[m_plane], 1L));
}

long IJKSpinBoxIncDecCalculator::getZoneNumFromLineMap(long lineMap)
{
    long zone = 0;
    VtxUtilLineMapGetAssignment(lineMap, &zone, nullptr, nullptr, nullptr, nullptr);
    return zone;
}

} // namespace vantrix::sdk::ui::propertymanager
