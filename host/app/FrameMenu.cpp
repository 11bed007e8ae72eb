#include "app/FrameMenu.h"

#include "api/VtxUtil.h"
#include "app/HostAction.h"

#include <QMenu>

namespace vantrix::app {

using namespace Qt::StringLiterals;

namespace {

bool mayConcernFrames(const toolbox::StateChangeEventInterface& event)
{
    return event.kind() != StateChange_View && event.kind() != StateChange_Style;
}

} // namespace

FrameMenu::FrameMenu(QMenu* menu)
    : QObject(menu)
    , m_updater(mayConcernFrames, [this] { update(); })
{
    addHostAction(*menu, tr("&Create Frame"), u"createFrameAction"_s, [] {
        return VtxUtilMouseSetMode(MouseMode_CreateFrame);
    })->setStatusTip(tr("Drag a rectangle on the paper for a new frame"));
    m_pop = addHostAction(*menu, tr("&Pop Frame"), u"popFrameAction"_s,
                          [] { return VtxUtilFramePop(VtxUtilFrameGetUniqueID()); });
    m_pop->setStatusTip(tr("Put the active frame above all others"));
    m_push = addHostAction(*menu, tr("P&ush Frame"), u"pushFrameAction"_s,
                           [] { return VtxUtilFramePush(VtxUtilFrameGetUniqueID()); });
    m_push->setStatusTip(tr("Put the active frame below all others"));
    m_delete = addHostAction(*menu, tr("&Delete Frame"), u"deleteFrameAction"_s,
                             [] { return VtxUtilFrameDelete(VtxUtilFrameGetUniqueID()); });
    m_delete->setStatusTip(tr("Delete the active frame"));
    menu->addSeparator();
    update();
}

void FrameMenu::update()
{
    const bool hasSeveral = VtxUtilFrameGetCount() > 1;
    m_pop->setEnabled(hasSeveral);
    m_push->setEnabled(hasSeveral);
    m_delete->setEnabled(VtxUtilFrameGetCount() > 0);
}

} // namespace vantrix::app
