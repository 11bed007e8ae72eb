#pragma once

#include "propertymanager/RelevanceInterface.h"
#include "propertymanager/generated/PrintRenderOptsPropertiesGenerated.h"

namespace vantrix::sdk::ui::propertymanager {

/// How the paper is printed. Edits wait for submit().
class PrintRenderOptsPropertiesManager
{
public:
    PrintRenderOptsPropertiesManager();

    /// Whether there is anything to print.
    static boost::shared_ptr<RelevanceInterface const> relevance();

    PrintRenderOptsPropertiesGenerated& properties() { return m_properties; }

    /// Takes the host's present values.
    void init() { m_properties.init(); }

    /// Applies all edits as one undo step; tells the user what keeps it from doing so.
    bool submit();

private:
    PrintRenderOptsPropertiesGenerated m_properties;
};

} // namespace vantrix::sdk::ui::propertymanager
