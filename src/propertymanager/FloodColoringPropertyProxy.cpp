#include "propertymanager/FloodColoringPropertyProxy.h"

#include "api/VtxUtilFrame.h"

namespace vantrix::sdk::ui::util {

FloodColoringPropertyProxy::FloodColoringPropertyProxy(PropertyAbstract<ContourColoring_e>& coloring,
                                                       std::function<bool(PlotType_e)> allowsRGB)
    : UIStylePropertyProxy<ContourColoring_e>(coloring)
    , m_allowsRGB(std::move(allowsRGB))
{}

void FloodColoringPropertyProxy::storeValue(ContourColoring_e const& value)
{
    if (value == ContourColoring_RGB && !VtxUtilContourOkToTurnOnRGBColoring() &&
        !m_allowsRGB(VtxUtilFrameGetPlotType())) {
        emitValueChangedSignal(this->value());
        return;
    }
    target().setValue(value);
}

} // namespace vantrix::sdk::ui::util
