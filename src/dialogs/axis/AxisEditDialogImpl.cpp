#include "dialogs/axis/AxisEditDialogImpl.h"

#include "api/VtxUtil.h"
#include "dialogs/axis/AxisEditAreaPage.h"
#include "dialogs/axis/AxisEditGridPage.h"
#include "dialogs/axis/AxisEditLabelPage.h"
#include "dialogs/axis/AxisEditLinePage.h"
#include "dialogs/axis/AxisEditRangePage.h"
#include "dialogs/axis/AxisEditTicksPage.h"
#include "dialogs/axis/AxisEditTitlePage.h"
#include "ui/TabWidgetPersistence.h"

namespace vantrix::sdk::ui::dialogs {

using propertymanager::AxisEditProperties;
using vantrix::dialogs::common::TabWidgetPersistence;

namespace {

/// Buttons are numbered by type and number of their axes.
constexpr int AxesOfAKind = 10;

int buttonId(AxisEditProperties::Axis_e axis, int number)
{
    return axis * AxesOfAKind + number;
}

/// Leaves alone the tab that was chosen for the user before the dialog is shown first.
class TabPersistence : public TabWidgetPersistence
{
public:
    TabPersistence(QTabWidget* tabWidget, bool const& isTabChosen)
        : TabWidgetPersistence(tabWidget)
        , m_isTabChosen(isTabChosen)
    {}

