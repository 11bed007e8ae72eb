#include "ui/QtDialogAbstract.h"

#include "support/DialogTest.h"
#include "ui/LaunchHelpAction.h"
#include "ui/TabWidgetLaunchHelpAction.h"
#include "ui/TabWidgetPersistence.h"
#include "ui/relevance/StateChangeDependentRelevance.h"

#include <QApplication>
#include <QComboBox>
#include <QDateTime>
#include <QDialogButtonBox>
#include <QFile>
#include <QFileInfo>
#include <QGridLayout>
#include <QLabel>
#include <QPushButton>
#include <QScrollArea>
#include <QScrollBar>
#include <QSpinBox>
#include <QTabWidget>

using namespace vantrix::dialogs::common;
using namespace vantrix::sdk::ui::propertymanager;
using namespace vantrix::test;
using testing::ElementsAre;

namespace {

/// A dialog as a form would make it: two rows of two fields, made in another order than they are read.
class SampleDialog : public QtDialogAbstract
{
public:
    explicit SampleDialog(QWidget& parent, Relevance relevance = {})
        : QtDialogAbstract(parent, std::move(relevance))
    {
        setObjectName(QStringLiteral("SampleDialog"));
        auto* const layout = new QVBoxLayout(this);
        auto* const grid = new QGridLayout;
        layout->addLayout(grid);
        layout->addWidget(buttons);
        grid->addWidget(choice, 1, 1);
        grid->addWidget(number, 1, 0);
        grid->addWidget(second, 0, 1);
        grid->addWidget(first, 0, 0);
        choice->addItems({QStringLiteral("a"), QStringLiteral("b")});
    }

    QLineEdit* first = new QLineEdit;
    QLineEdit* second = new QLineEdit;
    QSpinBox* number = new QSpinBox;
    QComboBox* choice = new QComboBox;
    QDialogButtonBox* buttons = new QDialogButtonBox(QDialogButtonBox::Apply | QDialogButtonBox::Close);
};

void launch(QtDialogAbstract& dialog)
{
    dialog.launch();
    QApplication::setActiveWindow(&dialog);
    idle();
}

void wheel(QWidget& widget)
{
    QPointF const middle = widget.rect().center();
    QWheelEvent event(middle, widget.mapToGlobal(middle), QPoint(), QPoint(0, -120), Qt::NoButton, Qt::NoModifier,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&widget, &event);
}

using QtDialogAbstractTest = DialogTest;

} // namespace

TEST_F(QtDialogAbstractTest, TabFollowsTheRowsAndLaunchBeginsAtTheFirstField)
{
    SampleDialog dialog(parent);
    launch(dialog);
    std::vector<QWidget*> visited;
    for (int step = 0; step < 4; ++step) {
        visited.push_back(QApplication::focusWidget());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
    }
    EXPECT_THAT(visited, ElementsAre(dialog.first, dialog.second, dialog.number, dialog.choice));
    dialog.drop();
    EXPECT_FALSE(dialog.isVisible());
    launch(dialog);
    EXPECT_EQ(QApplication::focusWidget(), dialog.first);
}

