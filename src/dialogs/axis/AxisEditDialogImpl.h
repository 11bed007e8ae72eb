#pragma once

#include "dialogs/FormBindings.h"
#include "dialogs/axis/AxisEditDialog.h"
#include "dialogs/axis/AxisEditPageInterface.h"
#include "propertymanager/managers/axis/AxisEditPropertiesManager.h"
#include "ui/TabWidgetLaunchHelpAction.h"
#include "ui_AxisEditDialog.h"

#include <QButtonGroup>

namespace vantrix::sdk::ui::dialogs {

/// The axes to choose from, the page on show, and what both edit.
class AxisEditDialog::AxisEditDialogImpl
{
public:
    using Axis_e = propertymanager::AxisEditProperties::Axis_e;

    explicit AxisEditDialogImpl(AxisEditDialog& dialog);

    Ui::AxisEdit& form() { return m_form; }
    QButtonGroup& polarAxes() { return m_polarAxes; }
    QButtonGroup& xyLineAxes() { return m_xyLineAxes; }
    QButtonGroup& twoDAxes() { return m_twoDAxes; }
    QButtonGroup& threeDAxes() { return m_threeDAxes; }

    vantrix::dialogs::common::TabWidgetLaunchHelpAction::Pages helpPages() const;

    /// Remembers the tab from run to run; a tab that was chosen for the dialog before it is shown first stays.
    std::unique_ptr<vantrix::dialogs::common::PersistentStateInterface> newTabPersistence();

    /// Goes back to the axis that was edited last, and makes the page of the current tab.
    void restorePersistentState();

    /// Edits the axis of a button, by the button's number in its group.
    void chooseAxis(int buttonId);

    /// Checks the button of the axis that is being edited, among those of the present type of plot.
    void checkCurrentAxis();

    /// Chooses axis and tab by the first object of the host's pick list.
    void aimAtPickedAxis();

    /// Makes the page of the current tab in place of the one before.
    void showCurrentPage();

private:
    enum Page_e
    {
        RangePage = 0,
        GridPage = 1,
        TicksPage = 2,
        LabelPage = 3,
        TitlePage = 4,
        LinePage = 5,
        AreaPage = 6,
        NoPage = 255
    };

    void fillButtonGroups();
    void bindRelevanciesToControls();
    Page_e pageOf(QWidget const* widget) const;
    void createManagerForPage(Page_e page);
    void chooseTab(QWidget& page);
    void setAxis(Axis_e axis, int number);
    void setActiveAxisButton(Axis_e axis, int number);
    QButtonGroup const* currentAxes() const;

    // The last choices, for the life of the process.
    static Axis_e m_axis;
    static int m_xyLineAxisNum;

    AxisEditDialog& m_dialog;
    Ui::AxisEdit m_form;
    propertymanager::AxisEditProperties m_properties;
    propertymanager::AxisEditPropertiesManager m_manager;
    QButtonGroup m_polarAxes;
    QButtonGroup m_xyLineAxes;
    QButtonGroup m_twoDAxes;
    QButtonGroup m_threeDAxes;
    FormBindings m_bindings;
    std::unique_ptr<AxisEditPageInterface> m_page;
    bool m_isTabChosen = false;
};

} // namespace vantrix::sdk::ui::dialogs
