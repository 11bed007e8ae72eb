#include "propertybindings/WidgetUpdateScheduler.h"

#include <QWidget>

namespace vantrix::sdk::ui::dialogs::propertybindings {

WidgetUpdateScheduler::WidgetUpdateScheduler(BindingInterface& binding, BindingInterface::WidgetUpdateMode_e mode,
                                             propertymanager::UIPropertyInterface* uiProperty)
    : m_binding(binding)
    , m_mode(mode)
    , m_uiProperty(uiProperty)
    , m_valueOnIdle([&binding] { binding.updateWidget(); })
{
    if (uiProperty) {
        m_visibilityOnIdle = std::make_unique<Performer>([&binding] { binding.updateVisibility(); });
        m_sensitivityOnIdle = std::make_unique<Performer>([&binding] { binding.updateSensitivity(); });
    }
}

void WidgetUpdateScheduler::followStates()
{
    if (m_uiProperty) {
        m_visibilityConnection = m_uiProperty->connectToVisibilityChangedSignal(
            boost::bind(&WidgetUpdateScheduler::visibilityChanged, this));
        m_sensitivityConnection = m_uiProperty->connectToSensitivityChangedSignal(
            boost::bind(&WidgetUpdateScheduler::sensitivityChanged, this));
    }
}

void WidgetUpdateScheduler::updateVisibility(QWidget* widget) const
{
    if (m_uiProperty && widget) {
        widget->setVisible(m_uiProperty->isVisible());
    }
}

void WidgetUpdateScheduler::updateSensitivity(QWidget* widget) const
{
    if (m_uiProperty && widget) {
        widget->setEnabled(m_uiProperty->isSensitive());
    }
}

void WidgetUpdateScheduler::initStates()
{
    // A widget that somebody else has hidden or disabled stays so: only the property's refusal counts here.
    if (m_uiProperty && !m_uiProperty->isVisible()) {
        m_binding.updateVisibility();
    }
    if (m_uiProperty && !m_uiProperty->isSensitive()) {
        m_binding.updateSensitivity();
    }
}

void WidgetUpdateScheduler::notify(Performer& onIdle, void (BindingInterface::*update)())
{
    if (m_mode == BindingInterface::Immediate) {
        (m_binding.*update)();
    } else {
        onIdle.enableNotification();
    }
}

} // namespace vantrix::sdk::ui::dialogs::propertybindings
