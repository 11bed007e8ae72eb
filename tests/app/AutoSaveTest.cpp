#include "app/AutoSave.h"

#include "api/VtxUtil.h"
#include "app/LayoutRecovery.h"
#include "kernel/Layout.h"

#include "AppTestSupport.h"

#include <QAbstractButton>
#include <QMessageBox>

#include <functional>

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

    /* What a crash leaves of a session: its copy and its name, and a lock whose process is gone. */
    void leaveBehind() const
    {
        const QString copy = QDir(store).filePath(files().filter(u".vxlay"_s).first());
        ASSERT_TRUE(QFile::copy(copy, store + u"/crashed.vxlay"_s));
        ASSERT_TRUE(QFile::copy(copy.chopped(6) + u".name"_s, store + u"/crashed.name"_s));
        write("autosave/crashed.lock", "999999999\nvxplot\n" + QSysInfo::machineHostName().toUtf8() + '\n');
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
    leaveBehind();

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

TEST_F(AutoSaveTest, WhatWasLeftBehindGoesOnlyWhenItIsDiscardedOrKeptAnew)
{
    change();
    const std::string changed = layout().text();
    {
        AutoSave crashed(layout(), store, nullptr);
        crashed.save();
        leaveBehind();
    }
    layout().clear();
    AutoSave session(layout(), store, nullptr);
    QWidget window;
    const auto offerAnd = [&](const std::function<void(QMessageBox&)>& answer) {
        std::string text;
        QTimer::singleShot(0, &window, [&] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            text = (box->text() + box->informativeText()).toStdString();
            answer(*box);
        });
        app::LayoutRecovery(layout(), session, window).offer();
        return text;
    };
    const auto press = [](const char16_t* title) {
        return [title](QMessageBox& box) {
            for (QAbstractButton* button : box.buttons()) {
                if (button->text().remove(u'&') == QStringView(title)) {
                    QTest::mouseClick(button, Qt::LeftButton);
                }
            }
        };
    };
    const std::string text = offerAnd([](QMessageBox& box) { QTest::keyClick(&box, Qt::Key_Escape); });
    EXPECT_NE(text.find("Discard deletes the copy"), std::string::npos);
    EXPECT_EQ(session.leftBehind().size(), 1) << "Escape decides nothing";
    EXPECT_NE(layout().text(), changed);
    offerAnd(press(u"Recover"));
    EXPECT_EQ(layout().text(), changed);
    EXPECT_TRUE(session.leftBehind().isEmpty());
    EXPECT_EQ(files().filter(u".vxlay"_s).size(), 1) << "a copy of this session has taken its place";

    leaveBehind();
    offerAnd(press(u"Discard"));
    EXPECT_TRUE(session.leftBehind().isEmpty());
}

} // namespace vantrix::test