    void restore(QSettings const& settings) override
    {
        if (!m_isTabChosen) {
            TabWidgetPersistence::restore(settings);
        }
    }

private:
    bool const& m_isTabChosen;
};

} // namespace

AxisEditDialog::AxisEditDialogImpl::Axis_e AxisEditDialog::AxisEditDialogImpl::m_axis = AxisEditProperties::FirstAxis;
int AxisEditDialog::AxisEditDialogImpl::m_xyLineAxisNum = 1;

AxisEditDialog::AxisEditDialogImpl::AxisEditDialogImpl(AxisEditDialog& dialog)
    : m_dialog(dialog)
    , m_manager(m_properties)
{
    m_form.setupUi(&dialog);
    fillButtonGroups();
    m_bindings.bindCheck(m_form.axisEdit_PickShowAxis_ToggleButton, m_manager.getShowAxis());
    bindRelevanciesToControls();
}

void AxisEditDialog::AxisEditDialogImpl::fillButtonGroups()
{
    auto const x = AxisEditProperties::FirstAxis;
    auto const y = AxisEditProperties::SecondAxis;
    auto const z = AxisEditProperties::ThirdAxis;
    m_polarAxes.addButton(m_form.axisEdit_PickPolarThetaAxis_TXRadioButton, buttonId(x, 1));
    m_polarAxes.addButton(m_form.axisEdit_PickPolarRAxis_TXRadioButton, buttonId(y, 1));
    m_xyLineAxes.addButton(m_form.axisEdit_PickXYX1Axis_TXRadioButton, buttonId(x, 1));
    m_xyLineAxes.addButton(m_form.axisEdit_PickXYX2Axis_TXRadioButton, buttonId(x, 2));
    m_xyLineAxes.addButton(m_form.axisEdit_PickXYX3Axis_TXRadioButton, buttonId(x, 3));
    m_xyLineAxes.addButton(m_form.axisEdit_PickXYX4Axis_TXRadioButton, buttonId(x, 4));
    m_xyLineAxes.addButton(m_form.axisEdit_PickXYX5Axis_TXRadioButton, buttonId(x, 5));
    m_xyLineAxes.addButton(m_form.axisEdit_PickXYY1Axis_TXRadioButton, buttonId(y, 1));
    m_xyLineAxes.addButton(m_form.axisEdit_PickXYY2Axis_TXRadioButton, buttonId(y, 2));
    m_xyLineAxes.addButton(m_form.axisEdit_PickXYY3Axis_TXRadioButton, buttonId(y, 3));
    m_xyLineAxes.addButton(m_form.axisEdit_PickXYY4Axis_TXRadioButton, buttonId(y, 4));
    m_xyLineAxes.addButton(m_form.axisEdit_PickXYY5Axis_TXRadioButton, buttonId(y, 5));
    m_twoDAxes.addButton(m_form.axisEdit_Pick2DXAxis_TXRadioButton, buttonId(x, 1));
    m_twoDAxes.addButton(m_form.axisEdit_Pick2DYAxis_TXRadioButton, buttonId(y, 1));
    m_threeDAxes.addButton(m_form.axisEdit_Pick3DXAxis_TXRadioButton, buttonId(x, 1));
    m_threeDAxes.addButton(m_form.axisEdit_Pick3DYAxis_TXRadioButton, buttonId(y, 1));
    m_threeDAxes.addButton(m_form.axisEdit_Pick3DZAxis_TXRadioButton, buttonId(z, 1));
}

void AxisEditDialog::AxisEditDialogImpl::bindRelevanciesToControls()
{
    m_bindings.show(m_manager.polarLineAxisRelevance(), {m_form.polarAxisButtons});
    m_bindings.show(m_manager.xyLineAxisRelevance(), {m_form.xyLineAxisButtons});
    m_bindings.show(m_manager.twoDAxisRelevance(), {m_form.twoDAxisButtons});
    m_bindings.show(m_manager.threeDAxisRelevance(), {m_form.threeDAxisButtons});
}

vantrix::dialogs::common::TabWidgetLaunchHelpAction::Pages AxisEditDialog::AxisEditDialogImpl::helpPages() const
{
    return {{m_form.axisEdit_Range_Page, QStringLiteral("axis_details_range.html")},
            {m_form.axisEdit_Grid_Page, QStringLiteral("axis_details_grid.html")},
            {m_form.axisEdit_Ticks_Page, QStringLiteral("axis_details_ticks.html")},
            {m_form.axisEdit_Label_Page, QStringLiteral("axis_details_label.html")},
            {m_form.axisEdit_Title_Page, QStringLiteral("axis_details_title.html")},
            {m_form.axisEdit_Line_Page, QStringLiteral("axis_details_line.html")},
            {m_form.axisEdit_Area_Page, QStringLiteral("axis_details_area.html")}};
}

std::unique_ptr<vantrix::dialogs::common::PersistentStateInterface>
AxisEditDialog::AxisEditDialogImpl::newTabPersistence()
{
    return std::make_unique<TabPersistence>(m_form.rangePage, m_isTabChosen);
}

void AxisEditDialog::AxisEditDialogImpl::restorePersistentState()
{
    if (VtxUtilFrameGetPlotType() != PlotType_Cartesian3D && m_axis == AxisEditProperties::ThirdAxis) {
        m_axis = AxisEditProperties::FirstAxis;
    }
    setAxis(m_axis, m_xyLineAxisNum);
    setActiveAxisButton(m_axis, m_xyLineAxisNum);
    showCurrentPage();
}

void AxisEditDialog::AxisEditDialogImpl::chooseAxis(int buttonId)
{
    setAxis(static_cast<Axis_e>(buttonId / AxesOfAKind), buttonId % AxesOfAKind);
    setActiveAxisButton(m_axis, buttonId % AxesOfAKind);
}

void AxisEditDialog::AxisEditDialogImpl::setAxis(Axis_e axis, int number)
{
    m_axis = axis;
    m_properties.setAxis(axis);
    if (VtxUtilFrameGetPlotType() == PlotType_XYLine) {
        m_xyLineAxisNum = number;
        m_properties.setXYLineAxisNum(number);
    }
}

void AxisEditDialog::AxisEditDialogImpl::checkCurrentAxis()
{
    setActiveAxisButton(m_properties.axisType(), m_properties.axisNum());
}

QButtonGroup const* AxisEditDialog::AxisEditDialogImpl::currentAxes() const
{
    QWidget const* const page = m_form.plotTypeAxisStack->currentWidget();
    if (page == m_form.polarAxisButtons) {
        return &m_polarAxes;
    }
    if (page == m_form.xyLineAxisButtons) {
        return &m_xyLineAxes;
    }
    return page == m_form.threeDAxisButtons ? &m_threeDAxes : &m_twoDAxes;
}

void AxisEditDialog::AxisEditDialogImpl::setActiveAxisButton(Axis_e axis, int number)
{
    QButtonGroup const* const axes = currentAxes();
    int const shownNumber = axes == &m_xyLineAxes ? number : 1;
    if (QAbstractButton* const button = axes->button(buttonId(axis, shownNumber))) {
        button->setChecked(true);
        QString const name = button->text().remove(QLatin1Char('&'));
        m_form.axisEdit_PickShowAxis_ToggleButton->setText(AxisEditDialog::tr("&Show %1-Axis").arg(name));
    }
}

void AxisEditDialog::AxisEditDialogImpl::aimAtPickedAxis()
{
    switch (VtxUtilPickListGetAxisSubObject(1)) {
    case AxisSubObject_AxisLine:
        chooseTab(*m_form.axisEdit_Line_Page);
        break;
    case AxisSubObject_GridArea:
        chooseTab(*m_form.axisEdit_Grid_Page);
        break;
    case AxisSubObject_Title:
        chooseTab(*m_form.axisEdit_Title_Page);
        break;
    default:
        break;
    }
    int const number = VtxUtilPickListGetAxisNumber(1);
    switch (VtxUtilPickListGetAxisKind(1)) {
    case 'X':
    case 'T':
        chooseAxis(buttonId(AxisEditProperties::FirstAxis, number));
        break;
    case 'Y':
    case 'R':
        chooseAxis(buttonId(AxisEditProperties::SecondAxis, number));
        break;
    case 'Z':
        chooseAxis(buttonId(AxisEditProperties::ThirdAxis, number));
        break;
    default:
        break;
    }
}

void AxisEditDialog::AxisEditDialogImpl::chooseTab(QWidget& page)
{
    m_isTabChosen = true;
    m_form.rangePage->setCurrentWidget(&page);
}

void AxisEditDialog::AxisEditDialogImpl::showCurrentPage()
{
    createManagerForPage(pageOf(m_form.rangePage->currentWidget()));
}

AxisEditDialog::AxisEditDialogImpl::Page_e AxisEditDialog::AxisEditDialogImpl::pageOf(QWidget const* widget) const
{
    std::map<QWidget const*, Page_e> const pages{
        {m_form.axisEdit_Range_Page, RangePage}, {m_form.axisEdit_Grid_Page, GridPage},
        {m_form.axisEdit_Ticks_Page, TicksPage}, {m_form.axisEdit_Label_Page, LabelPage},
        {m_form.axisEdit_Title_Page, TitlePage}, {m_form.axisEdit_Line_Page, LinePage},
        {m_form.axisEdit_Area_Page, AreaPage}};
    auto const found = pages.find(widget);
    return found == pages.end() ? NoPage : found->second;
}

void AxisEditDialog::AxisEditDialogImpl::createManagerForPage(Page_e page)
{
    m_page.reset(); // before the next one is made: only one listens at a time
    switch (page) {
    case RangePage:
        m_page = std::make_unique<AxisEditRangePage>(m_dialog, m_form, m_properties);
        break;
    case GridPage:
        m_page = std::make_unique<AxisEditGridPage>(m_dialog, m_form, m_properties);
        break;
    case TicksPage:
        m_page = std::make_unique<AxisEditTicksPage>(m_dialog, m_form, m_properties);
        break;
    case LabelPage:
        m_page = std::make_unique<AxisEditLabelPage>(m_dialog, m_form, m_properties);
        break;
    case TitlePage:
        m_page = std::make_unique<AxisEditTitlePage>(m_dialog, m_form, m_properties);
        break;
    case LinePage:
        m_page = std::make_unique<AxisEditLinePage>(m_dialog, m_form, m_properties);
        break;
    case AreaPage:
        m_page = std::make_unique<AxisEditAreaPage>(m_dialog, m_form, m_properties);
        break;
    case NoPage:
        break;
    }
}

} // namespace vantrix::sdk::ui::dialogs
