#include "app/HelpDirectory.h"

#include <QCoreApplication>
#include <QDir>

namespace vantrix::app {

QString helpDirectory()
{
    const QString installed = QCoreApplication::applicationDirPath() + QStringLiteral("/../" VX_INSTALLED_HELP);
    for (const QString& candidate : {installed, QStringLiteral(VX_SOURCE_HELP)}) {
        if (QDir(candidate).exists()) {
            return QDir::cleanPath(candidate);
        }
    }
    return {};
}

} // namespace vantrix::app
