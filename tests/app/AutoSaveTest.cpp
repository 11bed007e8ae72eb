#include "app/AutoSave.h"

#include "api/VtxUtil.h"
#include "kernel/Layout.h"

#include "AppTestSupport.h"

using namespace vantrix;
using app::AutoSave;

namespace vantrix::test {
namespace {

using namespace Qt::StringLiterals;

class AutoSaveTest : public AppTest
{
protected:
    static kernel::Layout& layout() { return kernel::Kernel::instance().layout(); }

    static void change()
    {
        const sdk::AppLock lock;
        ASSERT_TRUE(VtxUtilFrameCreate(1.0, 1.0, 2.0, 2.0));
    }

    QStringList files() const { return QDir(store).entryList(QDir::Files); }

    const QString store = path("autosave");
};

} // namespace

TEST_F(AutoSaveTest, KeepsACopyOnlyWhileThereIsSomethingToLose)
{
    {
        AutoSave session(layout(), store, nullptr);
        session.save();
        EXPECT_TRUE(files().filter(u".vxlay"_s).isEmpty());
        change();
        session.save();
        EXPECT_EQ(files().filter(u".vxlay"_s).size(), 1);
        layout().save(path("saved.vxlay").toStdString());
        session.save();
        EXPECT_TRUE(files().filter(u".vxlay"_s).isEmpty());
        change();
        session.save();
        EXPECT_TRUE(session.leftBehind().isEmpty()) << "its own copy is no other session's";
    }
    EXPECT_TRUE(files().isEmpty()) << "a session that ends leaves nothing";
}

TEST_F(AutoSaveTest, OffersWhatACrashedSessionLeftButNotThatOfARunningOne)
{
    layout().save(path("wing.vxlay").toStdString());
    change();
    const std::string changed = layout().text();
    AutoSave running(layout(), store, nullptr);
    running.save();
    // What a crash leaves: the copy and its name, and a lock whose process is gone.
    const QString copy = QDir(store).filePath(files().filter(u".vxlay"_s).first());
    ASSERT_TRUE(QFile::copy(copy, store + u"/crashed.vxlay"_s));
    ASSERT_TRUE(QFile::copy(copy.chopped(6) + u".name"_s, store + u"/crashed.name"_s));
    write("autosave/crashed.lock", "999999999\nvxplot\n" + QSysInfo::machineHostName().toUtf8() + '\n');

    layout().clear();
    AutoSave next(layout(), store, nullptr);
    const QList<AutoSave::Copy> left = next.leftBehind();
    ASSERT_EQ(left.size(), 1);
    EXPECT_EQ(left.first().original, path("wing.vxlay"));
    layout().recover(left.first().file.toStdString(), left.first().original.toStdString());
    EXPECT_EQ(layout().text(), changed);
    EXPECT_TRUE(layout().isModified());
    EXPECT_EQ(layout().fileName(), path("wing.vxlay").toStdString());
    AutoSave::remove(left.first());
    EXPECT_TRUE(next.leftBehind().isEmpty());
}

} // namespace vantrix::test
