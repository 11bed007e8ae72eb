#include "app/HistoryActions.h"

#include "api/VtxUtilDialog.h"
#include "api/VtxUtilState.h"
#include "kernel/Kernel.h"
#include "kernel/UndoStack.h"
#include "toolbox/HostString.h"

#include <QAction>
#include <QIcon>

namespace vantrix::app {

using namespace Qt::StringLiterals;

namespace {

void name(QAction& action, bool isPossible, const QString& verb, const std::string& step)
{
    const QString stepName = QString::fromStdString(step).replace(u'&', u"&&"_s);
    action.setText(stepName.isEmpty() ? verb : verb + u' ' + stepName);
    action.setEnabled(isPossible);
}

} // namespace

HistoryActions::HistoryActions(QObject* parent)
    : QObject(parent)
    , m_undo(new QAction(QIcon(u":/vxplot/icons/undo.svg"_s), {}, this))
    , m_redo(new QAction(QIcon(u":/vxplot/icons/redo.svg"_s), {}, this))
    , m_updater([](const toolbox::StateChangeEventInterface&) { return true; }, [this] { update(); })
{
    m_undo->setObjectName(u"undoAction"_s);
    m_redo->setObjectName(u"redoAction"_s);
    m_undo->setShortcuts(QKeySequence::Undo);
    m_redo->setShortcuts(QKeySequence::Redo);
    connect(m_undo, &QAction::triggered, this, [this] {
        const std::string step = toolbox::takeHostString(VtxUtilUndoGetStepName());
        tell(VtxUtilUndo(), tr("Undone: %1"), step);
    });
    connect(m_redo, &QAction::triggered, this, [this] {
        const std::string step = toolbox::takeHostString(VtxUtilRedoGetStepName());
        tell(VtxUtilRedo(), tr("Done again: %1"), step);
    });
    update();
}

void HistoryActions::tell(bool isDone, const QString& text, const std::string& step)
{
    // Also what the status line told of the step itself would be wrong now.
    if (isDone) {
        VtxUtilStatusMessage(step.empty() ? "" : text.arg(QString::fromStdString(step)).toUtf8().constData());
    }
    update();
}

void HistoryActions::update()
{
    const kernel::UndoStack& history = kernel::Kernel::instance().undoStack();
    name(*m_undo, history.canUndo(), tr("&Undo"), history.canUndo() ? history.undoName() : std::string());
    name(*m_redo, history.canRedo(), tr("&Redo"), history.canRedo() ? history.redoName() : std::string());
}

} // namespace vantrix::app
