#pragma once

#include "dialogs/FormBindings.h"
#include "dialogs/axis/AxisEditPageInterface.h"
#include "propertymanager/managers/axis/AxisEditLabelPageManager.h"

namespace Ui {
class AxisEdit;
}

namespace vantrix::sdk::ui::dialogs {

/// The page of the axis dialog for the numbers at tick marks.
class AxisEditLabelPage : public AxisEditPageInterface
{
public:
    /// @param form        has the page's widgets
    /// @param properties  the axis that is edited; all arguments outlive the page
    AxisEditLabelPage(QWidget& parent, Ui::AxisEdit& form, propertymanager::AxisEditProperties& properties);

private:
    void createBindings();
    void bindRelevanciesToControls();

    Ui::AxisEdit& m_form;
    propertymanager::AxisEditLabelPageManager m_manager;
    FormBindings m_bindings;
};

} // namespace vantrix::sdk::ui::dialogs
