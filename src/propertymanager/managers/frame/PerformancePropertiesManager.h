#pragma once

#include "propertybindings/models/PremappedListModel.h"
#include "propertymanager/RelevanceInterface.h"
#include "propertymanager/generated/PerformancePropertiesGenerated.h"

namespace vantrix::sdk::ui::propertymanager {

/// What of the graphics is cached.
enum GraphicsCacheLevel_e
{
    GraphicsCacheLevel_All = 0,
    GraphicsCacheLevel_LightOnly = 1, ///< lightweight graphics objects only
    GraphicsCacheLevel_None = 2
};

/// Where high quality fonts are used.
enum HighQualityFont_e
{
    HighQualityFont_WhenPossible = 0,
    HighQualityFont_LargeOnly = 1, ///< for large characters only
    HighQualityFont_Never = 2
};

/// The host's settings of speed against quality. Edits wait for submit().
class PerformancePropertiesManager
{
public:
    using Relevance = boost::shared_ptr<RelevanceInterface const>;
    using UnloadStrategyModel = dialogs::propertybindings::models::PremappedListModel<UnloadStrategy_e>;

    PerformancePropertiesManager();

    /// The settings; lodthresholdminfract() and lodthresholdmaxfract() in per cent.
    PerformancePropertiesGenerated& properties() { return m_properties; }

    boost::shared_ptr<PropertyAbstract<GraphicsCacheLevel_e>> graphicsCacheLevel() const
    {
        return m_graphicsCacheLevel;
    }
    boost::shared_ptr<PropertyAbstract<HighQualityFont_e>> highQualityFontOption() const { return m_highQualityFont; }
    boost::shared_ptr<UnloadStrategyModel const> unloadStrategyModel() const { return m_unloadStrategyModel; }

    Relevance isMacroRecordingNotActive() const { return m_isMacroRecordingNotActive; }
    Relevance isUsingApproximatePlots() const { return m_isUsingApproximatePlots; }
    Relevance areAllFramesAlwaysApproximated() const { return m_areAllFramesAlwaysApproximated; }
    /// Holds while plots are approximated, but not those of all frames always.
    Relevance isRenderTimeRelevant() const { return m_isRenderTimeRelevant; }
    Relevance isUnloadingStrategyAuto() const { return m_isUnloadingStrategyAuto; }
    Relevance isShowingStatusLine() const { return m_isShowingStatusLine; }

    /// Takes the host's present values.
    void init() { m_properties.init(); }

    /// Checks the memory thresholds and applies all edits as one undo step; tells the user what keeps it from doing so.
    bool submit();

private:
    void setupRelevancies();
    bool thresholdsAreValid() const;

    PerformancePropertiesGenerated m_properties;
    boost::shared_ptr<PropertyAbstract<GraphicsCacheLevel_e>> m_graphicsCacheLevel;
    boost::shared_ptr<PropertyAbstract<HighQualityFont_e>> m_highQualityFont;
    boost::shared_ptr<UnloadStrategyModel const> m_unloadStrategyModel;
    Relevance m_isMacroRecordingNotActive;
    Relevance m_isUsingApproximatePlots;
    Relevance m_areAllFramesAlwaysApproximated;
    Relevance m_isRenderTimeRelevant;
    Relevance m_isUnloadingStrategyAuto;
    Relevance m_isShowingStatusLine;
};

} // namespace vantrix::sdk::ui::propertymanager
