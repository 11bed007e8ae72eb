#include "app/MainWindow.h"

#include "api/VtxUtil.h"
#include "kernel/Document.h"
#include "kernel/FrameObjects.h"
#include "kernel/FrontEnd.h"
#include "kernel/Kernel.h"
#include "toolbox/Set.h"
#include "view/PageRenderer.h"
#include "view/WorkArea.h"

#include "AppTestSupport.h"

#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListView>
#include <QMenuBar>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QStatusBar>

#include <QTextBrowser>

#include <functional>
#include <map>
#include <utility>

namespace vantrix::test {
namespace {

using namespace Qt::StringLiterals;

QString plainText(const QAction& action)
{
    return QString(action.text()).remove(u'&');
}

class MainWindowTest : public AppTest
{
protected:
    MainWindowTest()
        : window(kernel::Kernel::instance())
    {
        window.resize(1000, 700);
        window.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&window));
        // Without a window manager nobody else makes it the active one, which shortcuts go to.
        QApplication::setActiveWindow(&window);
    }

    /* Opens menus by clicks along a path of titles ("Edit", "Undo") and clicks the last one. */
    void clickMenu(const QStringList& titles)
    {
        QWidget* bar = window.menuBar();
        for (const QString& title : titles) {
            QAction* found = nullptr;
            for (QAction* action : bar->actions()) {
                if (plainText(*action) == title) {
                    found = action;
                }
            }
            ASSERT_NE(found, nullptr) << title.toStdString();
            ASSERT_TRUE(found->isEnabled()) << title.toStdString();
            const auto* menu = qobject_cast<QMenu*>(bar);
            const QRect place = menu != nullptr ? menu->actionGeometry(found) : window.menuBar()->actionGeometry(found);
            QTest::mouseClick(bar, Qt::LeftButton, {}, place.center());
            settle();
            bar = found->menu();
        }
    }

    QAction& action(const char* name) const { return *window.findChild<QAction*>(QString::fromLatin1(name)); }

    /* Answers the next message box and gives its text. */
    static std::string messageOf(const std::function<void()>& work)
    {
        std::string text;
        QTimer answer;
        QObject::connect(&answer, &QTimer::timeout, [&text] {
            if (auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget())) {
                EXPECT_EQ(box->windowTitle(), QApplication::applicationDisplayName());
                text = box->text().toStdString();
                QTest::keyClick(box, Qt::Key_Return);
            }
        });
        answer.start(20);
        work();
        return text;
    }

    void drop(const QStringList& files)
    {
        QMimeData data;
        QList<QUrl> urls;
        for (const QString& file : files) {
            urls << QUrl::fromLocalFile(file);
        }
        data.setUrls(urls);
        const QPoint middle = window.rect().center();
        QDragEnterEvent enter(middle, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&window, &enter);
        EXPECT_TRUE(enter.isAccepted());
        QDropEvent event(middle, Qt::CopyAction, &data, Qt::LeftButton, {});
        QApplication::sendEvent(&window, &event);
        settle();
    }

    app::MainWindow window;
};

TEST_F(MainWindowTest, ExitEndsTheFileMenuAndNoTwoEntriesOfAMenuShareAKey)
{
    QList<QMenu*> menus = window.menuBar()->findChildren<QMenu*>(Qt::FindDirectChildrenOnly);
    ASSERT_GT(menus.size(), 8);
    EXPECT_EQ(plainText(*menus.first()->actions().last()), u"Exit"_s);
    for (const QMenu* menu : menus) {
        std::map<QKeySequence, QString> keys;
        for (const QAction* action : menu->actions()) {
            const QKeySequence key = QKeySequence::mnemonic(action->text());
            if (!key.isEmpty() && action->isVisible()) {
                const auto [other, isNew] = keys.emplace(key, action->text());
                EXPECT_TRUE(isNew) << action->text().toStdString() << " / " << other->second.toStdString();
            }
        }
    }
}

