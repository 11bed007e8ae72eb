#pragma once

#include "propertymanager/UIStylePropertyDecoratorAbstract.h"

namespace vantrix::sdk::ui::propertymanager {

class AxisEditProperties;

/// How far the ticks of the axis being edited are apart: the spacing that is given, or, while the plot chooses it, the
/// one that is drawn. Storing gives a spacing.
class TickSpacingProperty : public UIStylePropertyDecoratorAbstract<double, double>
{
public:
    /// @param given  the spacing in the style of the current axis; both arguments outlive this property
    TickSpacingProperty(UIStylePropertyAbstract<double>& given, AxisEditProperties const& properties);

    double retrieveValue() const override;
    void storeValue(double const& spacing) override { wrapped().setValue(spacing); }

    /// To be called when the plot may have chosen another spacing: signals when it has.
    void refresh();

private:
    AxisEditProperties const& m_properties;
    double m_shown;
};

} // namespace vantrix::sdk::ui::propertymanager
