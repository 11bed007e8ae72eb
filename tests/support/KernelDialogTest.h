#pragma once

#include "api/VtxUtil.h"
#include "kernel/Kernel.h"
#include "kernel/SilentFrontEnd.h"
#include "sdk/AppLock.h"
#include "support/UserInput.h"
#include "toolbox/StyleValue.h"
#include "ui/QtDialogAbstract.h"

#include <gmock/gmock.h>

#include <QAbstractButton>
#include <QApplication>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QWidget>

namespace vantrix::test {

/// Keeps what the user is told.
class RecordingFrontEnd : public kernel::SilentFrontEnd
{
public:
    bool showMessage(std::string const& text, MessageBox_e) override
    {
        messages.push_back(text);
        return true;
    }
    bool openHelp(std::string const& page) override
    {
        helpPages.push_back(page);
        return true;
    }
    void fitPaperToWorkArea() override { ++fits; }
    double drawnTickSpacing(long, char, int) const override { return drawnSpacing; }

    std::vector<std::string> messages;
    std::vector<std::string> helpPages;
    int fits = 0;
    double drawnSpacing = 0.0; ///< of every axis
};

/// The kernel as new, a window for dialogs to belong to, and settings of its own. No test may change state without the
/// application lock.
class KernelDialogTest : public testing::Test
{
protected:
    KernelDialogTest()
    {
        QSettings::setPath(QSettings::IniFormat, QSettings::UserScope, m_settings.path());
        kernel::Kernel::instance().reset();
        kernel::Kernel::instance().setFrontEnd(&frontEnd);
    }

    ~KernelDialogTest() override
    {
        kernel::Kernel::instance().setFrontEnd(nullptr);
        EXPECT_EQ(VtxUtilLockGetViolationCount(), 0);
    }

    template<typename Dialog>
    Dialog& launch()
    {
        Dialog& dialog = Dialog::getInstance(parent);
        show(dialog);
        return dialog;
    }

    static void show(vantrix::dialogs::common::QtDialogAbstract& dialog)
    {
        dialog.launch();
        QApplication::setActiveWindow(&dialog);
        idle();
    }

    template<typename T>
    static T styleOf(toolbox::StringList const& path)
    {
        T value{};
        EXPECT_EQ(toolbox::StyleValue(path).getValue(&value), GetValueReturnCode_Ok) << path[path.size() - 1];
        return value;
    }

    template<typename T>
    static void setStyle(toolbox::StringList const& path, T const& value)
    {
        {
            sdk::AppLock const lock;
            EXPECT_EQ(toolbox::StyleValue(path).setValue(value), SetValueReturnCode_Ok) << path[path.size() - 1];
        }
        idle();
    }

    /// Clicks a check box or radio button where its mark is.
    static void click(QDialog const& dialog, char const* name)
    {
        auto& button = find<QAbstractButton>(dialog, name);
        QTest::mouseClick(&button, Qt::LeftButton, {}, QPoint(8, button.height() / 2));
        idle();
    }

    static void choose(QDialog const& dialog, char const* comboBox, char const* text)
    {
        auto& box = find<QComboBox>(dialog, comboBox);
        box.setFocus();
        QTest::keyClick(&box, Qt::Key_Home);
        for (int row = box.findText(QString::fromUtf8(text)); row > 0; --row) {
            QTest::keyClick(&box, Qt::Key_Down);
        }
        idle();
    }

    static void click(QDialog const& dialog, QDialogButtonBox::StandardButton button)
    {
        QTest::mouseClick(find<QDialogButtonBox>(dialog, "buttonBox").button(button), Qt::LeftButton);
        idle();
    }

    static bool isEnabled(QDialog const& dialog, char const* widget)
    {
        return find<QWidget>(dialog, widget).isEnabled();
    }

    static bool isChecked(QDialog const& dialog, char const* button)
    {
        return find<QAbstractButton>(dialog, button).isChecked();
    }

    RecordingFrontEnd frontEnd;
    QWidget parent;

private:
    QTemporaryDir m_settings;
};

} // namespace vantrix::test
