#pragma once

#include "propertybindings/BindingInterface.h"
#include "propertymanager/UIPropertyInterface.h"
#include "sdk/OnIdleActionPerformerSingleShot.h"

#include <memory>

class QWidget;

namespace vantrix::sdk::ui::dialogs::propertybindings {

/// The part of a binding that does not depend on the type of the property: it brings notifications to the binding, at
/// once or once on the next idle turn, and the visible and sensitive state of a UI property to the widget.
class WidgetUpdateScheduler
{
public:
    /// @param binding     whose update operations are called; must outlive the scheduler
    /// @param uiProperty  whose states are followed once followStates() was called; null for none
    WidgetUpdateScheduler(BindingInterface& binding, BindingInterface::WidgetUpdateMode_e mode,
                          propertymanager::UIPropertyInterface* uiProperty);

    void followStates();

    /// What the value-changed signal of the property is connected to.
    void valueChanged() { notify(m_valueOnIdle, &BindingInterface::updateWidget); }

    void updateValueOnIdle() { m_valueOnIdle.enableNotification(); }

    /// @param widget  null does nothing
    void updateVisibility(QWidget* widget) const;
    void updateSensitivity(QWidget* widget) const;

    /// Brings the states to a widget that is bound now.
    void initStates();

private:
    using Performer = OnIdleActionPerformerSingleShot;

    void notify(Performer& onIdle, void (BindingInterface::*update)());
    void visibilityChanged() { notify(*m_visibilityOnIdle, &BindingInterface::updateVisibility); }
    void sensitivityChanged() { notify(*m_sensitivityOnIdle, &BindingInterface::updateSensitivity); }

    BindingInterface& m_binding;
    BindingInterface::WidgetUpdateMode_e m_mode;
    propertymanager::UIPropertyInterface* m_uiProperty;
    Performer m_valueOnIdle;
    std::unique_ptr<Performer> m_visibilityOnIdle;
    std::unique_ptr<Performer> m_sensitivityOnIdle;
    boost::signals2::scoped_connection m_visibilityConnection;
    boost::signals2::scoped_connection m_sensitivityConnection;
};

} // namespace vantrix::sdk::ui::dialogs::propertybindings
