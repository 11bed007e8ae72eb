#pragma once

#include "propertymanager/SpinBoxIncDecCalculatorBase.h"
#include "ui/IntegerSpinBox.h"

#include <boost/shared_ptr.hpp>

namespace vantrix::sdk::ui::common {

/// A spin box for indices in "Mx" notation: "Mx" stands for the largest index and is 0, "Mx-3" is -3, a positive number
/// is itself. The value changes when editing is finished or a step is made.
class QLgIndexSpinBox : public IntegerSpinBox
{
public:
    using StepCalculator = boost::shared_ptr<propertymanager::SpinBoxIncDecCalculatorBase>;

    explicit QLgIndexSpinBox(QWidget* parent = nullptr);

    /// Decides what the next index up or down is; null for steps of singleStep().
    void setStepCalculator(StepCalculator calculator);

    void stepBy(int steps) override;

protected:
    QString textFromValue(int value) const override;
    int valueFromText(QString const& text) const override;
    QValidator::State validate(QString& text, int& position) const override;

private:
    StepCalculator m_stepCalculator;
};

} // namespace vantrix::sdk::ui::common
