#pragma once

#include "support/DialogTest.h"

#include <QApplication>
#include <QDialog>
#include <QPushButton>

namespace vantrix::test {

/// What the tests of the dialogs that create a zone share: data from (0, yMin, -1) to (6, 8, 5) in a 3D plot.
class CreateZoneDialogTest : public DialogTest
{
protected:
    explicit CreateZoneDialogTest(double yMin)
    {
        host.plotType = PlotType_Cartesian3D;
        host.dataSetIsAvailable = true;
        host.axisVariables = {{'X', 1}, {'Y', 2}, {'Z', 3}};
        host.extents = {{1, {0.0, 6.0}}, {2, {yMin, 8.0}}, {3, {-1.0, 5.0}}};
    }

    template<typename Dialog>
    Dialog& launchDialog()
    {
        auto& dialog = Dialog::getInstance(parent);
        dialog.launch();
        QApplication::setActiveWindow(&dialog);
        idle();
        return dialog;
    }

    static QPushButton& button(QDialog const& dialog, QString const& text)
    {
        for (QPushButton* const button : dialog.findChildren<QPushButton*>()) {
            if (button->text() == text) {
                return *button;
            }
        }
        throw std::runtime_error("no button " + text.toStdString());
    }

    static std::vector<bool> enabled(QDialog const& dialog, std::initializer_list<char const*> names)
    {
        std::vector<bool> result;
        for (char const* const name : names) {
            result.push_back(find(dialog, name).isEnabled());
        }
        return result;
    }

    std::vector<bool> const allSix = std::vector<bool>(6, true);
    std::vector<bool> const none = std::vector<bool>(6, false);
};

} // namespace vantrix::test
