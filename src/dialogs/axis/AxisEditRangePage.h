#pragma once

#include "dialogs/FormBindings.h"
#include "dialogs/axis/AxisEditPageInterface.h"
#include "propertymanager/managers/axis/AxisEditRangePageManager.h"

#include <QMenu>

namespace Ui {
class AxisEdit;
}

namespace vantrix::sdk::ui::dialogs {

/// The page of the axis dialog for the range of the axis, its scale and its dependency on other axes.
class AxisEditRangePage : public AxisEditPageInterface
{
public:
    /// @param form        has the page's widgets
    /// @param properties  the axis that is edited; all arguments outlive the page
    AxisEditRangePage(QWidget& parent, Ui::AxisEdit& form, propertymanager::AxisEditProperties& properties);
    ~AxisEditRangePage() override;

private:
    void createBindings();
    void bindProportion(common::QScientificSpinBox* spinBox,
                        propertymanager::UIStylePropertyAbstract<double>& property);
    void bindRelevanciesToControls();
    void axisEdit_RangeReset_Button_clicked();
    void on_axisEdit_RangeAxisSpecThetaReset_Button_clicked();
    void on_axisEdit_RangeAxisSpec3DResetScaleFacts_Button_clicked();

    using ResetRange_e = propertymanager::AxisEditRangePageManager::ResetRange_e;
    using ThetaResetMode_e = propertymanager::AxisEditRangePageManager::ThetaResetMode_e;
    QAction* addReset(QString const& text, ResetRange_e reset);
    void addReset(QString const& text, ThetaResetMode_e mode);
    void startMenu(QWidget& button);
    void popUpMenu();

    Ui::AxisEdit& m_form;
    propertymanager::AxisEditProperties& m_properties;
    propertymanager::AxisEditRangePageManager m_manager;
    FormBindings m_bindings;
    QPointer<QMenu> m_menu;
};

} // namespace vantrix::sdk::ui::dialogs
