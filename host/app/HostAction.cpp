#include "app/HostAction.h"

#include "api/VtxUtil.h"
#include "sdk/AppLock.h"
#include "sdk/VtxUtilActionReporter.h"

#include <QMenu>

namespace vantrix::app {

QAction* addHostAction(QMenu& menu, const QString& text, const QString& objectName, std::function<bool()> call)
{
    QAction* action = menu.addAction(text);
    action->setObjectName(objectName);
    QObject::connect(action, &QAction::triggered, &menu, [call = std::move(call)] {
        bool isDone = false;
        {
            const sdk::AppLock lock;
            isDone = call();
        }
        if (!isDone) {
            sdk::VtxUtilActionReporter().reportLastFailure();
        }
    });
    return action;
}

} // namespace vantrix::app
