#include "ui/LoadVariablesDialog.h"

#include "api/VtxUtil.h"
#include "sdk/AppLock.h"
#include "sdk/VtxUtilActionReporter.h"
#include "sdk/WaitState.h"
#include "toolbox/HostString.h"
#include "toolbox/Set.h"
#include "ui/LaunchHelpAction.h"

#include <QDialogButtonBox>
#include <QLabel>
#include <QListWidget>
#include <QPointer>
#include <QVBoxLayout>

namespace vantrix::dialogs::common {

namespace {

constexpr int variableRole = Qt::UserRole;

} // namespace

LoadVariablesDialog& LoadVariablesDialog::getInstance(QWidget& parent, long zone)
{
    static QPointer<LoadVariablesDialog> instance;
    if (!instance) {
        instance = new LoadVariablesDialog(parent);
    }
    instance->m_zone = zone;
    return *instance;
}

LoadVariablesDialog::LoadVariablesDialog(QWidget& parent)
    : QtDialogAbstract(parent, nullptr)
    , m_variables(new QListWidget(this))
{
    setObjectName(QStringLiteral("LoadVariables"));
    setWindowTitle(tr("Load Variables"));
    setModal(true);
    m_variables->setObjectName(QStringLiteral("loadVariables_MList"));
    m_variables->setSelectionMode(QAbstractItemView::ExtendedSelection);
    auto* const label = new QLabel(tr("&Variables that are not in memory:"), this);
    label->setBuddy(m_variables);
    auto* const buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->setObjectName(QStringLiteral("buttonBox"));
    auto* const layout = new QVBoxLayout(this);
    layout->addWidget(label);
    layout->addWidget(m_variables);
    layout->addWidget(buttons);
    connect(buttons, &QDialogButtonBox::accepted, this, &LoadVariablesDialog::accept);
    setHelpAction(new LaunchHelpAction(QStringLiteral("load_variables.html"), this));
}

void LoadVariablesDialog::fill()
{
    m_variables->clear();
    long const count = VtxUtilDataSetGetNumVars();
    for (long variable = 1; variable <= count; ++variable) {
        if (!VtxUtilDataValueIsLoaded(m_zone, variable)) {
            char* name = nullptr;
            VtxUtilVarGetName(variable, &name);
            auto* const item = new QListWidgetItem(
                QStringLiteral("%1: %2").arg(variable).arg(QString::fromStdString(toolbox::takeHostString(name))),
                m_variables);
            item->setData(variableRole, static_cast<qlonglong>(variable));
        }
    }
    m_variables->selectAll();
}

void LoadVariablesDialog::launch()
{
    fill();
    exec();
}

void LoadVariablesDialog::accept()
{
    toolbox::Set chosen;
    for (QListWidgetItem const* const item : m_variables->selectedItems()) {
        chosen.addMember(static_cast<long>(item->data(variableRole).toLongLong()));
    }
    if (chosen.isEmpty()) {
        VtxUtilDialogMessageBox("Choose at least one variable to load.", MessageBox_Information);
        return;
    }
    bool loaded = false;
    {
        sdk::AppLock const lock;
        sdk::WaitState const wait;
        VtxUtilUndoSetStepName("Load Variables");
        loaded = VtxUtilDataValueLoad(m_zone, chosen.handle());
    }
    if (!loaded) {
        sdk::VtxUtilActionReporter().reportLastFailure();
        return;
    }
    QtDialogAbstract::accept();
}

} // namespace vantrix::dialogs::common
