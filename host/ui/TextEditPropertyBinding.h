#pragma once

#include "propertybindings/UIPropertyBindingAbstract.h"

#include <QPointer>
#include <QTextEdit>

namespace vantrix::sdk::ui::dialogs::propertybindings {

/// Ties a text edit to a text (UTF-8, lines parted by line feeds). The text counts when the text edit loses the focus.
/// A text that the property refuses is told to the user, and the property's text comes back.
class TextEditPropertyBinding : public UIPropertyBindingAbstract<std::string>
{
public:
    TextEditPropertyBinding(QTextEdit* textEdit, boost::shared_ptr<PropertyAbstract<std::string>> property,
                            WidgetUpdateMode_e updateMode);
    TextEditPropertyBinding(QTextEdit* textEdit, propertymanager::UIStylePropertyAbstract<std::string>& property,
                            WidgetUpdateMode_e updateMode);
    ~TextEditPropertyBinding() override;

    QTextEdit* widget() const override { return m_textEdit; }

    /// A text edit that shows the property's text is left alone, cursor and undo steps with it.
    void updateWidget() override;

    /// Takes the text over into the property. Returns whether the property took it.
    bool editingFinished();

private:
    class FocusOutFilter;

    void init();

    QPointer<QTextEdit> m_textEdit;
    std::unique_ptr<QObject> m_focusOutFilter;
};

} // namespace vantrix::sdk::ui::dialogs::propertybindings
