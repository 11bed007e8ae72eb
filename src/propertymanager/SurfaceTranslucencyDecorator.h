#pragma once

#include "propertymanager/UIStylePropertyDecoratorAbstract.h"

namespace vantrix::sdk::ui::propertymanager {

/// The translucency of a surface in percent, as it is stored. A value is checked by the wrapped property alone.
class SurfaceTranslucencyDecorator : public UIStylePropertyDecoratorAbstract<int, int>
{
public:
    using UIStylePropertyDecoratorAbstract<int, int>::UIStylePropertyDecoratorAbstract;

    int retrieveValue() const override { return wrapped().retrieveValue(); }

    /// @throws InvalidPropertyValueException when the wrapped property refuses the value
    void storeValue(int const& value) override
    {
        wrapped().validate(value);
        if (!wrapped().isEqual(value)) {
            wrapped().storeValue(value);
            wrapped().emitValueChangedSignal(wrapped().value());
        }
    }
};

} // namespace vantrix::sdk::ui::propertymanager
