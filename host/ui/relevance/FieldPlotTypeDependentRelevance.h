#pragma once

#include "ui/relevance/StateChangeDependentRelevance.h"

namespace vantrix::sdk::ui::propertymanager {

/// Relevant while the active frame shows a 2D or 3D Cartesian plot.
class FieldPlotTypeDependentRelevance : public StateChangeDependentRelevance
{
public:
    FieldPlotTypeDependentRelevance();
};

} // namespace vantrix::sdk::ui::propertymanager
