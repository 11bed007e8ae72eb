#pragma once

#include "dialogs/FormBindings.h"
#include "dialogs/axis/AxisEditPageInterface.h"
#include "propertymanager/managers/axis/AxisEditLinePageManager.h"

namespace Ui {
class AxisEdit;
}

namespace vantrix::sdk::ui::dialogs {

/// The page of the axis dialog for the line of the axis and where it lies.
class AxisEditLinePage : public AxisEditPageInterface
{
public:
    /// @param form        has the page's widgets
    /// @param properties  the axis that is edited; all arguments outlive the page
    AxisEditLinePage(QWidget& parent, Ui::AxisEdit& form, propertymanager::AxisEditProperties& properties);

private:
    void createBindings();
    void bindRelevanciesToControls();

    Ui::AxisEdit& m_form;
    propertymanager::AxisEditLinePageManager m_manager;
    FormBindings m_bindings;
};

} // namespace vantrix::sdk::ui::dialogs
