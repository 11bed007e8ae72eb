#pragma once

#include "propertymanager/UIStylePropertyDecoratorAbstract.h"

namespace vantrix::sdk::ui::propertymanager {

/// Shows the opposite of a flag.
class InvertingDecorator : public UIStylePropertyDecoratorAbstract<bool, bool>
{
public:
    using UIStylePropertyDecoratorAbstract::UIStylePropertyDecoratorAbstract;

    bool retrieveValue() const override { return !wrapped().value(); }
    void storeValue(bool const& value) override { wrapped().setValue(!value); }
};

} // namespace vantrix::sdk::ui::propertymanager
