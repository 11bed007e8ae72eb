#include "propertybindings/TextFieldPropertyBinding.h"

#include "propertybindings/PlainText.h"

namespace vantrix::sdk::ui::dialogs::propertybindings {

template<typename T>
TextFieldPropertyBinding<T>::TextFieldPropertyBinding(QLineEdit* lineEdit,
                                                      boost::shared_ptr<PropertyAbstract<T>> property,
                                                      WidgetUpdateMode_e updateMode, CursorPosition_e cursorPosition)
    : LineEditPropertyBindingAbstract<T>(lineEdit, std::move(property), updateMode)
    , m_cursorPosition(cursorPosition)
{
    this->initWidget();
}

template<typename T>
TextFieldPropertyBinding<T>::TextFieldPropertyBinding(QLineEdit* lineEdit,
                                                      propertymanager::UIStylePropertyAbstract<T>& property,
                                                      WidgetUpdateMode_e updateMode, CursorPosition_e cursorPosition)
    : LineEditPropertyBindingAbstract<T>(lineEdit, property, updateMode)
    , m_cursorPosition(cursorPosition)
{
    this->initWidget();
}

template<typename T>
void TextFieldPropertyBinding<T>::updateWidget()
{
    QLineEdit* const lineEdit = this->widget();
    if (!lineEdit) {
        return;
    }
    lineEdit->setText(textOf(this->property().retrieveValue()));
    if (m_cursorPosition == CursorAtStart) {
        lineEdit->home(false);
    }
}

template<typename T>
QString TextFieldPropertyBinding<T>::textOf(T const& value) const
{
    return plainText(value);
}

template class TextFieldPropertyBinding<int>;
template class TextFieldPropertyBinding<long>;
template class TextFieldPropertyBinding<double>;
template class TextFieldPropertyBinding<std::string>;

} // namespace vantrix::sdk::ui::dialogs::propertybindings
