#pragma once

#include "propertymanager/managers/axis/TickSpacingProperty.h"
#include "sdk/AppLock.h"

namespace vantrix::sdk::ui::propertymanager {

/// Whether the plot chooses the spacing of ticks. Turning it off keeps the spacing that is drawn.
class AutoSpacingProperty : public UIStylePropertyDecoratorAbstract<bool, bool>
{
public:
    /// @param isAutomatic, spacing  of the current axis; outlive this property
    AutoSpacingProperty(UIStylePropertyAbstract<bool>& isAutomatic, TickSpacingProperty& spacing)
        : UIStylePropertyDecoratorAbstract(isAutomatic)
        , m_spacing(spacing)
    {}

    bool retrieveValue() const override { return wrapped().value(); }
    void storeValue(bool const& isAutomatic) override
    {
        AppLock const lock; // spacing and setting are one step
        if (!isAutomatic) {
            m_spacing.storeValue(m_spacing.retrieveValue());
        }
        wrapped().setValue(isAutomatic);
    }

private:
    TickSpacingProperty& m_spacing;
};

} // namespace vantrix::sdk::ui::propertymanager
