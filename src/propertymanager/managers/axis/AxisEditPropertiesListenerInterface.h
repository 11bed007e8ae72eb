#pragma once

namespace vantrix::sdk::ui::propertymanager {

class AxisEditProperties;

/// Is told when another axis is edited. See AxisEditProperties::addListener().
class AxisEditPropertiesListenerInterface
{
public:
    virtual ~AxisEditPropertiesListenerInterface() = default;

    /// Another axis is being edited, or the same was chosen again. A listener may remove itself and others.
    virtual void currentAxisChanged(AxisEditProperties& properties) = 0;
};

} // namespace vantrix::sdk::ui::propertymanager
