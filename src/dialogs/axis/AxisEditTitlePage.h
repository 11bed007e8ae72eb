#pragma once

#include "dialogs/FormBindings.h"
#include "dialogs/axis/AxisEditPageInterface.h"
#include "propertymanager/managers/axis/AxisEditTitlePageManager.h"

namespace Ui {
class AxisEdit;
}

namespace vantrix::sdk::ui::dialogs {

/// The page of the axis dialog for the title of the axis.
class AxisEditTitlePage : public AxisEditPageInterface
{
public:
    /// @param form        has the page's widgets
    /// @param properties  the axis that is edited; all arguments outlive the page
    AxisEditTitlePage(QWidget& parent, Ui::AxisEdit& form, propertymanager::AxisEditProperties& properties);

private:
    void createBindings();
    void bindRelevanciesToControls();

    Ui::AxisEdit& m_form;
    propertymanager::AxisEditTitlePageManager m_manager;
    FormBindings m_bindings;
};

} // namespace vantrix::sdk::ui::dialogs
