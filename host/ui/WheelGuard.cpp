#include "ui/WheelGuard.h"

#include <QAbstractSlider>
#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>
#include <QScrollBar>

namespace vantrix::dialogs::common {

namespace {

bool wheelChangesValue(QWidget const& widget)
{
    return qobject_cast<QAbstractSpinBox const*>(&widget) || qobject_cast<QComboBox const*>(&widget) ||
           (qobject_cast<QAbstractSlider const*>(&widget) && !qobject_cast<QScrollBar const*>(&widget));
}

} // namespace

void WheelGuard::guard(QWidget& root)
{
    for (QWidget* const widget : root.findChildren<QWidget*>()) {
        if (wheelChangesValue(*widget)) {
            widget->installEventFilter(this);
            // With a policy that includes the wheel Qt would give the focus before the wheel event arrives.
            if (widget->focusPolicy() == Qt::WheelFocus) {
                widget->setFocusPolicy(Qt::StrongFocus);
            }
        }
    }
}

bool WheelGuard::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::Wheel && !static_cast<QWidget*>(watched)->hasFocus()) {
        event->ignore();
        return true;
    }
    return QObject::eventFilter(watched, event);
}

} // namespace vantrix::dialogs::common
