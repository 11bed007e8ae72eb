#pragma once

#include "propertymanager/managers/frame/FoldedFlagsProperty.h"
#include "propertymanager/managers/frame/PerformancePropertiesManager.h"

namespace vantrix::sdk::ui::propertymanager {

/// Where high quality fonts are used, in "UseStrokeFontsOnScreen" and "UseStrokeFontsForSmallText".
class PerformanceHighQualityFontProperty : public FoldedFlagsProperty<HighQualityFont_e>
{
public:
    explicit PerformanceHighQualityFontProperty(PerformancePropertiesGenerated const& set);
};

} // namespace vantrix::sdk::ui::propertymanager
