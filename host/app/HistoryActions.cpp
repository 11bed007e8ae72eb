#include "app/HistoryActions.h"

#include "api/VtxUtilState.h"
#include "kernel/Kernel.h"
#include "kernel/UndoStack.h"

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
        VtxUtilUndo();
        update();
    });
    connect(m_redo, &QAction::triggered, this, [this] {
        VtxUtilRedo();
        update();
    });
    update();
}

void HistoryActions::update()
{
    const kernel::UndoStack& history = kernel::Kernel::instance().undoStack();
    name(*m_undo, history.canUndo(), tr("&Undo"), history.canUndo() ? history.undoName() : std::string());
    name(*m_redo, history.canRedo(), tr("&Redo"), history.canRedo() ? history.redoName() : std::string());
}

} // namespace vantrix::app
