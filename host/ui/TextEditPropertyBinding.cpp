#include "ui/TextEditPropertyBinding.h"

#include "sdk/AppLock.h"

#include <QEvent>
#include <QFocusEvent>

namespace vantrix::sdk::ui::dialogs::propertybindings {

class TextEditPropertyBinding::FocusOutFilter : public QObject
{
public:
    explicit FocusOutFilter(TextEditPropertyBinding& binding)
        : m_binding(binding)
    {}

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        // A context menu takes the focus for a moment; the user is still editing. A field that is being destroyed loses
        // the focus when it is a text edit no more.
        if (event->type() == QEvent::FocusOut && static_cast<QFocusEvent*>(event)->reason() != Qt::PopupFocusReason &&
            qobject_cast<QTextEdit*>(watched)) {
            m_binding.editingFinished();
        }
        return false;
    }

private:
    TextEditPropertyBinding& m_binding;
};

TextEditPropertyBinding::TextEditPropertyBinding(QTextEdit* textEdit,
                                                 boost::shared_ptr<PropertyAbstract<std::string>> property,
                                                 WidgetUpdateMode_e updateMode)
    : UIPropertyBindingAbstract<std::string>(std::move(property), updateMode)
    , m_textEdit(textEdit)
{
    init();
}

TextEditPropertyBinding::TextEditPropertyBinding(QTextEdit* textEdit,
                                                 propertymanager::UIStylePropertyAbstract<std::string>& property,
                                                 WidgetUpdateMode_e updateMode)
    : UIPropertyBindingAbstract<std::string>(property, updateMode)
    , m_textEdit(textEdit)
{
    init();
}

TextEditPropertyBinding::~TextEditPropertyBinding() = default;

void TextEditPropertyBinding::init()
{
    m_focusOutFilter = std::make_unique<FocusOutFilter>(*this);
    m_textEdit->installEventFilter(m_focusOutFilter.get());
    initWidget();
}

void TextEditPropertyBinding::updateWidget()
{
    if (!m_textEdit) {
        return;
    }
    QString const text = QString::fromStdString(property().value());
    if (m_textEdit->toPlainText() != text) {
        m_textEdit->setPlainText(text);
    }
}

bool TextEditPropertyBinding::editingFinished()
{
    if (!m_textEdit) {
        return false;
    }
    AppLock const lock(false);
    if (!setProperty(m_textEdit->toPlainText().toStdString())) {
        return false;
    }
    updateWidget();
    return true;
}

} // namespace vantrix::sdk::ui::dialogs::propertybindings
