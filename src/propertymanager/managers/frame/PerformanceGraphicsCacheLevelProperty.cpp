#include "propertymanager/managers/frame/PerformanceGraphicsCacheLevelProperty.h"

namespace vantrix::sdk::ui::propertymanager {

PerformanceGraphicsCacheLevelProperty::PerformanceGraphicsCacheLevelProperty(PerformancePropertiesGenerated const& set)
    : FoldedFlagsProperty(set.usedisplaylists(), set.cachelightdisplaylistsonly(), true)
{}

} // namespace vantrix::sdk::ui::propertymanager
