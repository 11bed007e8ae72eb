#include "app/FrameMenu.h"

#include "api/VtxUtil.h"
#include "app/FrameChanges.h"
#include "app/HostAction.h"
#include "toolbox/HostString.h"

#include <QMenu>

namespace vantrix::app {

using namespace Qt::StringLiterals;

FrameMenu::FrameMenu(QMenu* menu)
    : QObject(menu)
    , m_updater(mayConcernFrames, [this] { update(); })
{
    addHostAction(*menu, tr("&Create Frame"), u"createFrameAction"_s, [] {
        return VtxUtilMouseSetMode(MouseMode_CreateFrame);
    })->setStatusTip(tr("Drag a rectangle on the paper for a new frame"));
    m_onSameData = addHostAction(*menu, tr("Create on &Same Data"), u"createFrameOnSameDataAction"_s,
                                 [] { return VtxUtilFrameCreateOnSameData(); });
    m_onSameData->setStatusTip(tr("Create a frame that shows the data of the active one"));
    m_dataSets = menu->addMenu(tr("Show Da&ta Set"));
    m_dataSets->setObjectName(u"frameDataSetMenu"_s);
    connect(m_dataSets, &QMenu::aboutToShow, this, &FrameMenu::listDataSets);
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
    m_onSameData->setEnabled(VtxUtilFrameGetDataSetNumber() > 0);
    m_dataSets->setEnabled(VtxUtilFrameGetDataSetCount() > 0);
}

void FrameMenu::listDataSets()
{
    m_dataSets->clear();
    const long shown = VtxUtilFrameGetDataSetNumber();
    for (long number = 1; number <= VtxUtilFrameGetDataSetCount(); ++number) {
        char* title = nullptr;
        VtxUtilFrameGetDataSetTitle(number, &title);
        QString name = QString::fromStdString(toolbox::takeHostString(title));
        const QString text = u"%1: %2"_s.arg(number).arg(name.replace(u'&', u"&&"_s));
        QAction* action = addHostAction(*m_dataSets, text, u"showDataSet_%1"_s.arg(number),
                                        [number] { return VtxUtilFrameAttachDataSet(number); });
        action->setCheckable(true);
        action->setChecked(number == shown);
    }
}

} // namespace vantrix::app
