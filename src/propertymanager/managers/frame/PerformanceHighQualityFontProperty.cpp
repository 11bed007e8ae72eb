#include "propertymanager/managers/frame/PerformanceHighQualityFontProperty.h"

namespace vantrix::sdk::ui::propertymanager {

PerformanceHighQualityFontProperty::PerformanceHighQualityFontProperty(PerformancePropertiesGenerated const& set)
    : FoldedFlagsProperty(set.usestrokefontsonscreen(), set.usestrokefontsforsmalltext(), false)
{}

} // namespace vantrix::sdk::ui::propertymanager
