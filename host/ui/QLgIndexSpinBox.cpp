#include "ui/QLgIndexSpinBox.h"

#include "property/InvalidArgumentException.h"
#include "propertybindings/MxNotationConverter.h"

#include <QRegularExpression>

#include <algorithm>
#include <limits>
#include <utility>

namespace vantrix::sdk::ui::common {

namespace {

bool matches(QString const& text, std::string const& pattern)
{
    QRegularExpression const expression(QRegularExpression::anchoredPattern(QString::fromStdString(pattern)));
    return expression.match(text).hasMatch();
}

} // namespace

QLgIndexSpinBox::QLgIndexSpinBox(QWidget* parent)
    : IntegerSpinBox(parent)
{
    setRange(std::numeric_limits<int>::min(), std::numeric_limits<int>::max());
    setKeyboardTracking(false);
}

void QLgIndexSpinBox::setStepCalculator(StepCalculator calculator)
{
    m_stepCalculator = std::move(calculator);
}

void QLgIndexSpinBox::stepBy(int steps)
{
    if (!m_stepCalculator) {
        QSpinBox::stepBy(steps);
        return;
    }
    interpretText();
    double const next = m_stepCalculator->afterSteps(value(), steps);
    setValue(static_cast<int>(std::clamp<double>(next, minimum(), maximum())));
    selectAll();
}

QString QLgIndexSpinBox::textFromValue(int value) const
{
    return QString::fromStdString(util::LgIndexToMxNotation(value));
}

int QLgIndexSpinBox::valueFromText(QString const& text) const
{
    try {
        long const index = util::MxNotationToLgIndex(text.toStdString());
        return static_cast<int>(std::clamp<long>(index, minimum(), maximum()));
    } catch (InvalidArgumentException const&) {
        return value();
    }
}

QValidator::State QLgIndexSpinBox::validate(QString& text, int& /*position*/) const
{
    if (matches(text, util::mxIndexPattern()) || matches(text, util::plainIndexPattern())) {
        int const value = valueFromText(text);
        return value >= minimum() && value <= maximum() ? QValidator::Acceptable : QValidator::Intermediate;
    }
    return matches(text, "[\\sMmXx0-9-]*") ? QValidator::Intermediate : QValidator::Invalid;
}

} // namespace vantrix::sdk::ui::common
