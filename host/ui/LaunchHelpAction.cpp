#include "ui/LaunchHelpAction.h"

#include "api/VtxUtil.h"

#include <QDialog>

namespace vantrix::dialogs::common {

LaunchHelpAction::LaunchHelpAction(QString page, QDialog* dialog)
    : QAction(tr("Help"), dialog)
    , m_page(std::move(page))
{
    connect(this, &QAction::triggered, this, &LaunchHelpAction::launch);
}

void LaunchHelpAction::launch() const
{
    QString const name = page();
    if (!VtxUtilHelpLaunch(name.toUtf8().constData())) {
        VtxUtilDialogMessageBox(tr("There is no help page \"%1\".").arg(name).toUtf8().constData(), MessageBox_Error);
    }
}

} // namespace vantrix::dialogs::common
