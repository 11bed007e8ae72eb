#include "ui/ColorButtonPropertyBinding.h"

#include "sdk/AppLock.h"

namespace vantrix::sdk::ui::dialogs::propertybindings {

ColorButtonPropertyBinding::ColorButtonPropertyBinding(common::ColorButton* button,
                                                       boost::shared_ptr<PropertyAbstract<int>> property,
                                                       WidgetUpdateMode_e updateMode)
    : UIPropertyBindingAbstract<int>(std::move(property), updateMode)
    , m_button(button)
{
    init();
}

ColorButtonPropertyBinding::ColorButtonPropertyBinding(common::ColorButton* button,
                                                       propertymanager::UIStylePropertyAbstract<int>& property,
                                                       WidgetUpdateMode_e updateMode)
    : UIPropertyBindingAbstract<int>(property, updateMode)
    , m_button(button)
{
    init();
}

void ColorButtonPropertyBinding::init()
{
    QObject::connect(m_button, &common::ColorButton::colorChosen, &m_context, [this](int color) {
        AppLock const lock(false);
        if (setProperty(color)) {
            updateWidget();
        }
    });
    initWidget();
}

void ColorButtonPropertyBinding::updateWidget()
{
    if (m_button) {
        m_button->setColor(property().value());
    }
}

} // namespace vantrix::sdk::ui::dialogs::propertybindings
