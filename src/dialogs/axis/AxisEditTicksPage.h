#pragma once

#include "dialogs/FormBindings.h"
#include "dialogs/axis/AxisEditPageInterface.h"
#include "propertymanager/managers/axis/AxisEditTicksPageManager.h"

namespace Ui {
class AxisEdit;
}

namespace vantrix::sdk::ui::dialogs {

/// The page of the axis dialog for spacing and look of tick marks.
class AxisEditTicksPage : public AxisEditPageInterface
{
public:
    /// @param form        has the page's widgets
    /// @param properties  the axis that is edited; all arguments outlive the page
    AxisEditTicksPage(QWidget& parent, Ui::AxisEdit& form, propertymanager::AxisEditProperties& properties);

private:
    void createBindings();
    void bindRelevanciesToControls();

    Ui::AxisEdit& m_form;
    propertymanager::AxisEditTicksPageManager m_manager;
    FormBindings m_bindings;
};

} // namespace vantrix::sdk::ui::dialogs
