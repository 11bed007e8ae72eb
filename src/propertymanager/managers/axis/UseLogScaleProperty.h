#pragma once

#include "api/VtxEnumerations.h"
#include "propertymanager/UIStylePropertyDecoratorAbstract.h"

namespace vantrix::sdk::ui::propertymanager {

/// Shows the scale of an axis as a flag: whether it is logarithmic.
class UseLogScaleProperty : public UIStylePropertyDecoratorAbstract<bool, CoordScale_e>
{
public:
    using UIStylePropertyDecoratorAbstract::UIStylePropertyDecoratorAbstract;

    bool retrieveValue() const override { return wrapped().value() == CoordScale_Log; }
    void storeValue(bool const& isLog) override { wrapped().setValue(isLog ? CoordScale_Log : CoordScale_Linear); }
};

} // namespace vantrix::sdk::ui::propertymanager
