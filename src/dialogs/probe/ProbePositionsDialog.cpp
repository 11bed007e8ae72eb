#include "dialogs/probe/ProbePositionsDialog.h"

#include "api/VtxUtil.h"
#include "dialogs/DialogInstance.h"
#include "dialogs/FormBindings.h"
#include "dialogs/probe/ProbeDialog.h"
#include "dialogs/probe/ProbeHistory.h"
#include "dialogs/probe/ProbeHistoryDialog.h"
#include "propertybindings/NumberLocale.h"
#include "propertymanager/managers/probe/ProbeAtDialogManager.h"
#include "sdk/AppLock.h"
#include "sdk/OnIdleAfterStateChangeActionPerformer.h"
#include "sdk/WaitState.h"
#include "toolbox/ArgList.h"
#include "toolbox/HostString.h"
#include "ui/LaunchHelpAction.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QVBoxLayout>

namespace vantrix::sdk::ui::dialogs {

using propertymanager::LineProbeAxis_e;
using propertymanager::ProbeAtDialogManager;

class ProbePositionsDialog::Impl
{
public:
    QLabel* axisLabel = nullptr;
    QComboBox* axis = nullptr; ///< of a line plot; each entry has an axisId()
    QLabel* label = nullptr;
    QPlainTextEdit* positions = nullptr;
    QCheckBox* isInVolume = nullptr;
    FormBindings bindings;
    std::unique_ptr<OnIdleAfterStateChangeActionPerformer> updateAfterStateChange;
};

namespace {

constexpr int AxesOfAKind = 5;

int axisId(LineProbeAxis_e axis, int number)
{
    return axis * AxesOfAKind + number - 1;
}

/// The axes of the present line plot, in the order of the radio buttons of Probe At.
void fillAxes(QComboBox& list, bool isPolar)
{
    list.clear();
    if (isPolar) {
        list.addItem(ProbePositionsDialog::tr("Theta"), axisId(propertymanager::LineProbeAxis_Theta, 1));
        list.addItem(ProbePositionsDialog::tr("R"), axisId(propertymanager::LineProbeAxis_R, 1));
        return;
    }
    for (LineProbeAxis_e const axis : {propertymanager::LineProbeAxis_X, propertymanager::LineProbeAxis_Y}) {
        for (int number = 1; number <= AxesOfAKind; ++number) {
            QString const name =
                axis == propertymanager::LineProbeAxis_X ? QStringLiteral("X%1") : QStringLiteral("Y%1");
            list.addItem(name.arg(number), axisId(axis, number));
        }
    }
}

enum class Outcome
{
    Found,
    Outside,
    Failed
};

Outcome probeAt(ProbePositionsDialog::Position const& at, bool isInVolume)
{
    long isInside = -1;
    toolbox::ArgList arguments;
    arguments.appendDouble("X", at[0]);
    arguments.appendDouble("Y", at[1]);
    arguments.appendDouble("Z", at[2]);
    arguments.appendArbParam("SearchVolume", isInVolume);
    arguments.appendArbParamPtr("PROBEATFIELDPOSITIONRESULT", &isInside);
    if (VtxUtilProbeAtFieldPositionX(arguments.handle())) {
        return Outcome::Found;
    }
    return isInside == 0 ? Outcome::Outside : Outcome::Failed;
}

Outcome probeOnAxis(int axisId, double position)
{
    long isInside = -1;
    toolbox::ArgList arguments;
    arguments.appendDouble("Position", position);
    arguments.appendArbParam("Axis", "XYTR"[axisId / AxesOfAKind]);
    arguments.appendArbParam("AxisNum", axisId % AxesOfAKind + 1);
    arguments.appendArbParamPtr("PROBEATLINEPOSITIONRESULT", &isInside);
    if (VtxUtilProbeAtLinePositionX(arguments.handle())) {
        return Outcome::Found;
    }
    return isInside == 0 ? Outcome::Outside : Outcome::Failed;
}

/// What is wrong with a line that has not as many numbers as it should.
QString wrongLineText(int dimension)
{
    switch (dimension) {
    case 1:
        return ProbePositionsDialog::tr("Line %1, \"%2\", is no position on an axis: write one number.");
    case 2:
        return ProbePositionsDialog::tr("Line %1, \"%2\", is no position: write X and Y, parted by blanks.");
    default:
        return ProbePositionsDialog::tr("Line %1, \"%2\", is no position: write X, Y and Z, parted by blanks.");
    }
}

QString wantedText(int dimension)
{
    switch (dimension) {
    case 1:
        return ProbePositionsDialog::tr("&Positions on the axis, one a line");
    case 2:
        return ProbePositionsDialog::tr("&Positions, one a line: X Y");
    default:
        return ProbePositionsDialog::tr("&Positions, one a line: X Y Z");
    }
}

QString exampleText(int dimension)
{
    switch (dimension) {
    case 1:
        return QStringLiteral("0.5\n0.75");
    case 2:
        return QStringLiteral("0.5 1.25\n0.75 1.25");
    default:
        return QStringLiteral("0.5 1.25 0\n0.75 1.25 0");
    }
}

/// How many numbers a position of the present plot has.
int dimensionOfPlot()
{
    if (ProbeAtDialogManager::isLinePlot()) {
        return 1;
    }
    return VtxUtilFrameGetPlotType() == PlotType_Cartesian3D ? 3 : 2;
}

} // namespace

std::vector<ProbePositionsDialog::Position> ProbePositionsDialog::parse(QString const& text, int dimension,
                                                                        QString& problem)
{
    static QRegularExpression const separators(QStringLiteral("[\\s,;]+"));
    static QRegularExpression const commaInNumber(QStringLiteral("\\d,\\d"));
    static QRegularExpression const otherSeparator(QStringLiteral("[\\s;]"));
    std::vector<Position> positions;
    int number = 0;
    for (QString const& line : text.split(u'\n')) {
        ++number;
        QString const trimmed = line.trimmed();
        if (trimmed.isEmpty() || trimmed.startsWith(u'#')) {
            continue;
        }
        if (trimmed.contains(commaInNumber) && (dimension == 1 || trimmed.contains(otherSeparator))) {
            QString const wrong =
                dimension == 1
                    ? tr("Line %1, \"%2\", has a comma within a number: write a decimal point, and one number a line.")
                    : tr("Line %1, \"%2\", has a comma within a number: write a decimal point, or part all numbers by "
                         "commas alone.");
            problem = wrong.arg(number).arg(trimmed);
            return {};
        }
        QStringList const words = line.split(separators, Qt::SkipEmptyParts);
        Position position{0.0, 0.0, 0.0};
        bool isGood = words.size() == dimension;
        for (int i = 0; i < words.size() && isGood; ++i) {
            position[static_cast<std::size_t>(i)] = propertybindings::numberLocale().toDouble(words[i], &isGood);
        }
        if (!isGood) {
            problem = wrongLineText(dimension).arg(number).arg(trimmed);
            return {};
        }
        positions.push_back(position);
    }
    if (positions.empty()) {
        problem = tr("There is no position to probe. Write one a line.");
    }
    return positions;
}

ProbePositionsDialog& ProbePositionsDialog::getInstance(QWidget& parent)
{
    return dialogInstance<ProbePositionsDialog>([&parent] { return new ProbePositionsDialog(parent); });
}

ProbePositionsDialog::ProbePositionsDialog(QWidget& parent)
    : QtDialogAbstract(parent, ProbeAtDialogManager::relevance())
    , m_impl(std::make_unique<Impl>())
{
    setObjectName(QStringLiteral("ProbePositions"));
    setWindowTitle(tr("Probe Several Positions"));
    createForm();
    m_impl->bindings.apply(ProbeAtDialogManager::threeDRelevance(), {m_impl->isInVolume});
    m_impl->updateAfterStateChange = std::make_unique<OnIdleAfterStateChangeActionPerformer>(
        &ProbeAtDialogManager::stateChangeRequiresUpdate, [this] { followPlot(); });
    followPlot();
    resize(380, 320);
    openBesidePlot();
    setHelpAction(new vantrix::dialogs::common::LaunchHelpAction(QStringLiteral("probe_history.html"), this));
}

ProbePositionsDialog::~ProbePositionsDialog() = default;

void ProbePositionsDialog::createForm()
{
    m_impl->axis = new QComboBox(this);
    m_impl->axis->setObjectName(QStringLiteral("probePositions_axis_comboBox"));
    m_impl->axisLabel = new QLabel(tr("&Axis:"), this);
    m_impl->axisLabel->setBuddy(m_impl->axis);
    m_impl->positions = new QPlainTextEdit(this);
    m_impl->positions->setObjectName(QStringLiteral("probePositions_plainTextEdit"));
    m_impl->positions->setTabChangesFocus(true);
    m_impl->label = new QLabel(this);
    m_impl->label->setObjectName(QStringLiteral("probePositions_label"));
    m_impl->label->setBuddy(m_impl->positions);
    m_impl->isInVolume = new QCheckBox(tr("Probe within &volume"), this);
    m_impl->isInVolume->setObjectName(QStringLiteral("probePositions_volume_checkBox"));
    auto* const buttonBox = new QDialogButtonBox(QDialogButtonBox::Apply | QDialogButtonBox::Close, this);
    buttonBox->setObjectName(QStringLiteral("buttonBox"));
    buttonBox->button(QDialogButtonBox::Apply)->setText(tr("&Do Probe"));
    connect(buttonBox->button(QDialogButtonBox::Apply), &QPushButton::clicked, this, &ProbePositionsDialog::probe);
    auto* const axisRow = new QHBoxLayout;
    axisRow->addWidget(m_impl->axisLabel);
    axisRow->addWidget(m_impl->axis);
    axisRow->addStretch();
    auto* const layout = new QVBoxLayout(this);
    layout->addLayout(axisRow);
    layout->addWidget(m_impl->label);
    layout->addWidget(m_impl->positions, 1);
    layout->addWidget(m_impl->isInVolume);
    layout->addWidget(buttonBox);
}

void ProbePositionsDialog::launch()
{
    followPlot();
    QtDialogAbstract::launch();
}

void ProbePositionsDialog::followPlot()
{
    bool const isLine = ProbeAtDialogManager::isLinePlot();
    bool const isPolar = ProbeAtDialogManager::isPolarPlot();
    if (isLine && m_impl->axis->findData(axisId(
                      isPolar ? propertymanager::LineProbeAxis_Theta : propertymanager::LineProbeAxis_X, 1)) < 0) {
        fillAxes(*m_impl->axis, isPolar);
    }
    m_impl->axisLabel->setVisible(isLine);
    m_impl->axis->setVisible(isLine);
    m_impl->isInVolume->setVisible(!isLine);
    m_impl->label->setText(wantedText(dimensionOfPlot()));
    m_impl->positions->setPlaceholderText(exampleText(dimensionOfPlot()));
}

void ProbePositionsDialog::setLineAxis(LineProbeAxis_e axis, int number)
{
    followPlot();
    int const row = m_impl->axis->findData(axisId(axis, number));
    if (row >= 0) {
        m_impl->axis->setCurrentIndex(row);
    }
}

void ProbePositionsDialog::probe()
{
    QString problem;
    int const dimension = dimensionOfPlot();
    std::vector<Position> const positions = parse(m_impl->positions->toPlainText(), dimension, problem);
    if (positions.empty()) {
        VtxUtilDialogErrMsg(problem.toUtf8().constData());
        return;
    }
    if (!VtxUtilProbeIsCallbackInstalled()) {
        ProbeDialog::getInstance(*parentWidget()).receiveProbes();
    }
    int outside = 0;
    {
        AppLock const lock(false);
        WaitState const wait;
        for (Position const& position : positions) {
            Outcome const outcome = dimension == 1 ? probeOnAxis(m_impl->axis->currentData().toInt(), position[0])
                                                   : probeAt(position, m_impl->isInVolume->isChecked());
            if (outcome == Outcome::Failed) {
                problem = QString::fromStdString(toolbox::takeHostString(VtxUtilGetLastErrorString()));
                break;
            }
            outside += outcome == Outcome::Outside;
        }
    }
    if (problem.isEmpty() && outside > 0) {
        problem = tr("%1 of %2 positions are outside of the data.").arg(outside).arg(positions.size());
    }
    if (!problem.isEmpty()) {
        VtxUtilDialogErrMsg(problem.toUtf8().constData());
    }
    ProbeHistoryDialog::getInstance(*parentWidget()).launch();
}

} // namespace vantrix::sdk::ui::dialogs