TEST_F(QtDialogAbstractTest, EscapeTakesTheEditBackAndCloses)
{
    SampleDialog dialog(parent);
    dialog.first->setText(QStringLiteral("kept"));
    launch(dialog);
    int finished = 0;
    QObject::connect(dialog.first, &QLineEdit::editingFinished, [&] {
        ++finished;
        EXPECT_EQ(textOf(*dialog.first), "kept");
    });
    typeInto(*dialog.first, "half of");
    QTest::keyClick(dialog.first, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(textOf(*dialog.first), "kept");
}

TEST_F(QtDialogAbstractTest, EscapeTakesTheEditOfASpinBoxBackToo)
{
    SampleDialog dialog(parent);
    QSpinBox* const box = dialog.number;
    box->setKeyboardTracking(false);
    box->setValue(7);
    launch(dialog);
    int changes = 0;
    QObject::connect(box, &QSpinBox::valueChanged, [&] { ++changes; });
    box->setFocus();
    box->selectAll();
    QTest::keyClicks(box, QStringLiteral("42"));
    QTest::keyClick(box, Qt::Key_Escape);
    EXPECT_FALSE(dialog.isVisible());
    EXPECT_EQ(box->value(), 7);
    EXPECT_EQ(changes, 0);
}

TEST_F(QtDialogAbstractTest, DropEndsTheEditUnderWay)
{
    SampleDialog dialog(parent);
    launch(dialog);
    std::string taken;
    QObject::connect(dialog.first, &QLineEdit::editingFinished, [&] { taken = textOf(*dialog.first); });
    typeInto(*dialog.first, "new");
    dialog.drop();
    EXPECT_EQ(taken, "new");
}

TEST_F(QtDialogAbstractTest, EnterInAFieldTriggersNoButtonOfAModelessDialog)
{
    SampleDialog dialog(parent);
    launch(dialog);
    int clicks = 0;
    QObject::connect(dialog.buttons, &QDialogButtonBox::clicked, [&] { ++clicks; });
    enter(*dialog.first, "5");
    EXPECT_EQ(clicks, 0);
    EXPECT_TRUE(dialog.isVisible());
    QTest::mouseClick(dialog.buttons->button(QDialogButtonBox::Close), Qt::LeftButton);
    EXPECT_FALSE(dialog.isVisible());
}

TEST_F(QtDialogAbstractTest, TheWheelChangesOnlyAFocusedValue)
{
    SampleDialog dialog(parent);
    dialog.number->setValue(50);
    launch(dialog);
    wheel(*dialog.number);
    wheel(*dialog.choice);
    EXPECT_EQ(dialog.number->value(), 50);
    EXPECT_EQ(dialog.choice->currentIndex(), 0);
    dialog.number->setFocus();
    wheel(*dialog.number);
    dialog.choice->setFocus();
    wheel(*dialog.choice);
    EXPECT_EQ(dialog.number->value(), 49);
    EXPECT_EQ(dialog.choice->currentIndex(), 1);
}

TEST_F(QtDialogAbstractTest, WithoutRelevanceTheContentIsDisabledAndTheReasonShown)
{
    bool relevant = false;
    auto const relevance = boost::make_shared<StateChangeDependentRelevance>([&] { return relevant; });
    std::string const why =
        "There is no frame that shows a plot of the kind that this dialog is for: make one, or choose "
        "another plot type, or go to a page that has such a frame.";
    relevance->setReason(why);
    SampleDialog dialog(parent, relevance);
    QPushButton* const apply = dialog.buttons->button(QDialogButtonBox::Apply);
    launch(dialog);
    QLabel const& reason = find<QLabel>(dialog, "relevanceReason");
    EXPECT_FALSE(dialog.first->isEnabled());
    EXPECT_FALSE(apply->isEnabled());
    EXPECT_TRUE(dialog.buttons->button(QDialogButtonBox::Close)->isEnabled());
    EXPECT_TRUE(reason.isVisible());
    EXPECT_GE(dialog.first->height(), dialog.first->sizeHint().height()) << "the line does not squeeze the fields";
    EXPECT_EQ(reason.text().toStdString(), why);

    dialog.second->setEnabled(false);
    apply->setEnabled(true);
    EXPECT_FALSE(apply->isEnabled()) << "whoever enables it";

    relevant = true;
    host.notify(StateChange_NewActiveFrame);
    idle();
    EXPECT_TRUE(dialog.first->isEnabled());
    EXPECT_FALSE(dialog.second->isEnabled()) << "a control keeps its own state";
    EXPECT_TRUE(apply->isEnabled());
    EXPECT_FALSE(reason.isVisible());
}

TEST_F(QtDialogAbstractTest, HelpButtonAndF1OpenThePage)
{
    SampleDialog dialog(parent);
    dialog.setHelpAction(new LaunchHelpAction(QStringLiteral("sample.html"), &dialog));
    launch(dialog);
    QTest::mouseClick(dialog.buttons->button(QDialogButtonBox::Help), Qt::LeftButton);
    QTest::keyClick(dialog.first, Qt::Key_F1);
    EXPECT_THAT(host.helpPages, ElementsAre("sample.html", "sample.html"));
    EXPECT_TRUE(host.messages.empty());
    host.helpIsThere = false;
    QTest::keyClick(dialog.first, Qt::Key_F1);
    EXPECT_THAT(host.messages, ElementsAre("There is no help page \"sample.html\"."));
}

TEST_F(QtDialogAbstractTest, SizeIsKeptFromRunToRun)
{
    int width = 0;
    {
        SampleDialog dialog(parent);
        launch(dialog);
        width = dialog.width() + 77;
        dialog.resize(width, dialog.height());
        dialog.drop();
    }
    SampleDialog dialog(parent);
    launch(dialog);
    EXPECT_EQ(dialog.width(), width);
}

TEST_F(QtDialogAbstractTest, TheSettingsFileIsWrittenOnlyWhenSomethingChanged)
{
    QSettings const settings(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("vantrix"),
                             QStringLiteral("dialogs"));
    auto const open = [this](int wider) {
        SampleDialog dialog(parent);
        launch(dialog);
        dialog.resize(dialog.width() + wider, dialog.height());
        idle();
        dialog.drop();
    };
    open(0);
    QDateTime const longAgo(QDate(2001, 2, 3), QTime(4, 5));
    QFile file(settings.fileName());
    ASSERT_TRUE(file.open(QIODevice::ReadWrite) && file.setFileTime(longAgo, QFileDevice::FileModificationTime));
    file.close();
    open(0);
    EXPECT_EQ(QFileInfo(file.fileName()).lastModified(), longAgo);
    open(50);
    EXPECT_GT(QFileInfo(file.fileName()).lastModified(), longAgo);
}

TEST_F(QtDialogAbstractTest, OnlyADialogThatGainsFromItCanBeMadeHigher)
{
    SampleDialog dialog(parent);
    launch(dialog);
    EXPECT_EQ(dialog.maximumHeight(), dialog.height());
    dialog.layout()->addWidget(new QScrollArea);
    idle();
    EXPECT_EQ(dialog.maximumHeight(), QWIDGETSIZE_MAX);
}

TEST_F(QtDialogAbstractTest, TabAndItsHelpAreKept)
{
    struct TabDialog : QtDialogAbstract
    {
        explicit TabDialog(QWidget& owner)
            : QtDialogAbstract(owner, {})
        {
            setObjectName(QStringLiteral("TabDialog"));
            (new QVBoxLayout(this))->addWidget(tabs);
            tabs->setObjectName(QStringLiteral("pages"));
            for (auto* const page : {one, two}) {
                tabs->addTab(page, page->objectName());
            }
            addPersistentState(std::make_unique<TabWidgetPersistence>(tabs));
            setHelpAction(new TabWidgetLaunchHelpAction(
                {{one, QStringLiteral("one.html")}, {two, QStringLiteral("two.html")}}, tabs, this));
        }

        static QWidget* page(char const* name)
        {
            auto* const widget = new QWidget;
            widget->setObjectName(QString::fromUtf8(name));
            return widget;
        }

        QTabWidget* tabs = new QTabWidget;
        QWidget* one = page("one");
        QWidget* two = page("two");
    };
    {
        TabDialog dialog(parent);
        launch(dialog);
        QTest::keyClick(&dialog, Qt::Key_F1);
        dialog.tabs->setCurrentWidget(dialog.two);
        QTest::keyClick(&dialog, Qt::Key_F1);
        EXPECT_THAT(host.helpPages, ElementsAre("one.html", "two.html"));
    }
    TabDialog dialog(parent);
    launch(dialog);
    EXPECT_EQ(dialog.tabs->currentWidget(), dialog.two);
}