TEST_F(MainWindowTest, ACircularZoneIsCreatedUndoneAndRedoneThroughTheMenus)
{
    ASSERT_TRUE(window.openSample(u"flow3d"_s));
    settle();
    const long zones = VtxUtilDataSetGetNumZones();
    const QImage before = window.workArea().grab().toImage();

    clickMenu({u"Data"_s, u"Create Zone"_s, u"Circular..."_s});
    auto* dialog = window.findChild<QDialog*>(u"CreateCircularZoneDialog"_s);
    ASSERT_NE(dialog, nullptr);
    ASSERT_TRUE(dialog->isVisible());
    auto* radius = dialog->findChild<QLineEdit*>(u"createCircularZone_Radius_1Text"_s);
    radius->setFocus();
    radius->selectAll();
    QTest::keyClicks(radius, u"2.5"_s);
    QTest::keyClick(radius, Qt::Key_Tab);
    settle();
    const std::string message = messageOf([dialog] {
        for (QAbstractButton* button : dialog->findChild<QDialogButtonBox*>()->buttons()) {
            if (button->text().remove(u'&') == "Create"_L1) {
                QTest::mouseClick(button, Qt::LeftButton);
            }
        }
        QTest::qWait(100);
    });
    const std::string status = window.findChild<QLabel*>(u"statusText"_s)->text().toStdString();
    EXPECT_EQ(message.empty() ? status : message, "Circular zone created.");
    dialog->close();
    settle();
    EXPECT_EQ(VtxUtilDataSetGetNumZones(), zones + 1);
    const QImage created = window.workArea().grab().toImage();
    EXPECT_NE(created, before);

    EXPECT_EQ(plainText(action("undoAction")), u"Undo Create Circular Zone"_s);
    clickMenu({u"Edit"_s, u"Undo Create Circular Zone"_s});
    EXPECT_EQ(VtxUtilDataSetGetNumZones(), zones);
    EXPECT_EQ(window.workArea().grab().toImage(), before);

    clickMenu({u"Edit"_s, u"Redo Create Circular Zone"_s});
    EXPECT_EQ(VtxUtilDataSetGetNumZones(), zones + 1);
    EXPECT_EQ(window.workArea().grab().toImage(), created);
    EXPECT_EQ(VtxUtilLockGetViolationCount(), 0);
}

TEST_F(MainWindowTest, ADroppedFileIsOpenedAndRemembered)
{
    drop({write("small.vtk", smallVtkFile())});
    EXPECT_EQ(VtxUtilDataSetGetNumZones(), 1);
    EXPECT_TRUE(window.windowTitle().contains(u"small.vtk"_s)) << window.windowTitle().toStdString();
    const auto* recent = window.findChild<QMenu*>(u"recentFilesMenu"_s);
    EXPECT_TRUE(recent->actions().first()->text().contains(u"small.vtk"_s));
}

TEST_F(MainWindowTest, ABadFileIsToldAndWhatWasOpenStays)
{
    ASSERT_TRUE(window.openSample(u"fe2d"_s));
    const long dataSet = VtxUtilDataSetGetUniqueID();
    const QString step = action("undoAction").text();
    const std::string message = messageOf([this] { window.openFiles({write("bad.vtk", "nothing")}); });
    EXPECT_NE(message.find("bad.vtk"), std::string::npos) << message;
    EXPECT_EQ(VtxUtilDataSetGetUniqueID(), dataSet);
    settle();
    EXPECT_EQ(VtxUtilLockIsOn(), false);
}

TEST_F(MainWindowTest, TheSideBarShowsAndSetsPlotTypeAndLayers)
{
    auto* plotType = window.findChild<QComboBox*>(u"plotType"_s);
    auto* mesh = window.findChild<QCheckBox*>(u"ShowMesh"_s);
    EXPECT_FALSE(mesh->isEnabled());
    ASSERT_TRUE(window.openSample(u"flow3d"_s));
    settle();
    EXPECT_EQ(plotType->currentText(), u"3D Cartesian"_s);
    ASSERT_TRUE(mesh->isEnabled());

    const QImage before = window.workArea().grab().toImage();
    const bool wasOn = mesh->isChecked();
    QTest::mouseClick(mesh, Qt::LeftButton, {}, QPoint(8, mesh->height() / 2));
    settle();
    EXPECT_NE(mesh->isChecked(), wasOn);
    EXPECT_NE(window.workArea().grab().toImage(), before);
    VtxUtilUndo();
    settle();
    EXPECT_EQ(mesh->isChecked(), wasOn);
    EXPECT_EQ(window.workArea().grab().toImage(), before);

    plotType->setFocus();
    QTest::keyClick(plotType, Qt::Key_Down);
    settle();
    EXPECT_EQ(VtxUtilFrameGetPlotType(), PlotType_Cartesian2D);
    EXPECT_EQ(VtxUtilLockGetViolationCount(), 0);
}

