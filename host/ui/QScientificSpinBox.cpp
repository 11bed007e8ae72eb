#include "ui/QScientificSpinBox.h"

#include "propertybindings/NumberLocale.h"

#include <QDoubleValidator>

#include <array>
#include <charconv>
#include <cmath>
#include <limits>
#include <utility>

namespace vantrix::sdk::ui::common {

namespace {

/// Outside of these a number with all its digits is too long, or its magnitude too hard to see.
constexpr double SMALLEST_PLAIN = 1e-4;
constexpr double LARGEST_PLAIN = 1e8;

/// As many decimals as the base class allows: it rounds to them.
constexpr int ALL_DECIMALS = std::numeric_limits<double>::max_exponent10 + std::numeric_limits<double>::digits10;

} // namespace

QScientificSpinBox::QScientificSpinBox(QWidget* parent)
    : QDoubleSpinBox(parent)
{
    QDoubleSpinBox::setDecimals(ALL_DECIMALS);
    setLocale(dialogs::propertybindings::numberLocale());
    setRange(std::numeric_limits<double>::lowest(), std::numeric_limits<double>::max());
    setKeyboardTracking(false);
}

void QScientificSpinBox::setStepCalculator(StepCalculator calculator)
{
    m_stepCalculator = std::move(calculator);
}

void QScientificSpinBox::stepBy(int steps)
{
    if (!m_stepCalculator) {
        QDoubleSpinBox::stepBy(steps);
        return;
    }
    interpretText();
    setValue(m_stepCalculator->afterSteps(value(), steps));
    selectAll();
}

QString QScientificSpinBox::textFromValue(double value) const
{
    double const magnitude = std::abs(value);
    bool const isPlain = magnitude == 0.0 || (magnitude >= SMALLEST_PLAIN && magnitude < LARGEST_PLAIN);
    std::array<char, 64> text{};
    auto const end = std::to_chars(text.data(), text.data() + text.size(), value,
                                   isPlain ? std::chars_format::fixed : std::chars_format::scientific);
    return QString::fromLatin1(text.data(), static_cast<int>(end.ptr - text.data()));
}

double QScientificSpinBox::valueFromText(QString const& text) const
{
    return text.trimmed().toDouble(); // QString reads in the C locale
}

void QScientificSpinBox::fixup(QString& /*text*/) const
{
    // The base class takes the commas out: "3,14" would be 314.
}

QValidator::State QScientificSpinBox::validate(QString& text, int& position) const
{
    QDoubleValidator validator(minimum(), maximum(), ALL_DECIMALS, nullptr);
    validator.setLocale(dialogs::propertybindings::numberLocale());
    QValidator::State const state = validator.validate(text, position);
    // A comma stays visible until the user corrects it; what is out of range may still be typed on.
    return state == QValidator::Invalid && text.contains(QLatin1Char(',')) ? QValidator::Intermediate : state;
}

} // namespace vantrix::sdk::ui::common
