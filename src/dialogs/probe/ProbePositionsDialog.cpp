#include "dialogs/probe/ProbePositionsDialog.h"

#include "api/VtxUtil.h"
#include "dialogs/DialogInstance.h"
#include "dialogs/probe/ProbeDialog.h"
#include "dialogs/probe/ProbeHistory.h"
#include "dialogs/probe/ProbeHistoryDialog.h"
#include "propertybindings/NumberLocale.h"
#include "sdk/AppLock.h"
#include "sdk/WaitState.h"
#include "toolbox/ArgList.h"
#include "toolbox/HostString.h"
#include "ui/LaunchHelpAction.h"
#include "ui/relevance/FieldPlotTypeDependentRelevance.h"

#include <QCheckBox>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QVBoxLayout>

namespace vantrix::sdk::ui::dialogs {

class ProbePositionsDialog::Impl
{
public:
    QPlainTextEdit* positions = nullptr;
    QCheckBox* isInVolume = nullptr;
};

namespace {

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
        if (trimmed.contains(commaInNumber) && trimmed.contains(otherSeparator)) {
            problem = tr("Line %1, \"%2\", has a comma within a number: write a decimal point, or part all numbers by "
                         "commas alone.")
                          .arg(number)
                          .arg(trimmed);
            return {};
        }
        QStringList const words = line.split(separators, Qt::SkipEmptyParts);
        Position position{0.0, 0.0, 0.0};
        bool isGood = words.size() == dimension;
        for (int i = 0; i < words.size() && isGood; ++i) {
            position[static_cast<std::size_t>(i)] = propertybindings::numberLocale().toDouble(words[i], &isGood);
        }
        if (!isGood) {
            QString const wrong = dimension == 3
                                      ? tr("Line %1, \"%2\", is no position: write X, Y and Z, parted by blanks.")
                                      : tr("Line %1, \"%2\", is no position: write X and Y, parted by blanks.");
            problem = wrong.arg(number).arg(trimmed);
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
    : QtDialogAbstract(parent, boost::make_shared<propertymanager::FieldPlotTypeDependentRelevance const>())
    , m_impl(std::make_unique<Impl>())
{
    setObjectName(QStringLiteral("ProbePositions"));
    setWindowTitle(tr("Probe Several Positions"));
    m_impl->positions = new QPlainTextEdit(this);
    m_impl->positions->setObjectName(QStringLiteral("probePositions_plainTextEdit"));
    m_impl->positions->setTabChangesFocus(true);
    m_impl->positions->setPlaceholderText(QStringLiteral("0.5 1.25 0\n0.75 1.25 0"));
    auto* const label = new QLabel(tr("&Positions, one a line: X Y, in a 3D plot X Y Z"), this);
    label->setBuddy(m_impl->positions);
    m_impl->isInVolume = new QCheckBox(tr("Probe within &volume"), this);
    m_impl->isInVolume->setObjectName(QStringLiteral("probePositions_volume_checkBox"));
    auto* const buttonBox = new QDialogButtonBox(QDialogButtonBox::Apply | QDialogButtonBox::Close, this);
    buttonBox->setObjectName(QStringLiteral("buttonBox"));
    buttonBox->button(QDialogButtonBox::Apply)->setText(tr("&Do Probe"));
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(m_impl->positions, 1);
    layout->addWidget(m_impl->isInVolume);
    layout->addWidget(buttonBox);
    resize(380, 320);
    openBesidePlot();
    connect(buttonBox->button(QDialogButtonBox::Apply), &QPushButton::clicked, this, &ProbePositionsDialog::probe);
    setHelpAction(new vantrix::dialogs::common::LaunchHelpAction(QStringLiteral("probe_history.html"), this));
}

ProbePositionsDialog::~ProbePositionsDialog() = default;

void ProbePositionsDialog::probe()
{
    QString problem;
    int const dimension = VtxUtilFrameGetPlotType() == PlotType_Cartesian3D ? 3 : 2;
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
            Outcome const outcome = probeAt(position, m_impl->isInVolume->isChecked());
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
