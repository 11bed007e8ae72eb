#pragma once

namespace vantrix::sdk::ui::propertymanager {

class UIPropertyInterface;

/// Sets the state of a property directly, where no condition can be named that it follows.
class UIPropertyClassicDirectRelevance
{
public:
    UIPropertyClassicDirectRelevance() = delete;

    /// False hides the property whatever its relevances say; true gives it back to them.
    static void directSetPropertyVisibility(UIPropertyInterface& property, bool visible);

    /// False disables the property whatever its relevances say; true gives it back to them.
    static void directSetPropertySensitivity(UIPropertyInterface& property, bool sensitive);
};

} // namespace vantrix::sdk::ui::propertymanager
