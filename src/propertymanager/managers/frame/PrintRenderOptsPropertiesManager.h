#pragma once

#include "propertymanager/RelevanceInterface.h"
#include "propertymanager/generated/PrintRenderOptsPropertiesGenerated.h"

namespace vantrix::sdk::ui::propertymanager {

/// How the paper is printed. Edits wait for submit().
class PrintRenderOptsPropertiesManager
{
public:
    using Relevance = boost::shared_ptr<RelevanceInterface const>;

    PrintRenderOptsPropertiesManager();

    PrintRenderOptsPropertiesGenerated& properties() { return m_properties; }

    /// Holds while lines and areas are printed as such.
    Relevance vectorRelevance() const { return m_vectorRelevance; }

    /// Takes the host's present values.
    void init() { m_properties.init(); }

    /// Applies all edits as one undo step; tells the user what keeps it from doing so.
    bool submit();

private:
    PrintRenderOptsPropertiesGenerated m_properties;
    Relevance m_vectorRelevance;
};

} // namespace vantrix::sdk::ui::propertymanager
