#pragma once

#include "sdk/OnIdleAfterStateChangeActionPerformer.h"

#include <QObject>

#include <string>

class QAction;

namespace vantrix::app {

/* Edit > Undo and Redo, which name the step that they would take. */
class HistoryActions : public QObject
{
    Q_OBJECT

public:
    explicit HistoryActions(QObject* parent);

    QAction* undo() const { return m_undo; }
    QAction* redo() const { return m_redo; }

private:
    void tell(bool isDone, const QString& text, const std::string& step);
    void update();

    QAction* m_undo;
    QAction* m_redo;
    sdk::OnIdleAfterStateChangeActionPerformer m_updater;
};

} // namespace vantrix::app
