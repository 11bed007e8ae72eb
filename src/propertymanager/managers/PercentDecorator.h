#pragma once

#include "propertymanager/UIStylePropertyDecoratorAbstract.h"

namespace vantrix::sdk::ui::propertymanager {

/// Shows a fraction of 1 as per cent.
class PercentDecorator : public UIStylePropertyDecoratorAbstract<double, double>
{
public:
    using UIStylePropertyDecoratorAbstract::UIStylePropertyDecoratorAbstract;

    double retrieveValue() const override { return wrapped().value() * 100; }
    void storeValue(double const& value) override { wrapped().setValue(value / 100); }
};

} // namespace vantrix::sdk::ui::propertymanager
