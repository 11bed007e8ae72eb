#include "propertybindings/NumberLocale.h"

namespace vantrix::sdk::ui::dialogs::propertybindings {

namespace {

class CommaKeepingDoubleValidator : public QDoubleValidator
{
public:
    using QDoubleValidator::QDoubleValidator;

    State validate(QString& text, int& position) const override
    {
        return text.contains(QLatin1Char(',')) ? Intermediate : QDoubleValidator::validate(text, position);
    }
};

} // namespace

QLocale numberLocale()
{
    QLocale locale = QLocale::c();
    locale.setNumberOptions(QLocale::OmitGroupSeparator | QLocale::RejectGroupSeparator);
    return locale;
}

QIntValidator* newIntValidator(int minimum, int maximum, QObject* parent)
{
    auto* const validator = new QIntValidator(minimum, maximum, parent);
    validator->setLocale(numberLocale());
    return validator;
}

QDoubleValidator* newDoubleValidator(double minimum, double maximum, int decimals, QObject* parent)
{
    auto* const validator = new CommaKeepingDoubleValidator(minimum, maximum, decimals, parent);
    validator->setLocale(numberLocale());
    return validator;
}

} // namespace vantrix::sdk::ui::dialogs::propertybindings
