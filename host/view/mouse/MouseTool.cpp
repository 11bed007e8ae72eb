#include "view/mouse/MouseTool.h"

#include "view/WorkArea.h"
#include "view/mouse/MouseContext.h"

namespace vantrix::view {

void MouseTool::doubleClick(const QMouseEvent& /*event*/)
{
    m_context.widget.fitPlot();
}

} // namespace vantrix::view
