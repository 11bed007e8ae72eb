#pragma once

#include "propertymanager/UIStylePropertyDecoratorAbstract.h"

namespace vantrix::sdk::ui::propertymanager {

/// A size factor of a 3D axis. A 0 is not stored: the present value is announced again instead, so that the field that
/// it was typed into shows it.
class SizeFactor : public UIStylePropertyDecoratorAbstract<double, double>
{
public:
    using UIStylePropertyDecoratorAbstract::UIStylePropertyDecoratorAbstract;

    double retrieveValue() const override { return wrapped().value(); }
    void storeValue(double const& value) override
    {
        if (value == 0.0) {
            valueChanged();
        } else {
            wrapped().setValue(value);
        }
    }
};

} // namespace vantrix::sdk::ui::propertymanager