TEST_F(MainWindowTest, ATextIsPutWhereItIsClickedAndChangedByADoubleClick)
{
    ASSERT_TRUE(window.openSample(u"fe2d"_s));
    settle();
    const auto rect = [this] {
        return window.workArea().renderer().frameRect(*kernel::Kernel::instance().document().activeFrame());
    };
    QPoint place = window.workArea().toWidget(rect().center()).toPoint();
    /* Does a click, and what the dialog needs that opens then. */
    const auto clickAnd = [&](const std::function<void(QDialog&)>& answer, const auto& click) {
        QTimer timer;
        bool isAsked = false;
        QObject::connect(&timer, &QTimer::timeout, [&] {
            auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
            if (dialog && !dialog->isActiveWindow()) {
                QApplication::setActiveWindow(dialog);
            } else if (dialog && dialog->focusWidget() && !std::exchange(isAsked, true)) {
                answer(*dialog);
            }
        });
        timer.start(20);
        click(&window.workArea(), Qt::LeftButton, Qt::AltModifier, place, -1);
        settle();
        EXPECT_TRUE(isAsked);
    };
    const auto click = [](auto... arguments) { QTest::mouseClick(arguments...); };
    const auto type = [](QDialog& dialog, const QString& words) {
        QTest::keyClicks(dialog.findChild<QWidget*>(u"textWords"_s), words);
    };
    clickMenu({u"Insert"_s, u"Text..."_s});
    EXPECT_TRUE(action("mouseMode_text").isChecked());
    clickAnd(
        [&](QDialog& dialog) {
            type(dialog, u"lost"_s);
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Escape);
        },
        click);
    clickAnd(
        [](QDialog& dialog) {
            EXPECT_FALSE(dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok)->isEnabled());
            dialog.reject();
        },
        click);
    EXPECT_EQ(VtxUtilTextGetFirst(), 0) << "Escape, or no words";

    VtxUtilMacroRecordStart(path("text.macro").toUtf8().constData());
    clickAnd(
        [&](QDialog& dialog) {
            type(dialog, u"two"_s);
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
            type(dialog, u"lines"_s);
            QTest::keyClick(dialog.focusWidget(), Qt::Key_Return, Qt::ControlModifier);
        },
        click);
    VtxUtilMacroRecordStop();
    const long text = VtxUtilTextGetFirst();
    const kernel::Text* placed = kernel::Kernel::instance().texts().find(text);
    ASSERT_NE(placed, nullptr);
    EXPECT_EQ(placed->text, "two\nlines");
    EXPECT_NEAR(placed->x, 50.0, 0.5);
    EXPECT_EQ(VtxUtilMouseGetCurrentMode(), MouseMode_Selector);
    EXPECT_EQ(VtxUtilPickListGetText(1), text);
    EXPECT_EQ(plainText(action("undoAction")), u"Undo Insert Text"_s);

    place += QPoint(8, -4); // into the words
    clickAnd([&](QDialog& dialog) { type(dialog, u"one"_s), dialog.accept(); },
             [](auto... arguments) {
                 QTest::mouseClick(arguments...);
                 QTest::mouseDClick(arguments...);
             });
    EXPECT_EQ(kernel::Kernel::instance().texts().find(text)->text, "one") << "what was there is selected";
    VtxUtilUndo();
    EXPECT_EQ(kernel::Kernel::instance().texts().find(text)->text, "two\nlines");
    VtxUtilUndo();
    EXPECT_EQ(VtxUtilTextGetFirst(), 0);
    ASSERT_TRUE(window.playMacro(path("text.macro")));
    EXPECT_EQ(kernel::Kernel::instance().texts().find(VtxUtilTextGetFirst())->text, "two\nlines");
    EXPECT_EQ(VtxUtilLockGetViolationCount(), 0);
}

