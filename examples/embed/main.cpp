// A program of one's own that shows a dialog of the library over the packaged kernel.
//
//   embed           a window with a button that opens the dialog
//   embed --check   opens the dialog, presses Create, and tells by the exit status whether the zone is there

#include "api/VtxUtil.h"
#include "dialogs/zone/CreateCircularZoneDialog.h"
#include "kernel/FrontEnd.h"
#include "kernel/Kernel.h"

#include <QApplication>
#include <QDialogButtonBox>
#include <QLabel>
#include <QMessageBox>
#include <QPushButton>
#include <QVBoxLayout>

#include <iostream>

using vantrix::sdk::ui::dialogs::CreateCircularZoneDialog;

namespace {

/* Shows what the kernel has to say: in message boxes and a label, or, while checking, on the standard error stream. */
class FrontEnd : public vantrix::kernel::FrontEnd
{
public:
    FrontEnd(QLabel& status, bool isQuiet)
        : m_status(status)
        , m_isQuiet(isQuiet)
    {}

    bool showMessage(const std::string& text, MessageBox_e type) override
    {
        if (m_isQuiet) {
            std::cerr << text << '\n';
            return true;
        }
        const auto buttons = type == MessageBox_Question ? QMessageBox::Yes | QMessageBox::No : QMessageBox::Ok;
        QMessageBox box(QMessageBox::NoIcon, "embed", QString::fromStdString(text), buttons, m_status.window());
        return box.exec() != QMessageBox::No;
    }
    void showStatus(const std::string& text) override { m_status.setText(QString::fromStdString(text)); }
    void setBusy(bool) override {}
    bool reportProgress(const std::string&, double) override { return true; }
    bool openHelp(const std::string&) override { return false; }
    void fitPaperToWorkArea() override {}

private:
    QLabel& m_status;
    bool m_isQuiet;
};

bool check(QWidget& window)
{
    const long zonesBefore = VtxUtilDataSetGetNumZones();
    CreateCircularZoneDialog& dialog = CreateCircularZoneDialog::getInstance(window);
    dialog.launch();
    QApplication::processEvents();
    for (QAbstractButton* button : dialog.findChild<QDialogButtonBox*>("buttonBox")->buttons()) {
        if (button->text().remove('&') == "Create")
            button->click();
    }
    return VtxUtilDataSetGetNumZones() == zonesBefore + 1;
}

} // namespace

int main(int argc, char** argv)
{
    QApplication application(argc, argv);
    const bool isCheck = QApplication::arguments().contains("--check");
    QWidget window;
    auto* layout = new QVBoxLayout(&window);
    auto* button = new QPushButton("Create &Circular Zone...", &window);
    auto* status = new QLabel("No zones yet", &window);
    layout->addWidget(button);
    layout->addWidget(status);
    QObject::connect(button, &QPushButton::clicked,
                     [&window] { CreateCircularZoneDialog::getInstance(window).launch(); });

    FrontEnd frontEnd(*status, isCheck);
    vantrix::kernel::Kernel::instance().setFrontEnd(&frontEnd);
    window.show();
    int exitStatus = 0;
    if (!isCheck)
        exitStatus = QApplication::exec();
    else if (!check(window))
        exitStatus = 1;
    vantrix::kernel::Kernel::instance().setFrontEnd(nullptr);
    return exitStatus;
}
