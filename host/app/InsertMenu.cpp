#include "app/InsertMenu.h"

#include "api/VtxUtil.h"
#include "app/FrameChanges.h"
#include "app/HostAction.h"
#include "view/WorkArea.h"

#include <QMenu>

namespace vantrix::app {

using namespace Qt::StringLiterals;

namespace {

struct Entry
{
    const char* text;
    const char* name;
    const char* hint;
    GeomType_e type;
    bool hasArrowhead = false;
};

constexpr Entry entries[] = {
    {QT_TRANSLATE_NOOP("vantrix::app::InsertMenu", "&Line"), "insertLineAction",
     QT_TRANSLATE_NOOP("vantrix::app::InsertMenu", "Drag a line in a frame; with Shift in steps of 45 degrees"),
     GeomType_Line},
    {QT_TRANSLATE_NOOP("vantrix::app::InsertMenu", "&Arrow"), "insertArrowAction",
     QT_TRANSLATE_NOOP("vantrix::app::InsertMenu", "Drag an arrow in a frame; with Shift in steps of 45 degrees"),
     GeomType_Line, true},
    {QT_TRANSLATE_NOOP("vantrix::app::InsertMenu", "&Rectangle"), "insertRectangleAction",
     QT_TRANSLATE_NOOP("vantrix::app::InsertMenu", "Drag a rectangle in a frame; with Shift a square"),
     GeomType_Rectangle},
    {QT_TRANSLATE_NOOP("vantrix::app::InsertMenu", "&Ellipse"), "insertEllipseAction",
     QT_TRANSLATE_NOOP("vantrix::app::InsertMenu", "Drag an ellipse in a frame; with Shift a circle"),
     GeomType_Ellipse},
};

} // namespace

InsertMenu::InsertMenu(QMenu* menu, view::WorkArea& workArea)
    : QObject(menu)
    , m_updater(mayConcernFrames, [this] { update(); })
{
    QAction* text =
        addHostAction(*menu, tr("&Text..."), u"insertTextAction"_s, [] { return VtxUtilMouseSetMode(MouseMode_Text); });
    text->setStatusTip(tr("Click in a frame to put a text there"));
    m_actions << text;
    for (const Entry& entry : entries) {
        const auto begin = [&entry, &workArea] {
            const bool isReady = VtxUtilMouseSetMode(MouseMode_Selector);
            workArea.beginInsert(entry.type, entry.hasArrowhead);
            return isReady;
        };
        QAction* action = addHostAction(*menu, tr(entry.text), QString::fromLatin1(entry.name), begin);
        action->setStatusTip(tr(entry.hint));
        m_actions << action;
    }
    update();
}

void InsertMenu::update()
{
    for (QAction* action : m_actions) {
        action->setEnabled(VtxUtilFrameGetCount() > 0);
    }
}

} // namespace vantrix::app
