#pragma once

#include "api/VtxEnumerations.h"
#include "propertymanager/UIStylePropertyProxy.h"

#include <functional>

namespace vantrix::sdk::ui::util {

/// How contours are flooded, with RGB colouring refused where neither the host nor the plot type allows it. A refusal
/// changes nothing and signals the present value once, so that the widget shows it again.
class FloodColoringPropertyProxy : public propertymanager::UIStylePropertyProxy<ContourColoring_e>
{
public:
    /// @param coloring   what is edited; not owned, outlives the proxy
    /// @param allowsRGB  whether a plot type allows RGB colouring where the host does not; not empty
    FloodColoringPropertyProxy(PropertyAbstract<ContourColoring_e>& coloring,
                               std::function<bool(PlotType_e)> allowsRGB);

    void storeValue(ContourColoring_e const& value) override;

private:
    std::function<bool(PlotType_e)> m_allowsRGB;
};

} // namespace vantrix::sdk::ui::util
