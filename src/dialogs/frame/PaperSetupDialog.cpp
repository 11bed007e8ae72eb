#include "dialogs/frame/PaperSetupDialog.h"

#include "dialogs/DialogInstance.h"
#include "dialogs/FormBindings.h"
#include "propertymanager/managers/frame/PaperSetupPropertiesManager.h"
#include "ui/LaunchHelpAction.h"
#include "ui_PaperSetupDialog.h"

namespace vantrix::sdk::ui::dialogs {

using propertymanager::PaperRulerSpacing;
using propertymanager::PaperSetupPropertiesManager;

class PaperSetupDialogImpl
{
public:
    explicit PaperSetupDialogImpl(PaperSetupDialog& dialog);

    PaperSetupPropertiesManager& manager() { return m_manager; }
    FormBindings const& bindings() const { return m_bindings; }
    QPushButton* okButton() const { return m_form.buttonBox->button(QDialogButtonBox::Ok); }

private:
    void createBindings();
    void followDimensions();
    void updatePaperDimensions();
    void updatePaperDimensionLabel();

    PaperSetupPropertiesManager m_manager;
    Ui::PaperSetup m_form;
    FormBindings m_bindings;
    OnIdleActionPerformerSingleShot m_updateDimensionsOnIdle;
    SignalConnectionCollection m_connections;
};

PaperSetupDialogImpl::PaperSetupDialogImpl(PaperSetupDialog& dialog)
    : m_updateDimensionsOnIdle([this] {
        updatePaperDimensions();
        updatePaperDimensionLabel();
    })
{
    m_form.setupUi(&dialog);
    createBindings();
    followDimensions();
}

void PaperSetupDialogImpl::createBindings()
{
    auto& paper = m_manager.properties();

    m_bindings.bindChoice(m_form.paper_SizeLetter_RadioButton, paper.paperSize(), PaperSize_Letter);
    m_bindings.bindChoice(m_form.paper_SizeDouble_RadioButton, paper.paperSize(), PaperSize_Double);
    m_bindings.bindChoice(m_form.paper_SizeA4_RadioButton, paper.paperSize(), PaperSize_A4);
    m_bindings.bindChoice(m_form.paper_SizeA3_RadioButton, paper.paperSize(), PaperSize_A3);
    m_bindings.bindChoice(m_form.paper_SizeCustom1_RadioButton, paper.paperSize(), PaperSize_Custom1);
    m_bindings.bindChoice(m_form.paper_SizeCustom2_RadioButton, paper.paperSize(), PaperSize_Custom2);
    m_bindings.bindChoice(m_form.paper_Portrait_RadioButton, paper.orientPortrait(), true);
    m_bindings.bindChoice(m_form.paper_Landscape_RadioButton, paper.orientPortrait(), false);
    m_bindings.bindCheck(m_form.paper_ShowOnScreen_ToggleButton, paper.showPaper());
    m_bindings.bindCheck(m_form.paper_ShowBackColor_ToggleButton, m_manager.useFillColorWhenPrinting());
    m_bindings.bindColor(m_form.paper_Color_ColorAndTextButton, m_manager.fillColor());
    m_bindings.remember(m_form.paper_Color_ColorAndTextButton, *paper.backgroundColor());
    m_bindings.bindLabel(m_form.paper_Color_Label, m_manager.fillColor());
}

void PaperSetupDialogImpl::followDimensions()
{
    auto const update = boost::bind(&OnIdleActionPerformerSingleShot::enableNotification, &m_updateDimensionsOnIdle);
    m_connections.add(m_manager.properties().paperSize()->connectToValueChangedSignal(update));
    m_connections.add(m_manager.properties().orientPortrait()->connectToValueChangedSignal(update));
    m_connections.add(m_manager.rulerSpacing().connectToChangedSignal(update));
    updatePaperDimensions();
    updatePaperDimensionLabel();
}

void PaperSetupDialogImpl::updatePaperDimensions()
{
    auto const [width, height] = m_manager.getPaperDimensions();
    double const unitsPerInch = m_manager.rulerSpacing().unitsPerInch();
    m_form.paper_Width_Dynamic->setText(QString::number(width * unitsPerInch));
    m_form.paper_Height_Dynamic->setText(QString::number(height * unitsPerInch));
}

void PaperSetupDialogImpl::updatePaperDimensionLabel()
{
    switch (m_manager.rulerSpacing().code()) {
    case PaperUnitSpacing_HalfCentimeter:
    case PaperUnitSpacing_OneCentimeter:
        m_form.paper_Dimensions_GroupBox->setTitle(PaperSetupDialog::tr("Dimensions (cm)"));
        break;
    case PaperUnitSpacing_OneInch:
        m_form.paper_Dimensions_GroupBox->setTitle(PaperSetupDialog::tr("Dimensions (inches)"));
        break;
    case PaperUnitSpacing_TenPoints:
    case PaperUnitSpacing_TwentyFourPoints:
        m_form.paper_Dimensions_GroupBox->setTitle(PaperSetupDialog::tr("Dimensions (points)"));
        break;
    default:
        break;
    }
}

PaperSetupDialog& PaperSetupDialog::getInstance(QWidget& parent)
{
    return dialogInstance<PaperSetupDialog>([&parent] { return new PaperSetupDialog(parent); });
}

PaperSetupDialog::Relevance PaperSetupDialog::relevance()
{
    return PaperSetupPropertiesManager::relevance();
}

PaperSetupDialog::PaperSetupDialog(QWidget& parent)
    : ModalDialogAbstract(parent, relevance())
    , m_impl(std::make_unique<PaperSetupDialogImpl>(*this))
{
    setOkButton(m_impl->okButton());
    setBindings(m_impl->bindings());
    setHelpAction(new vantrix::dialogs::common::LaunchHelpAction(QStringLiteral("paper_setup.html"), this));
}

PaperSetupDialog::~PaperSetupDialog() = default;

void PaperSetupDialog::init()
{
    m_impl->manager().init();
}

bool PaperSetupDialog::submit()
{
    return m_impl->manager().submit();
}

} // namespace vantrix::sdk::ui::dialogs
