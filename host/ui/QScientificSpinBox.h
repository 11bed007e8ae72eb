#pragma once

#include "propertymanager/SpinBoxIncDecCalculatorBase.h"

#include <boost/shared_ptr.hpp>

#include <QDoubleSpinBox>

namespace vantrix::sdk::ui::common {

/// A spin box for numbers of any magnitude. It shows a number with as many digits as it takes to read the same number
/// back, in scientific notation when it is large or small, and reads and writes in the C locale.
///
/// The value changes when editing is finished or a step is made, not with each key. The range is the whole of double
/// unless set otherwise.
class QScientificSpinBox : public QDoubleSpinBox
{
public:
    using StepCalculator = boost::shared_ptr<propertymanager::SpinBoxIncDecCalculatorBase>;

    explicit QScientificSpinBox(QWidget* parent = nullptr);

    /// How many decimals a step calculator works with; what is shown does not depend on it. 6 at first.
    int decimals() const { return m_decimals; }
    void setDecimals(int decimals) { m_decimals = decimals; }

    /// Decides what the next value up or down is; null for steps of singleStep().
    void setStepCalculator(StepCalculator calculator);

    void stepBy(int steps) override;
    QString textFromValue(double value) const override;
    double valueFromText(QString const& text) const override;
    void fixup(QString& text) const override;
    QValidator::State validate(QString& text, int& position) const override;

private:
    int m_decimals = 6;
    StepCalculator m_stepCalculator;
};

} // namespace vantrix::sdk::ui::common