TEST_F(MainWindowTest, WhatWasToldOfADoubleClickGoesWithTheNext)
{
    ASSERT_TRUE(window.openSample(u"fe2d"_s));
    settle();
    const auto* status = window.statusBar()->findChild<QLabel*>();
    Q_EMIT window.workArea().objectActivated(PickObject_Zone);
    EXPECT_EQ(status->text(), u"There is no dialog for what was clicked."_s);
    Q_EMIT window.workArea().objectActivated(PickObject_Frame);
    EXPECT_EQ(status->text(), QString());
}

TEST_F(MainWindowTest, TheSideBarOfALinePlotShowsAndNamesLineMaps)
{
    window.show();
    ASSERT_TRUE(window.openSample(u"lines"_s));
    settle();
    auto* list = window.findChild<QListView*>(u"lineMapList"_s);
    ASSERT_TRUE(list->isVisible());
    EXPECT_FALSE(window.findChild<QListView*>(u"zoneList"_s)->isVisible());
    ASSERT_EQ(list->model()->rowCount(), 4);
    const QModelIndex third = list->model()->index(2, 0);
    EXPECT_EQ(third.data().toString(), u"Damping 0.2"_s);
    const QImage before = window.workArea().grab().toImage();
    ASSERT_TRUE(list->model()->setData(third, Qt::Unchecked, Qt::CheckStateRole));
    settle();
    const toolbox::Set shown(VtxUtilLineMapGetActive());
    EXPECT_EQ(shown.memberCount(), 3);
    EXPECT_NE(window.workArea().grab().toImage(), before);
    ASSERT_TRUE(list->model()->setData(third, u"Mine"_s, Qt::EditRole));
    settle();
    EXPECT_EQ(third.data().toString(), u"Mine"_s);
    VtxUtilUndo();
    VtxUtilUndo();
    settle();
    EXPECT_EQ(third.data().toString(), u"Damping 0.2"_s);
    EXPECT_EQ(window.workArea().grab().toImage(), before);
    EXPECT_EQ(VtxUtilLockGetViolationCount(), 0);
}

TEST_F(MainWindowTest, TheSideBarChoosesTheVariablesOfContoursAndVectors)
{
    ASSERT_TRUE(window.openSample(u"flow3d"_s));
    settle();
    auto* contour = window.findChild<QComboBox*>(u"contourVariable"_s);
    ASSERT_TRUE(contour->isEnabled());
    EXPECT_EQ(contour->currentText(), u"U"_s);
    const QImage before = window.workArea().grab().toImage();
    contour->setFocus();
    QTest::keyClick(contour, Qt::Key_Down);
    settle();
    EXPECT_EQ(contour->currentText(), u"V"_s);
    EXPECT_NE(window.workArea().grab().toImage(), before);

    // Vectors without variables: the user is asked, and who names none gets no vectors.
    ASSERT_TRUE(window.openSample(u"polyhedra"_s));
    settle();
    auto* vector = window.findChild<QCheckBox*>(u"ShowVector"_s);
    const auto answer = [](const char* chosen) {
        auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
        ASSERT_NE(dialog, nullptr);
        if (chosen != nullptr) {
            auto* box = dialog->findChild<QComboBox*>(QLatin1StringView(chosen));
            box->setFocus();
            QTest::keyClick(box, Qt::Key_Down);
        }
        QTest::keyClick(dialog, Qt::Key_Escape);
    };
    QTimer::singleShot(100, &window, [&] { answer(nullptr); });
    QTest::mouseClick(vector, Qt::LeftButton, {}, QPoint(8, vector->height() / 2));
    settle();
    EXPECT_FALSE(vector->isChecked());
    QTimer::singleShot(100, &window, [&] { answer("UVar"); });
    QTest::mouseClick(vector, Qt::LeftButton, {}, QPoint(8, vector->height() / 2));
    settle();
    EXPECT_TRUE(vector->isChecked());

    // Streamtraces follow the same vectors, and their mode asks for them as well.
    auto* streamtraces = window.findChild<QCheckBox*>(u"ShowStreamtraces"_s);
    QTest::mouseClick(streamtraces, Qt::LeftButton, {}, QPoint(8, streamtraces->height() / 2));
    settle();
    EXPECT_TRUE(streamtraces->isChecked());
    ASSERT_TRUE(window.openSample(u"polyhedra"_s));
    settle();
    QTimer::singleShot(100, &window, [&] { answer(nullptr); });
    action("mouseMode_streamtrace").trigger();
    EXPECT_NE(VtxUtilMouseGetCurrentMode(), MouseMode_Streamtrace);
    QTimer::singleShot(100, &window, [&] { answer("VVar"); });
    action("mouseMode_streamtrace").trigger();
    EXPECT_EQ(VtxUtilMouseGetCurrentMode(), MouseMode_Streamtrace);
    EXPECT_EQ(VtxUtilLockGetViolationCount(), 0);
}

