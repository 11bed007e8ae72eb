#include "app/RecentFiles.h"

#include "AppTestSupport.h"

namespace vantrix::test {
namespace {

using namespace Qt::StringLiterals;

class RecentFilesTest : public AppTest
{
protected:
    /* The entries, without the action that clears them. */
    static QStringList entries(const app::RecentFiles& menu)
    {
        QStringList texts;
        for (const QAction* action : menu.actions().mid(0, std::max<qsizetype>(0, menu.actions().size() - 2))) {
            texts << action->text();
        }
        return texts;
    }
};

TEST_F(RecentFilesTest, EntriesAreKeptBetweenRunsNewestFirstAndOnce)
{
    {
        app::RecentFiles menu(nullptr);
        EXPECT_FALSE(menu.menuAction()->isEnabled());
        menu.add({u"/data/one.vts"_s});
        menu.add({u"/data/grid.xyz"_s, u"/data/flow.q"_s});
        menu.add({u"/data/one.vts"_s});
    }
    app::RecentFiles menu(nullptr);
    EXPECT_EQ(entries(menu), QStringList({u"&1 one.vts  (/data)"_s, u"&2 grid.xyz + flow.q  (/data)"_s}));
    EXPECT_TRUE(menu.menuAction()->isEnabled());

    QStringList chosen;
    QObject::connect(&menu, &app::RecentFiles::chosen, [&chosen](const QStringList& files) { chosen = files; });
    menu.actions()[1]->trigger();
    EXPECT_EQ(chosen, QStringList({u"/data/grid.xyz"_s, u"/data/flow.q"_s}));

    menu.actions().last()->trigger();
    EXPECT_TRUE(entries(app::RecentFiles(nullptr)).isEmpty());
}

TEST_F(RecentFilesTest, TheListStaysShort)
{
    app::RecentFiles menu(nullptr);
    for (int number = 0; number < 30; ++number) {
        menu.add({u"/data/%1.vts"_s.arg(number)});
    }
    EXPECT_EQ(entries(menu).size(), 10);
    EXPECT_EQ(entries(menu).first(), u"&1 29.vts  (/data)"_s);
}

} // namespace
} // namespace vantrix::test
