#pragma once

#include "propertymanager/RelevanceInterface.h"
#include "propertymanager/generated/FrameEditPropertiesGenerated.h"

namespace vantrix::sdk::ui::propertymanager {

/// Place, border, header, background and name of the active frame. Every edit reaches the host at once.
class FrameEditPropertiesManager
{
public:
    using Relevance = boost::shared_ptr<RelevanceInterface const>;

    FrameEditPropertiesManager();

    /// The frame's values as the dialog shows them: position and size in the units of the paper's rulers,
    /// framelayoutShowBackground() the opposite of the style value.
    FrameEditPropertiesGenerated& properties() { return m_properties; }

    /// Whether a new background colour also changes the foreground colours of the frame that equal it. One for the
    /// process, true at first.
    static boost::shared_ptr<PropertyAbstract<bool>> modifyBackgroundColors();

    Relevance showBorderRelevance() const { return m_showBorderRelevance; }
    Relevance showHeaderRelevance() const { return m_showHeaderRelevance; }
    Relevance showBackgroundColorRelevance() const { return m_showBackgroundColorRelevance; }

    /// Whether there is a frame.
    static bool contextIsValid();

    /// Holds while contextIsValid(); one for the process.
    static Relevance relevance();

private:
    void installDecorators();

    FrameEditPropertiesGenerated m_properties;
    Relevance m_showBorderRelevance;
    Relevance m_showHeaderRelevance;
    Relevance m_showBackgroundColorRelevance;
};

} // namespace vantrix::sdk::ui::propertymanager