TEST_F(MainWindowTest, MouseModesFollowThePlot)
{
    EXPECT_FALSE(action("mouseMode_rotate").isEnabled());
    ASSERT_TRUE(window.openSample(u"flow3d"_s));
    settle();
    EXPECT_TRUE(action("mouseMode_rotate").isEnabled());
    action("mouseMode_rotate").trigger();
    EXPECT_EQ(VtxUtilMouseGetCurrentMode(), MouseMode_Rotate);
    EXPECT_TRUE(action("mouseMode_rotate").isChecked());
    action("mouseMode_rotate").trigger();
    EXPECT_TRUE(action("mouseMode_rotate").isChecked());
    EXPECT_FALSE(action("mouseMode_zoom").isChecked());
}

TEST_F(MainWindowTest, PagesAndFramesComeAndGoByMenu)
{
    EXPECT_FALSE(action("deletePageAction").isEnabled());
    clickMenu({u"Page"_s, u"New Page"_s});
    settle();
    EXPECT_EQ(VtxUtilPageGetActive(), 2);
    EXPECT_TRUE(action("page_2").isChecked());
    clickMenu({u"Page"_s, u"Previous Page"_s});
    settle();
    EXPECT_EQ(VtxUtilPageGetActive(), 1);
    clickMenu({u"Page"_s, u"Page 2"_s});
    settle();
    clickMenu({u"Page"_s, u"Delete Page"_s});
    settle();
    EXPECT_EQ(VtxUtilPageGetCount(), 1);
    clickMenu({u"Edit"_s, u"Undo Delete Page"_s});
    EXPECT_EQ(VtxUtilPageGetCount(), 2);

    clickMenu({u"Frame"_s, u"Create Frame"_s});
    EXPECT_EQ(VtxUtilMouseGetCurrentMode(), MouseMode_CreateFrame);
    const long frame = VtxUtilFrameGetUniqueID();
    clickMenu({u"Frame"_s, u"Delete Frame"_s});
    EXPECT_NE(VtxUtilFrameGetUniqueID(), frame);
}

TEST_F(MainWindowTest, TheTitleTellsTheLayoutAndWhetherItIsSaved)
{
    ASSERT_TRUE(window.openSample(u"fe2d"_s));
    settle();
    EXPECT_FALSE(window.isWindowModified()) << "data that were only opened are no work";
    clickMenu({u"Page"_s, u"New Page"_s});
    settle();
    EXPECT_TRUE(window.isWindowModified());
    const QString file = path("wing.vxlay");
    ASSERT_TRUE(VtxUtilLayoutSave(file.toUtf8().constData()));
    EXPECT_FALSE(window.isWindowModified());
    EXPECT_TRUE(window.windowTitle().startsWith(u"wing.vxlay"_s)) << window.windowTitle().toStdString();
    clickMenu({u"Edit"_s, u"Undo Create Page"_s});
    settle();
    EXPECT_TRUE(window.isWindowModified());
    clickMenu({u"Edit"_s, u"Redo Create Page"_s});
    settle();
    EXPECT_FALSE(window.isWindowModified());
    ASSERT_TRUE(window.openFiles({file}));
    EXPECT_EQ(VtxUtilPageGetCount(), 2);
    ASSERT_TRUE(window.openSample(u"polyhedra"_s));
    settle();
    EXPECT_TRUE(window.isWindowModified()) << "the layout that was saved shows other data now";
}

