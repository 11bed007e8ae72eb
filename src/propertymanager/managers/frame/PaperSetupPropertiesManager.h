#pragma once

#include "propertymanager/RelevanceInterface.h"
#include "propertymanager/UIStylePropertyProxy.h"
#include "propertymanager/generated/PaperSetupPropertiesManagerGenerated.h"
#include "propertymanager/managers/frame/PaperRulerSpacing.h"
#include "sdk/SignalConnectionCollection.h"

#include <utility>

namespace vantrix::sdk::ui::propertymanager {

/// Size, orientation and looks of the active page's paper. Edits wait for submit().
class PaperSetupPropertiesManager
{
public:
    using Relevance = boost::shared_ptr<RelevanceInterface const>;

    PaperSetupPropertiesManager();

    PaperSetupPropertiesManagerGenerated& properties() { return m_properties; }

    /// Whether the fill colour is printed: the opposite of the style value.
    boost::shared_ptr<PropertyAbstract<bool>> useFillColorWhenPrinting() const { return m_properties.isTransparent(); }

    /// Sensitive while the paper is shown on the screen or its fill colour is printed.
    UIStylePropertyAbstract<int>& fillColor() { return m_fillColor; }

    PaperRulerSpacing& rulerSpacing() { return m_rulerSpacing; }

    /// Takes the host's present values and remembers size and orientation for fitPaperToWorkArea().
    void init();

    /// Width and height in inches of the chosen size in the chosen orientation; 0 without a page.
    std::pair<double, double> getPaperDimensions() const;

    /// Applies all edits as one undo step and fits the work area; tells the user what keeps it from doing so.
    bool submit();

    /// Fits the paper into the work area when size or orientation is another than at init().
    void fitPaperToWorkArea() const;

    /// Whether there is a page.
    static bool contextIsValid();

    /// Holds while contextIsValid(); one for the process.
    static Relevance relevance();

private:
    using SizeAndOrientation = std::pair<PaperSize_e, bool>;

    void setSensitivities();
    SizeAndOrientation sizeAndOrientation() const;

    PaperSetupPropertiesManagerGenerated m_properties;
    UIStylePropertyProxy<int> m_fillColor;
    PaperRulerSpacing m_rulerSpacing;
    SizeAndOrientation m_initial;
    SignalConnectionCollection m_flagConnections;
};

} // namespace vantrix::sdk::ui::propertymanager
