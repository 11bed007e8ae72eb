#pragma once

#include <QObject>

class QWidget;

namespace vantrix::dialogs::common {

/// Keeps the mouse wheel from changing a value that the user only scrolls past: a spin box, combo box or slider takes
/// the wheel while it has the focus, else the wheel goes to what lies behind it.
class WheelGuard : public QObject
{
    Q_OBJECT

public:
    using QObject::QObject;

    /// Guards every such widget below the given one.
    void guard(QWidget& root);

    bool eventFilter(QObject* watched, QEvent* event) override;
};

} // namespace vantrix::dialogs::common
