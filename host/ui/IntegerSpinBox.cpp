#include "ui/IntegerSpinBox.h"

namespace vantrix::sdk::ui::common {

void IntegerSpinBox::fixup(QString& /*text*/) const
{
    // The base class takes the commas out.
}

QValidator::State IntegerSpinBox::validate(QString& text, int& position) const
{
    return text.contains(QLatin1Char(',')) ? QValidator::Intermediate : QSpinBox::validate(text, position);
}

} // namespace vantrix::sdk::ui::common
