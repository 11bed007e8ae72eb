#pragma once

#include "propertymanager/UIStylePropertyDecoratorAbstract.h"
#include "propertymanager/managers/frame/PaperRulerSpacing.h"

namespace vantrix::sdk::ui::propertymanager {

/// Shows a length held in inches in the units of the paper's rulers, and takes it over in them. Under a ruler spacing
/// without a factor every length shows as 0.
class FrameEditConvertUnitsProperty : public UIStylePropertyDecoratorAbstract<double, double>
{
public:
    /// @param inches  the length; must outlive this property
    explicit FrameEditConvertUnitsProperty(UIStylePropertyAbstract<double>& inches);

    /// Ruler units in an inch, see PaperRulerSpacing.
    double calculateUnitsPerInch() const;

    double retrieveValue() const override;

    /// @throws InvalidPropertyValueException when the wrapped property refuses the length; the numbers in its message
    /// are
    ///         in ruler units
    void storeValue(double const& value) override;

    /// The words of a message with single blanks between them. A word that begins with a number becomes that number in
    /// ruler units; what stands behind the number in the same word is left out.
    std::string convertErrorMessage(std::string const& message) const;

private:
    using StateChangeListener = PaperRulerSpacing;

    void rulerSpacingChanged();

    StateChangeListener m_rulerSpacing;
    boost::signals2::scoped_connection m_rulerConnection;
};

} // namespace vantrix::sdk::ui::propertymanager
