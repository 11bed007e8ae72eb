#pragma once

#include "dialogs/FormBindings.h"
#include "dialogs/axis/AxisEditPageInterface.h"
#include "propertymanager/managers/axis/AxisEditAreaPageManager.h"

namespace Ui {
class AxisEdit;
}

namespace vantrix::sdk::ui::dialogs {

/// The page of the axis dialog for the area between the axes and its place in the frame.
class AxisEditAreaPage : public AxisEditPageInterface
{
public:
    /// @param form        has the page's widgets
    /// @param properties  the axis that is edited; all arguments outlive the page
    AxisEditAreaPage(QWidget& parent, Ui::AxisEdit& form, propertymanager::AxisEditProperties& properties);

private:
    void createBindings();
    void bindRelevanciesToControls();

    Ui::AxisEdit& m_form;
    propertymanager::AxisEditAreaPageManager m_manager;
    FormBindings m_bindings;
};

} // namespace vantrix::sdk::ui::dialogs
