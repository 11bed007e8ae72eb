#include "dialogs/axis/AxisEditDialog.h"

#include "dialogs/DialogInstance.h"
#include "dialogs/axis/AxisEditDialogImpl.h"
#include "ui/TabWidgetLaunchHelpAction.h"

namespace vantrix::sdk::ui::dialogs {

AxisEditDialog& AxisEditDialog::getInstance(QWidget& parent, DialogInitialization_e initialization)
{
    auto& dialog = dialogInstance<AxisEditDialog>([&parent] { return new AxisEditDialog(parent); });
    if (initialization == DialogInitialization_Picked) {
        dialog.m_impl->aimAtPickedAxis();
    }
    return dialog;
}

AxisEditDialog::Relevance AxisEditDialog::relevance()
{
    return propertymanager::AxisEditPropertiesManagerAbstract::relevance();
}

AxisEditDialog::AxisEditDialog(QWidget& parent)
    : QtDialogAbstract(parent, relevance())
{
    m_impl = std::make_unique<AxisEditDialogImpl>(*this);
    setHelpAction(
        new vantrix::dialogs::common::TabWidgetLaunchHelpAction(m_impl->helpPages(), m_impl->form().rangePage, this));
    addPersistentState(m_impl->newTabPersistence());
    openBesidePlot();
    m_impl->restorePersistentState();
    connect(m_impl->form().rangePage, &QTabWidget::currentChanged, this, &AxisEditDialog::rangePage_currentChanged);
    connect(&m_impl->polarAxes(), &QButtonGroup::buttonClicked, this, &AxisEditDialog::polarAxisClicked);
    connect(&m_impl->xyLineAxes(), &QButtonGroup::buttonClicked, this, &AxisEditDialog::xyAxisClicked);
    connect(&m_impl->twoDAxes(), &QButtonGroup::buttonClicked, this, &AxisEditDialog::twoDAxisClicked);
    connect(&m_impl->threeDAxes(), &QButtonGroup::buttonClicked, this, &AxisEditDialog::threeDAxisClicked);
}

AxisEditDialog::~AxisEditDialog() = default;

void AxisEditDialog::polarAxisClicked(QAbstractButton* button)
{
    m_impl->chooseAxis(m_impl->polarAxes().id(button));
}

void AxisEditDialog::xyAxisClicked(QAbstractButton* button)
{
    m_impl->chooseAxis(m_impl->xyLineAxes().id(button));
}

void AxisEditDialog::twoDAxisClicked(QAbstractButton* button)
{
    m_impl->chooseAxis(m_impl->twoDAxes().id(button));
}

void AxisEditDialog::threeDAxisClicked(QAbstractButton* button)
{
    m_impl->chooseAxis(m_impl->threeDAxes().id(button));
}

void AxisEditDialog::rangePage_currentChanged(int /*index*/)
{
    m_impl->showCurrentPage();
}

void AxisEditDialog::on_plotTypeAxisStack_currentChanged(int /*index*/)
{
    if (m_impl) {
        m_impl->checkCurrentAxis();
    }
}

} // namespace vantrix::sdk::ui::dialogs
