#pragma once

#include "ui/relevance/StateChangeDependentRelevance.h"

namespace vantrix::sdk::ui::propertymanager {

/// Relevant while the active frame shows an XY or polar line plot.
class LinePlotTypeDependentRelevance : public StateChangeDependentRelevance
{
public:
    LinePlotTypeDependentRelevance();
};

} // namespace vantrix::sdk::ui::propertymanager
