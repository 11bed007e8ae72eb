#pragma once

#include <QObject>

namespace vantrix::app {

/* Installed on the application, it keeps tool tips from being shown while "Interface" / "ShowToolTips" is off. */
class ToolTipFilter : public QObject
{
public:
    using QObject::QObject;

    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace vantrix::app
