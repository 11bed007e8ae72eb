#include "propertymanager/managers/frame/PerformancePropertiesManager.h"

#include "api/VtxUtil.h"
#include "propertymanager/managers/DecoratedProperty.h"
#include "propertymanager/managers/PercentDecorator.h"
#include "propertymanager/managers/PropertyRelevance.h"
#include "propertymanager/managers/PropertySetSubmission.h"
#include "propertymanager/managers/frame/PerformanceGraphicsCacheLevelProperty.h"
#include "propertymanager/managers/frame/PerformanceHighQualityFontProperty.h"
#include "ui/relevance/InvertingRelevance.h"
#include "ui/relevance/RelevanceExpression.h"
#include "ui/relevance/StateChangeDependentRelevance.h"
#include "ui/relevance/StateChangeFilters.h"

namespace vantrix::sdk::ui::propertymanager {

PerformancePropertiesManager::PerformancePropertiesManager()
    : m_properties(true, toolbox::StringList())
    , m_graphicsCacheLevel(boost::make_shared<PerformanceGraphicsCacheLevelProperty>(m_properties))
    , m_highQualityFont(boost::make_shared<PerformanceHighQualityFontProperty>(m_properties))
    , m_unloadStrategyModel(boost::make_shared<UnloadStrategyModel const>(
          UnloadStrategyModel::Rows{{"Auto unload", UnloadStrategy_Auto},
                                    {"Never unload", UnloadStrategy_NeverUnload},
                                    {"Minimize memory use", UnloadStrategy_MinimizeMemoryUse}}))
{
    m_properties.setLodthresholdminfract(newDecorated<PercentDecorator>(m_properties.lodthresholdminfract(), nullptr));
    m_properties.setLodthresholdmaxfract(newDecorated<PercentDecorator>(m_properties.lodthresholdmaxfract(), nullptr));
    setupRelevancies();
}

void PerformancePropertiesManager::setupRelevancies()
{
    m_isMacroRecordingNotActive = boost::make_shared<StateChangeDependentRelevance const>(
        &common::isMacroRecordingStateChange, [] { return !VtxUtilMacroIsRecordingActive(); },
        "While a macro is being recorded this stays as it is.");
    m_isUsingApproximatePlots = whileSet(m_properties.useapproximateplots(), "Approximate plots are not used.");
    m_areAllFramesAlwaysApproximated =
        whileEqual(m_properties.plotapproximationmode(), PlotApproximationMode_AllAlwaysApproximated, {});
    m_isRenderTimeRelevant = RelevanceExpression(m_isUsingApproximatePlots)
                                 .aand(boost::make_shared<InvertingRelevance>(m_areAllFramesAlwaysApproximated,
                                                                              "All frames are always approximated."));
    m_isUnloadingStrategyAuto =
        whileEqual(m_properties.unloadstrategy(), UnloadStrategy_Auto, "Variables are not unloaded automatically.");
    m_isShowingStatusLine = whileSet(m_properties.showstatusline(), "The status line is not shown.");
}

bool PerformancePropertiesManager::submit()
{
    return thresholdsAreValid() && submitAsStep(m_properties, "Performance");
}

bool PerformancePropertiesManager::thresholdsAreValid() const
{
    double const minimum = m_properties.lodthresholdminfract()->value();
    double const maximum = m_properties.lodthresholdmaxfract()->value();
    char const* fault = nullptr;
    if (!(minimum < maximum)) {
        fault = "Minimum value must be less than the maximum for the load on demand memory threshold.";
    } else if (minimum < 0 || maximum > 100) {
        fault = "Minimum and maximum values must be between 0 and 100.";
    }
    if (fault) {
        VtxUtilDialogMessageBox(fault, MessageBox_Error);
    }
    return fault == nullptr;
}

} // namespace vantrix::sdk::ui::propertymanager
