#include "app/PageMenu.h"

#include "api/VtxUtil.h"
#include "app/HostAction.h"

#include <QActionGroup>
#include <QMenu>

namespace vantrix::app {

using namespace Qt::StringLiterals;

namespace {

bool mayConcernPages(const toolbox::StateChangeEventInterface& event)
{
    return event.kind() != StateChange_View && event.kind() != StateChange_Style;
}

} // namespace

PageMenu::PageMenu(QMenu* menu)
    : QObject(menu)
    , m_menu(menu)
    , m_delete(nullptr)
    , m_next(nullptr)
    , m_previous(nullptr)
    , m_pages(new QActionGroup(this))
    , m_updater(mayConcernPages, [this] { update(); })
{
    addHostAction(*menu, tr("&New Page"), u"newPageAction"_s, [] { return VtxUtilPageCreate(); });
    m_delete = addHostAction(*menu, tr("&Delete Page"), u"deletePageAction"_s,
                             [] { return VtxUtilPageDelete(VtxUtilPageGetActive()); });
    menu->addSeparator();
    m_next = addHostAction(*menu, tr("Ne&xt Page"), u"nextPageAction"_s,
                           [] { return VtxUtilPageActivate(VtxUtilPageGetActive() + 1); });
    m_next->setShortcut(Qt::CTRL | Qt::Key_PageDown);
    m_previous = addHostAction(*menu, tr("&Previous Page"), u"previousPageAction"_s,
                               [] { return VtxUtilPageActivate(VtxUtilPageGetActive() - 1); });
    m_previous->setShortcut(Qt::CTRL | Qt::Key_PageUp);
    menu->addSeparator();
    update();
}

void PageMenu::addPage(long position)
{
    QAction* page = addHostAction(*m_menu, tr("Page %1").arg(position), u"page_%1"_s.arg(position),
                                  [position] { return VtxUtilPageActivate(position); });
    page->setCheckable(true);
    m_pages->addAction(page);
}

void PageMenu::update()
{
    const long count = VtxUtilPageGetCount();
    const long active = VtxUtilPageGetActive();
    while (m_pages->actions().size() > count) {
        delete m_pages->actions().last();
    }
    while (m_pages->actions().size() < count) {
        addPage(static_cast<long>(m_pages->actions().size()) + 1);
    }
    if (active > 0) {
        m_pages->actions().at(active - 1)->setChecked(true);
    }
    m_delete->setEnabled(count > 1);
    m_next->setEnabled(active < count);
    m_previous->setEnabled(active > 1);
}

} // namespace vantrix::app
