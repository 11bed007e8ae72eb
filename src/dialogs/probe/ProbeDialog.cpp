#include "dialogs/probe/ProbeDialog.h"

#include "api/VtxUtil.h"
#include "dialogs/DialogInstance.h"
#include "dialogs/probe/ProbeAtDialog.h"
#include "dialogs/probe/ProbeHistory.h"
#include "dialogs/probe/ProbeHistoryDialog.h"
#include "dialogs/probe/ProbeWidget.h"
#include "sdk/AppLock.h"
#include "sdk/DataQueries.h"
#include "toolbox/ArgList.h"
#include "toolbox/HostString.h"
#include "ui/LaunchHelpAction.h"
#include "ui/relevance/StateChangeDependentRelevance.h"

#include <QDialogButtonBox>
#include <QPushButton>
#include <QVBoxLayout>

namespace vantrix::sdk::ui::dialogs {

class ProbeDialog::Impl
{
public:
    explicit Impl(ProbeDialog& dialog)
        : m_dialog(dialog)
    {}

    void buildForm();
    void saveDialogState() { geometry = m_dialog.saveGeometry(); }

    static QByteArray geometry; ///< of the dialog when it was shown last
    static FieldProbeDialogPage_e lastProbePage;
    static bool isPageChosen;

    ProbeWidget* probeInfo = nullptr; ///< null until the form is built

private:
    ProbeDialog& m_dialog;
};

QByteArray ProbeDialog::Impl::geometry;
FieldProbeDialogPage_e ProbeDialog::Impl::lastProbePage = FieldProbeDialogPage_NodalValues;
bool ProbeDialog::Impl::isPageChosen = false;

void ProbeDialog::Impl::buildForm()
{
    if (probeInfo) {
        return;
    }
    probeInfo = new ProbeWidget(&m_dialog);
    probeInfo->setObjectName(QStringLiteral("probeInfo_widget"));
    auto* const probeAt = new QPushButton(tr("&Probe At..."), &m_dialog);
    probeAt->setObjectName(QStringLiteral("probeAt_pushButton"));
    probeAt->setFocusPolicy(Qt::StrongFocus);
    auto* const history = new QPushButton(tr("His&tory..."), &m_dialog);
    history->setObjectName(QStringLiteral("probeHistory_pushButton"));
    auto* const buttonBox = new QDialogButtonBox(QDialogButtonBox::Close | QDialogButtonBox::Help, &m_dialog);
    buttonBox->setObjectName(QStringLiteral("buttonBox"));

    auto* const actions = new QHBoxLayout;
    actions->addWidget(probeAt);
    actions->addWidget(history);
    actions->addStretch();
    auto* const layout = new QVBoxLayout(&m_dialog);
    layout->addWidget(probeInfo, 1);
    layout->addLayout(actions);
    layout->addWidget(buttonBox);

    connect(buttonBox, &QDialogButtonBox::accepted, &m_dialog, &QDialog::accept);
    connect(buttonBox, &QDialogButtonBox::accepted, &m_dialog, &ProbeDialog::dialog_dropped);
    connect(buttonBox, &QDialogButtonBox::rejected, &m_dialog, &ProbeDialog::dialog_dropped);
    connect(probeAt, &QPushButton::clicked, &m_dialog, &ProbeDialog::probeAtButtonClicked);
    connect(history, &QPushButton::clicked, &m_dialog,
            [this] { ProbeHistoryDialog::getInstance(*m_dialog.parentWidget()).launch(); });
    m_dialog.setHelpAction(
        new vantrix::dialogs::common::LaunchHelpAction(QStringLiteral("probe_values_overview.html"), &m_dialog));
    if (isPageChosen) {
        probeInfo->setCurrentPage(lastProbePage);
    }
    m_dialog.resize(m_dialog.sizeHint().expandedTo(QSize(520, 460))); // all tabs are seen
    if (!m_dialog.restoreGeometry(geometry)) {
        m_dialog.openBesidePlot();
    }
}

ProbeDialog& ProbeDialog::getInstance(QWidget& parent)
{
    return dialogInstance<ProbeDialog>([&parent] { return new ProbeDialog(parent); });
}

ProbeDialog::Relevance ProbeDialog::relevance()
{
    static auto const relevance = boost::make_shared<propertymanager::StateChangeDependentRelevance const>(
        [] {
            AppLock const lock(false);
            return dataSetAndFrameAreAvailable() && VtxUtilFrameGetPlotType() != PlotType_Sketch;
        },
        "There is no plot of data to probe. Open a file first.");
    return relevance;
}

ProbeDialog::ProbeDialog(QWidget& parent)
    : QtDialogAbstract(parent, relevance())
    , m_impl(std::make_unique<Impl>(*this))
{
    setObjectName(QStringLiteral("ProbeDialog"));
    setWindowTitle(tr("Probe"));
}

ProbeDialog::~ProbeDialog()
{
    AppLock const lock(false);
    toolbox::ArgList nobody;
    nobody.appendArbParam("CallbackFunction", 0);
    VtxUtilProbeInstallCallbackX(nobody.handle());
}

bool ProbeDialog::receiveProbes()
{
    AppLock const lock(false);
    toolbox::ArgList arguments;
    arguments.appendArbParam("CallbackFunction", reinterpret_cast<long>(&ProbeDialog::probeCallbackProxy));
    arguments.appendString("StatusLineText", "Select position to display data. Use <Ctrl> for nearest point.");
    arguments.appendArbParam("ClientData", reinterpret_cast<long>(this));
    return VtxUtilProbeInstallCallbackX(arguments.handle());
}

void ProbeDialog::launch()
{
    if (!receiveProbes()) {
        VtxUtilDialogErrMsg(toolbox::takeHostString(VtxUtilGetLastErrorString()).c_str());
        return;
    }
    m_impl->buildForm();
    QtDialogAbstract::launch();
}

void ProbeDialog::probeCallbackProxy(char wasSuccessful, char isNearestPoint, long clientData)
{
    // The host hands back the number it was given.
    auto& dialog = *reinterpret_cast<ProbeDialog*>(clientData); // NOLINT(performance-no-int-to-ptr)
    if (wasSuccessful != 1 && !dialog.isVisible()) {
        return;
    }
    dialog.probeCallback(isNearestPoint == 1, wasSuccessful == 1);
}

void ProbeDialog::probeCallback(bool isNearestPoint, bool wasSuccessful)
{
    m_impl->buildForm();
    bool const isReprobing = m_impl->probeInfo->isReprobing();
    if (isVisible()) {
        receiveProbes();
    } else if (!isReprobing) {
        launch();
    }
    m_impl->probeInfo->setCallback(&ProbeDialog::probeCallbackProxy);
    m_impl->probeInfo->probeCallback(isNearestPoint, wasSuccessful);
    if (wasSuccessful && !isReprobing) {
        ProbeHistory::getInstance().addLastProbe();
    }
}

void ProbeDialog::setCurrentPage(FieldProbeDialogPage_e page)
{
    Impl::lastProbePage = page;
    Impl::isPageChosen = true;
    if (m_impl->probeInfo) {
        m_impl->probeInfo->setCurrentPage(page);
    }
}

void ProbeDialog::probeAtButtonClicked()
{
    if (!ProbeAtDialog::relevance()->isRelevant()) {
        return;
    }
    ProbeAtDialog& dialog = ProbeAtDialog::getInstance(*parentWidget());
    if (dialog.isVisible()) {
        dialog.raise();
        dialog.activateWindow();
        dialog.setFocus();
    } else {
        dialog.launch();
    }
}

void ProbeDialog::dialog_dropped()
{
    m_impl->saveDialogState();
}

} // namespace vantrix::sdk::ui::dialogs
