#include "dialogs/probe/ProbeAtDialog.h"

#include "api/VtxUtil.h"
#include "dialogs/DialogInstance.h"
#include "dialogs/FormBindings.h"
#include "dialogs/probe/ProbeDialog.h"
#include "dialogs/probe/ProbePositionsDialog.h"
#include "propertymanager/XYZSpinBoxIncDecCalculator.h"
#include "propertymanager/managers/probe/ProbeAtDialogManager.h"
#include "sdk/SignalConnectionCollection.h"
#include "ui/ButtonBinding.h"
#include "ui/SpinBoxDoublePropertyBinding.h"
#include "ui/SpinBoxLgIndexPropertyBinding.h"
#include "ui/TabWidgetLaunchHelpAction.h"
#include "ui_ProbeAtDialog.h"

#include <array>

namespace vantrix::sdk::ui::dialogs {

using namespace propertybindings;
using propertymanager::ProbeAtDialogManager;
using propertymanager::XYZSpinBoxIncDecCalculator;
using Plane = propertymanager::SpinBoxIncDecCalculatorIJKAbstract;

class ProbeAtDialog::Impl
{
public:
    explicit Impl(ProbeAtDialog& dialog);

    ProbeAtDialogManager& manager() { return m_manager; }
    Ui::AtProbe& form() { return m_form; }
    QAbstractButton* xyButton(propertymanager::LineProbeAxis_e axis, int number) const;

private:
    void createButtons();
    void createBindings();
    void createLineAxisButtons();
    void bindRelevanciesToControls();
    void updateForm();
    void updateIndexList();

