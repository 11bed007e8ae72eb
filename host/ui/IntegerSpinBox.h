#pragma once

#include <QSpinBox>

namespace vantrix::sdk::ui::common {

/// A spin box for whole numbers that reads what was typed or refuses it: a QSpinBox alone reads "1,5" as 15.
class IntegerSpinBox : public QSpinBox
{
public:
    using QSpinBox::QSpinBox;

protected:
    void fixup(QString& text) const override;
    QValidator::State validate(QString& text, int& position) const override;
};

} // namespace vantrix::sdk::ui::common
