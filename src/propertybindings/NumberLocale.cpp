#include "propertybindings/NumberLocale.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace vantrix::sdk::ui::dialogs::propertybindings {

namespace {

class CommaKeepingDoubleValidator : public QDoubleValidator
{
public:
    using QDoubleValidator::QDoubleValidator;

    State validate(QString& text, int& position) const override
    {
        if (isNumberInRange(text)) {
            return Acceptable;
        }
        return text.contains(QLatin1Char(',')) ? Intermediate : QDoubleValidator::validate(text, position);
    }

private:
    // What a property writes into its field is nearly always this, and the general answer takes several times as long.
    bool isNumberInRange(QString const& text) const
    {
        std::array<char, 32> digits; // NOLINT(cppcoreguidelines-pro-type-member-init): as much as is used is written
        auto const length = static_cast<std::size_t>(text.size());
        if (length > digits.size() || (decimals() >= 0 && text.size() > decimals())) {
            return false;
        }
        std::ranges::transform(text, digits.begin(), [](QChar digit) { return digit.toLatin1(); });
        double value = 0.0;
        auto const [end, error] = std::from_chars(digits.data(), digits.data() + length, value);
        return error == std::errc() && end == digits.data() + length && std::isfinite(value) && value >= bottom() &&
               value <= top();
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
