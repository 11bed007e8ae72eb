#pragma once

#include "propertymanager/managers/frame/FoldedFlagsProperty.h"
#include "propertymanager/managers/frame/PerformancePropertiesManager.h"

namespace vantrix::sdk::ui::propertymanager {

/// What of the graphics is cached, in "UseDisplayLists" and "CacheLightDisplayListsOnly".
class PerformanceGraphicsCacheLevelProperty : public FoldedFlagsProperty<GraphicsCacheLevel_e>
{
public:
    explicit PerformanceGraphicsCacheLevelProperty(PerformancePropertiesGenerated const& set);
};

} // namespace vantrix::sdk::ui::propertymanager
