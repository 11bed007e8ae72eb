#pragma once

#include <QString>

#include <functional>

class QAction;
class QMenu;

namespace vantrix::app {

/* Adds a menu entry that calls the host under the application lock, as one step. When the call answers false, the
 * host's text of the failure is shown. */
QAction* addHostAction(QMenu& menu, const QString& text, const QString& objectName, std::function<bool()> call);

} // namespace vantrix::app