TEST_F(MainWindowTest, UnsavedWorkIsNotDroppedWithoutAsking)
{
    const auto closeAnswering = [this](QMessageBox::StandardButton answer) {
        QTimer::singleShot(100, [answer] {
            auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
            ASSERT_NE(box, nullptr);
            QTest::mouseClick(box->button(answer), Qt::LeftButton);
        });
        return window.close();
    };
    clickMenu({u"Page"_s, u"New Page"_s});
    EXPECT_FALSE(closeAnswering(QMessageBox::Cancel));
    EXPECT_TRUE(window.isVisible());
    ASSERT_TRUE(VtxUtilLayoutSave(path("a.vxlay").toUtf8().constData()));
    clickMenu({u"Page"_s, u"New Page"_s});
    EXPECT_TRUE(closeAnswering(QMessageBox::Save));
    ASSERT_TRUE(VtxUtilLayoutNew());
    ASSERT_TRUE(VtxUtilLayoutOpen(path("a.vxlay").toUtf8().constData()));
    EXPECT_EQ(VtxUtilPageGetCount(), 3);
}

TEST_F(MainWindowTest, NoTwoAccessKeysAreTheSame)
{
    std::map<QString, QString> owners;
    const auto claim = [&](const QString& text) {
        const QString key = QKeySequence::mnemonic(text).toString();
        if (!key.isEmpty()) {
            const auto [owner, isFree] = owners.try_emplace(key, text);
            EXPECT_TRUE(isFree) << key.toStdString() << ": " << owner->second.toStdString() << " and "
                                << text.toStdString();
        }
    };
    for (const QAction* menu : window.menuBar()->actions()) {
        claim(menu->text());
    }
    EXPECT_EQ(owners.size(), static_cast<std::size_t>(window.menuBar()->actions().size())) << "each menu has one";
    for (const QWidget* widget : window.findChildren<QWidget*>()) {
        if (widget->window() == &window) {
            claim(widget->property(qobject_cast<const QGroupBox*>(widget) ? "title" : "text").toString());
        }
    }
    EXPECT_GT(owners.size(), static_cast<std::size_t>(window.menuBar()->actions().size())) << "the side bar has some";
}

TEST_F(MainWindowTest, HelpOpensItsPages)
{
    clickMenu({u"Help"_s, u"Contents"_s});
    auto* browser = window.findChild<QTextBrowser*>(u"helpBrowser"_s);
    ASSERT_TRUE(browser->isVisible());
    EXPECT_TRUE(browser->toPlainText().contains(u"vxplot"_s));
    EXPECT_TRUE(VtxUtilHelpLaunch("create_zone_circular.html"));
    EXPECT_TRUE(browser->toPlainText().contains(u"Circumferential"_s));
    EXPECT_FALSE(VtxUtilHelpLaunch("no_such_page.html"));
    browser->backward();
    EXPECT_FALSE(browser->toPlainText().contains(u"Circumferential"_s));
}

TEST_F(MainWindowTest, LongWorkIsShownAndCancelled)
{
    kernel::FrontEnd& frontEnd = kernel::Kernel::instance().frontEnd();
    auto* button = window.findChild<QPushButton*>(u"progressCancelButton"_s);
    const auto work = [&](const std::function<void()>& whenShown) {
        QElapsedTimer timer;
        timer.start();
        bool isTold = false;
        while (timer.elapsed() < 10000) {
            if (!frontEnd.reportProgress("Reading", static_cast<double>(timer.elapsed()) / 10000)) {
                return true;
            }
            if (button->isVisible() && !isTold) {
                isTold = true;
                whenShown();
            }
        }
        frontEnd.reportProgress("Reading", 2);
        return false;
    };
    EXPECT_TRUE(work([button] { QTest::mouseClick(button, Qt::LeftButton); }));
    QTest::qWait(200);
    EXPECT_FALSE(button->isVisible());
    EXPECT_TRUE(work([this] { QTest::keyClick(&window, Qt::Key_Escape); }));
    QTest::qWait(200);

    // What is behind the work takes no input while it lasts.
    EXPECT_TRUE(work([this] {
        QTest::keyClick(&window, Qt::Key_Z);
        EXPECT_EQ(VtxUtilMouseGetCurrentMode(), MouseMode_Selector);
        QTest::keyClick(&window, Qt::Key_Escape);
    }));
    QTest::qWait(200);
    QTest::keyClick(&window, Qt::Key_Z);
    EXPECT_EQ(VtxUtilMouseGetCurrentMode(), MouseMode_Zoom);
}

} // namespace
} // namespace vantrix::test
