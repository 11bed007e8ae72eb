#pragma once

#include "api/VtxEnumerations.h"
#include "ui/relevance/StateChangeDependentRelevance.h"

namespace vantrix::sdk::ui::propertymanager {

/// Relevant while the plot of the active frame is of one type.
class PlotTypeDependentRelevance : public StateChangeDependentRelevance
{
public:
    explicit PlotTypeDependentRelevance(PlotType_e plotType);
};

} // namespace vantrix::sdk::ui::propertymanager
