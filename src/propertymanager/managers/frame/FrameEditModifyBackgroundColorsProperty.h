#pragma once

#include "propertymanager/UIStylePropertyDecoratorAbstract.h"

namespace vantrix::sdk::ui::propertymanager {

/// The frame's background colour as the frame edit dialog sets it: while a flag is on, the host also changes the
/// foreground colours of the frame that equal the new background; else only the colour is stored.
class FrameEditModifyBackgroundColorsProperty : public UIStylePropertyDecoratorAbstract<int, int>
{
public:
    /// @param color   colour index of the background; must outlive this property
    /// @param modify  whether foreground colours are changed too
    FrameEditModifyBackgroundColorsProperty(UIStylePropertyAbstract<int>& color,
                                            boost::shared_ptr<PropertyAbstract<bool> const> modify);

    int retrieveValue() const override;

    /// @throws InvalidPropertyValueException with the host's text when the host refuses the colour
    void storeValue(int const& color) override;

private:
    boost::shared_ptr<PropertyAbstract<bool> const> m_modify;
};

} // namespace vantrix::sdk::ui::propertymanager
