#include "app/ToolTipFilter.h"

#include "app/InterfaceSetting.h"

#include <QEvent>

namespace vantrix::app {

bool ToolTipFilter::eventFilter(QObject* watched, QEvent* event)
{
    const bool isUnwanted = event->type() == QEvent::ToolTip && !isInterfaceFlagSet("ShowToolTips");
    return isUnwanted || QObject::eventFilter(watched, event);
}

} // namespace vantrix::app
