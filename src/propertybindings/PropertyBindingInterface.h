#pragma once

#include "property/PropertyItemInterface.h"

class QWidget;

namespace vantrix::sdk::ui::dialogs::propertybindings {

/// A binding seen without the type of its property: which widget it ties to which property.
class PropertyBindingInterface
{
public:
    virtual ~PropertyBindingInterface() = default;

    virtual PropertyItemInterface& property() const = 0;

    /// The bound widget, null once it is gone.
    virtual QWidget* widget() const = 0;
};

} // namespace vantrix::sdk::ui::dialogs::propertybindings