    ProbeAtDialog& m_dialog;
    ProbeAtDialogManager m_manager;
    Ui::AtProbe m_form;
    QPushButton* m_several = nullptr;
    std::array<QAbstractButton*, 10> m_xyButtons{}; ///< X1 to X5, Y1 to Y5
    boost::ptr_vector<BindingInterface> m_bindings;
    std::unique_ptr<BindingInterface> m_indexListBinding; ///< to the zones, in a line plot to the line maps
    bool m_indexListIsOfLineMaps = false;
    FormBindings m_formBindings;
    SignalConnectionCollection m_connections;
};

ProbeAtDialog::Impl::Impl(ProbeAtDialog& dialog)
    : m_dialog(dialog)
{
    m_form.setupUi(&dialog);
    createButtons();
    createLineAxisButtons();
    createBindings();
    bindRelevanciesToControls();
    connect(m_form.pageForm, &QTabWidget::currentChanged, &dialog, &ProbeAtDialog::onPageFormCurrentChanged);
    m_connections.add(m_manager.connectToUpdatedSignal([this] { updateForm(); }));
    auto const followZone = [this](auto const&...) { m_manager.updateIndexPage(); };
    m_connections.add(m_manager.zone()->connectToValueChangedSignal(followZone));
    m_connections.add(m_manager.lineMap()->connectToValueChangedSignal(followZone));
    updateForm();
}

void ProbeAtDialog::Impl::createButtons()
{
    m_several = m_form.buttonBox->addButton(tr("&Several..."), QDialogButtonBox::ActionRole);
    m_several->setObjectName(QStringLiteral("atProbe_Several_PushButton"));
    m_several->setToolTip(tr("Probe many positions at once"));
    m_bindings.push_back(new ButtonBinding(m_several, [this] {
        auto& several = ProbePositionsDialog::getInstance(*m_dialog.parentWidget());
        several.setLineAxis(m_manager.getLineProbeAxis(), m_manager.getLineProbeAxisNum());
        several.launch();
    }));
    QPushButton* const probe = m_form.buttonBox->button(QDialogButtonBox::Apply);
    probe->setText(tr("&Do Probe"));
    m_bindings.push_back(new ButtonBinding(probe, [this] { m_dialog.doProbe(); }));
}

void ProbeAtDialog::Impl::createLineAxisButtons()
{
    m_xyButtons = {m_form.atProbe_PositionAreaLinePlotXYAxisX1_TXRadioButton,
                   m_form.atProbe_PositionAreaLinePlotXYAxisX2_TXRadioButton,
                   m_form.atProbe_PositionAreaLinePlotXYAxisX3_TXRadioButton,
                   m_form.atProbe_PositionAreaLinePlotXYAxisX4_TXRadioButton,
                   m_form.atProbe_PositionAreaLinePlotXYAxisX5_TXRadioButton,
                   m_form.atProbe_PositionAreaLinePlotXYAxisY1_TXRadioButton,
                   m_form.atProbe_PositionAreaLinePlotXYAxisY2_TXRadioButton,
                   m_form.atProbe_PositionAreaLinePlotXYAxisY3_TXRadioButton,
                   m_form.atProbe_PositionAreaLinePlotXYAxisY4_TXRadioButton,
                   m_form.atProbe_PositionAreaLinePlotXYAxisY5_TXRadioButton};
    for (int id = 0; id < static_cast<int>(m_xyButtons.size()); ++id) {
        m_form.lineAxisXYButtons->setId(m_xyButtons[static_cast<std::size_t>(id)], id);
    }
    connect(m_form.lineAxisXYButtons, &QButtonGroup::buttonClicked, &m_dialog, &ProbeAtDialog::onLineAxisXYClicked);
    connect(m_form.lineAxisPolarButtons, &QButtonGroup::buttonClicked, &m_dialog,
            &ProbeAtDialog::onLineAxisPolarClicked);
}

void ProbeAtDialog::Impl::createBindings()
{
    auto const bindNumber = [this](auto* spinBox, auto const& property, auto calculator) {
        m_bindings.push_back(
            new SpinBoxDoublePropertyBinding(spinBox, *property, BindingInterface::OnIdle, calculator));
    };
    using Coordinate = XYZSpinBoxIncDecCalculator;
    bindNumber(m_form.atProbe_PositionAreaFieldX_1Text, m_manager.X(), boost::make_shared<Coordinate>(Coordinate::X));
    bindNumber(m_form.atProbe_PositionAreaFieldY_1Text, m_manager.Y(), boost::make_shared<Coordinate>(Coordinate::Y));
    bindNumber(m_form.atProbe_PositionAreaFieldZ_1Text, m_manager.Z(), boost::make_shared<Coordinate>(Coordinate::Z));
    bindNumber(m_form.atProbe_PositionAreaLinePlotDoAxis_1Text, m_manager.linePosition(),
               m_manager.linePositionCalculator());
    auto const bindIndex = [this](auto* spinBox, auto const& property, Plane::Plane_e plane) {
        m_bindings.push_back(new SpinBoxLgIndexPropertyBinding(spinBox, *property, BindingInterface::OnIdle,
                                                               m_manager.indexCalculator(plane)));
    };
    bindIndex(m_form.atProbe_IndexI_1Text, m_manager.I(), Plane::IPlane);
    bindIndex(m_form.atProbe_IndexJ_1Text, m_manager.J(), Plane::JPlane);
    bindIndex(m_form.atProbe_IndexK_1Text, m_manager.K(), Plane::KPlane);
    m_formBindings.bindCheck(m_form.atProbe_PositionAreaFieldVolume_ToggleButton, m_manager.probeWithinVolume());
}

void ProbeAtDialog::Impl::bindRelevanciesToControls()
{
    m_formBindings.apply(ProbeAtDialogManager::threeDRelevance(),
                         {m_form.atProbe_PositionAreaFieldZ_Label, m_form.atProbe_PositionAreaFieldZ_1Text,
                          m_form.atProbe_PositionAreaFieldVolume_ToggleButton});
}

QAbstractButton* ProbeAtDialog::Impl::xyButton(propertymanager::LineProbeAxis_e axis, int number) const
{
    return m_xyButtons[static_cast<std::size_t>((axis == propertymanager::LineProbeAxis_Y ? 5 : 0) + number - 1)];
}

void ProbeAtDialog::Impl::updateForm()
{
    bool const isLine = ProbeAtDialogManager::isLinePlot();
    bool const isPolar = ProbeAtDialogManager::isPolarPlot();
    m_form.atProbe_PositionArea_Stack->setCurrentWidget(isLine ? m_form.positionLine_page : m_form.positionField_page);
    m_form.atProbe_PositionAreaLinePlotAxis_Stack->setCurrentWidget(isPolar ? m_form.lineAxisPolar_page
                                                                            : m_form.lineAxisXY_page);
    auto const axis = m_manager.getLineProbeAxis();
    short const number = m_manager.getLineProbeAxisNum();
    QString caption;
    switch (axis) {
    case propertymanager::LineProbeAxis_Theta:
        m_form.atProbe_PositionAreaLinePlotPolarAxisTheta_TXRadioButton->setChecked(true);
        caption = tr("&Theta:");
        break;
    case propertymanager::LineProbeAxis_R:
        m_form.atProbe_PositionAreaLinePlotPolarAxisR_TXRadioButton->setChecked(true);
        caption = tr("&R:");
        break;
    default:
        xyButton(axis, number)->setChecked(true);
        caption = axis == propertymanager::LineProbeAxis_Y ? tr("&Y%1:").arg(number) : tr("&X%1:").arg(number);
        break;
    }
    m_form.atProbe_PositionAreaLinePlotDoAxis_Label->setText(caption);
    updateIndexList();
}

/// The list offers line maps in a line plot and zones in any other.
void ProbeAtDialog::Impl::updateIndexList()
{
    bool const isLine = ProbeAtDialogManager::isLinePlot();
    if (m_indexListBinding && isLine == m_indexListIsOfLineMaps) {
        return;
    }
    m_indexListIsOfLineMaps = isLine;
    m_indexListBinding.reset();
    QComboBox& list = *m_form.atProbe_IndexDataGroup_CmbBox;
    using Binding = ComboBoxPropertyBinding<int>;
    boost::shared_ptr<models::ListModelInterface<int> const> model;
    if (isLine) {
        model = m_manager.activeLineMapsModel();
    } else {
        model = m_manager.activeZonesModel();
    }
    boost::shared_ptr<PropertyAbstract<int>> const property = isLine ? m_manager.lineMap() : m_manager.zone();
    m_indexListBinding = std::make_unique<Binding>(list, property, model, BindingInterface::UpdateAlways);
}

ProbeAtDialog& ProbeAtDialog::getInstance(QWidget& parent)
{
    return dialogInstance<ProbeAtDialog>([&parent] { return new ProbeAtDialog(parent); });
}

ProbeAtDialog::Relevance ProbeAtDialog::relevance()
{
    return ProbeAtDialogManager::relevance();
}

ProbeAtDialog::ProbeAtDialog(QWidget& parent)
    : QtDialogAbstract(parent, relevance())
    , m_impl(std::make_unique<Impl>(*this))
{
    setHelpAction(new vantrix::dialogs::common::TabWidgetLaunchHelpAction(
        {{m_impl->form().atProbe_Position_Page, QStringLiteral("probe_at_position.html")},
         {m_impl->form().atProbe_Index_Page, QStringLiteral("probe_at_index.html")}},
        m_impl->form().pageForm, this));
    openBesidePlot();
}

ProbeAtDialog::~ProbeAtDialog() = default;

void ProbeAtDialog::launch()
{
    if (!isVisible()) {
        m_impl->manager().restorePersistentState();
        m_impl->manager().update();
    }
    QtDialogAbstract::launch();
}

void ProbeAtDialog::doProbe()
{
    if (!VtxUtilProbeIsCallbackInstalled() && parentWidget()) {
        ProbeDialog::getInstance(*parentWidget()).receiveProbes();
    }
    m_impl->manager().doProbe();
}

void ProbeAtDialog::onPageFormCurrentChanged(int page)
{
    m_impl->manager().setPage(static_cast<ProbeAtDialogManager::Page_e>(page));
}

void ProbeAtDialog::onLineAxisXYClicked(QAbstractButton* button)
{
    int const id = m_impl->form().lineAxisXYButtons->id(button);
    m_impl->manager().setLineProbeAxis(id < 5 ? propertymanager::LineProbeAxis_X : propertymanager::LineProbeAxis_Y);
    m_impl->manager().setLineProbeAxisNum(static_cast<short>(id % 5 + 1));
}

void ProbeAtDialog::onLineAxisPolarClicked(QAbstractButton* button)
{
    bool const isTheta = button == m_impl->form().atProbe_PositionAreaLinePlotPolarAxisTheta_TXRadioButton;
    m_impl->manager().setLineProbeAxisNum(1);
    m_impl->manager().setLineProbeAxis(isTheta ? propertymanager::LineProbeAxis_Theta
                                               : propertymanager::LineProbeAxis_R);
}

void ProbeAtDialog::closeEvent(QCloseEvent* event)
{
    m_impl->manager().savePersistentState();
    QtDialogAbstract::closeEvent(event);
}

void ProbeAtDialog::hideEvent(QHideEvent* event)
{
    m_impl->manager().savePersistentState();
    QtDialogAbstract::hideEvent(event);
}

} // namespace vantrix::sdk::ui::dialogs
