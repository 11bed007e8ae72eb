#pragma once

#include "propertybindings/BindingInterface.h"
#include "propertymanager/UIPropertyInterface.h"
#include "sdk/OnIdleActionPerformerSingleShot.h"

#include <QPointer>
#include <QWidget>

namespace vantrix::sdk::ui::dialogs::propertybindings {

/// Makes a widget that shows no value, such as the label of a field, follow the visibility and sensitivity of a
/// property.
class WidgetPropertyBinding : public virtual BindingInterface
{
public:
    /// @param widget    not null
    /// @param property  outlives the binding
    WidgetPropertyBinding(QWidget* widget, propertymanager::UIPropertyInterface& property,
                          WidgetUpdateMode_e updateMode = OnIdle);

    /// There is no value to show: these do nothing.
    void updateWidget() override {}
    void updateValueOnIdle() override {}

    void updateVisibility() override;
    void updateSensitivity() override;

private:
    QPointer<QWidget> m_widget;
    propertymanager::UIPropertyInterface& m_property;
    OnIdleActionPerformerSingleShot m_visibilityOnIdle;
    OnIdleActionPerformerSingleShot m_sensitivityOnIdle;
    boost::signals2::scoped_connection m_visibilityConnection;
    boost::signals2::scoped_connection m_sensitivityConnection;
};

} // namespace vantrix::sdk::ui::dialogs::propertybindings
