#pragma once

#include "propertybindings/LineEditPropertyBindingAbstract.h"

namespace vantrix::sdk::ui::dialogs::propertybindings {

/// Shows a property's value in a line edit with the default text form of its type (six significant digits for a
/// double), in the C locale, and takes edits over. T is int, long, double or std::string (UTF-8).
template<typename T>
class TextFieldPropertyBinding : public LineEditPropertyBindingAbstract<T>
{
public:
    using typename BindingInterface::WidgetUpdateMode_e;

    /// Where the cursor stands after the text was set.
    enum CursorPosition_e
    {
        CursorAtStart = 0, ///< long values show their beginning
        CursorAtEnd = 1
    };

    TextFieldPropertyBinding(QLineEdit* lineEdit, boost::shared_ptr<PropertyAbstract<T>> property,
                             WidgetUpdateMode_e updateMode, CursorPosition_e cursorPosition);
    TextFieldPropertyBinding(QLineEdit* lineEdit, propertymanager::UIStylePropertyAbstract<T>& property,
                             WidgetUpdateMode_e updateMode, CursorPosition_e cursorPosition);

    void updateWidget() override;

protected:
    QString textOf(T const& value) const override;

private:
    CursorPosition_e m_cursorPosition;
};

extern template class TextFieldPropertyBinding<int>;
extern template class TextFieldPropertyBinding<long>;
extern template class TextFieldPropertyBinding<double>;
extern template class TextFieldPropertyBinding<std::string>;

} // namespace vantrix::sdk::ui::dialogs::propertybindings
