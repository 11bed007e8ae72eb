#include "propertymanager/managers/frame/FrameEditConvertUnitsProperty.h"

#include <sstream>

namespace vantrix::sdk::ui::propertymanager {

FrameEditConvertUnitsProperty::FrameEditConvertUnitsProperty(UIStylePropertyAbstract<double>& inches)
    : UIStylePropertyDecoratorAbstract(inches)
    , m_rulerConnection(
          m_rulerSpacing.connectToChangedSignal(boost::bind(&FrameEditConvertUnitsProperty::rulerSpacingChanged, this)))
{}

double FrameEditConvertUnitsProperty::calculateUnitsPerInch() const
{
    return m_rulerSpacing.unitsPerInch();
}

double FrameEditConvertUnitsProperty::retrieveValue() const
{
    return wrapped().value() * calculateUnitsPerInch();
}

void FrameEditConvertUnitsProperty::storeValue(double const& value)
{
    try {
        wrapped().setValue(value / calculateUnitsPerInch());
    } catch (InvalidPropertyValueException const& exception) {
        throw InvalidPropertyValueException(convertErrorMessage(exception.message()));
    }
}

std::string FrameEditConvertUnitsProperty::convertErrorMessage(std::string const& message) const
{
    std::istringstream words(message);
    std::ostringstream converted;
    char const* separator = "";
    for (std::string word; words >> word; separator = " ") {
        converted << separator;
        std::istringstream text(word);
        if (double number = 0.0; text >> number) {
            converted << number * calculateUnitsPerInch();
        } else {
            converted << word;
        }
    }
    return converted.str();
}

void FrameEditConvertUnitsProperty::rulerSpacingChanged()
{
    emitValueChangedSignal(retrieveValue());
}

} // namespace vantrix::sdk::ui::propertymanager
