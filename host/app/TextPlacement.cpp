#include "app/TextPlacement.h"

#include "api/VtxUtil.h"
#include "app/TextDialog.h"
#include "sdk/AppLock.h"
#include "sdk/VtxUtilActionReporter.h"
#include "toolbox/ArgList.h"
#include "toolbox/HostString.h"

namespace vantrix::app {

namespace {

void showError()
{
    sdk::VtxUtilActionReporter().reportLastFailure();
}

} // namespace

TextPlacement::TextPlacement(QWidget* window)
    : QObject(window)
    , m_window(*window)
{}

void TextPlacement::place(double x, double y)
{
    TextDialog dialog(tr("Insert Text"), &m_window);
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    long created = 0;
    toolbox::ArgList arguments;
    arguments.appendString("Text", dialog.text().toStdString());
    arguments.appendDouble("XPos", x);
    arguments.appendDouble("YPos", y);
    arguments.appendArbParamPtr("Result", &created);
    bool isInserted = false;
    {
        const sdk::AppLock lock;
        isInserted = VtxUtilTextSetX(arguments.handle());
        if (isInserted) {
            // Recorded as well: a deletion recorded later is one of what is picked.
            VtxUtilPickClear();
            VtxUtilPickText(created);
        }
    }
    if (!isInserted) {
        showError();
        return;
    }
    // What the mouse does is not for a macro that inserts a text to decide.
    const sdk::AppLock unrecorded(false);
    VtxUtilMouseSetMode(MouseMode_Selector);
}

void TextPlacement::edit(long text)
{
    char* words = nullptr;
    toolbox::ArgList query;
    query.appendArbParam("TextID", text);
    query.appendStringPtr("Text", &words);
    if (!VtxUtilTextGetX(query.handle())) {
        showError();
        return;
    }
    TextDialog dialog(tr("Edit Text"), &m_window);
    dialog.setText(QString::fromStdString(toolbox::takeHostString(words)));
    if (dialog.exec() != QDialog::Accepted) {
        return;
    }
    toolbox::ArgList arguments;
    arguments.appendArbParam("TextID", text);
    arguments.appendString("Text", dialog.text().toStdString());
    const sdk::AppLock lock;
    if (!VtxUtilTextSetX(arguments.handle())) {
        showError();
    }
}

} // namespace vantrix::app
