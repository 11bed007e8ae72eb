#include "ui/CheckButtonPropertyBinding.h"

#include "sdk/AppLock.h"

namespace vantrix::sdk::ui::dialogs::propertybindings {

CheckButtonPropertyBinding::CheckButtonPropertyBinding(QAbstractButton* button,
                                                       boost::shared_ptr<PropertyAbstract<bool>> property,
                                                       WidgetUpdateMode_e updateMode)
    : UIPropertyBindingAbstract<bool>(std::move(property), updateMode)
    , m_button(button)
{
    connectToButton();
}

CheckButtonPropertyBinding::CheckButtonPropertyBinding(QAbstractButton* button,
                                                       propertymanager::UIStylePropertyAbstract<bool>& property,
                                                       WidgetUpdateMode_e updateMode)
    : UIPropertyBindingAbstract<bool>(property, updateMode)
    , m_button(button)
{
    connectToButton();
}

void CheckButtonPropertyBinding::connectToButton()
{
    initWidget();
    QObject::connect(m_button, &QAbstractButton::toggled, &m_connectionContext,
                     [this](bool checked) { toggled(checked); });
}

void CheckButtonPropertyBinding::updateWidget()
{
    if (m_button) {
        m_button->setChecked(property().retrieveValue());
    }
}

void CheckButtonPropertyBinding::toggled(bool checked)
{
    // Also called for what updateWidget() does; the property then has the value already.
    if (checked == property().retrieveValue()) {
        return;
    }
    AppLock const lock(false);
    setProperty(checked);
}

} // namespace vantrix::sdk::ui::dialogs::propertybindings
