#include "ui/WidgetPropertyBinding.h"

namespace vantrix::sdk::ui::dialogs::propertybindings {

WidgetPropertyBinding::WidgetPropertyBinding(QWidget* widget, propertymanager::UIPropertyInterface& property,
                                             WidgetUpdateMode_e updateMode)
    : m_widget(widget)
    , m_property(property)
    , m_visibilityOnIdle([this] { updateVisibility(); })
    , m_sensitivityOnIdle([this] { updateSensitivity(); })
{
    m_visibilityConnection = property.connectToVisibilityChangedSignal(
        [this, updateMode] { updateMode == Immediate ? updateVisibility() : m_visibilityOnIdle.enableNotification(); });
    m_sensitivityConnection = property.connectToSensitivityChangedSignal([this, updateMode] {
        updateMode == Immediate ? updateSensitivity() : m_sensitivityOnIdle.enableNotification();
    });
    if (!property.isVisible()) {
        updateVisibility();
    }
    if (!property.isSensitive()) {
        updateSensitivity();
    }
}

void WidgetPropertyBinding::updateVisibility()
{
    if (m_widget) {
        m_widget->setVisible(m_property.isVisible());
    }
}

void WidgetPropertyBinding::updateSensitivity()
{
    if (m_widget) {
        m_widget->setEnabled(m_property.isSensitive());
    }
}

} // namespace vantrix::sdk::ui::dialogs::propertybindings
