#include "propertybindings/EditRefusal.h"

#include "api/VtxUtil.h"
#include "property/InvalidPropertyValueException.h"

#include <QTimer>
#include <QVariant>
#include <QWidget>

namespace vantrix::sdk::ui::dialogs::propertybindings {

namespace {
constexpr char refusedProperty[] = "vantrixRefusedEdit";
}

void showRefusal(InvalidPropertyValueException const& exception)
{
    if (!exception.message().empty()) {
        VtxUtilDialogMessageBox(exception.what(), MessageBox_Error);
    }
}

void returnToRefusedEdit(QWidget& widget)
{
    widget.activateWindow();
    widget.setFocus(Qt::OtherFocusReason);
    widget.setProperty(refusedProperty, true);
    QTimer::singleShot(0, &widget, [&widget] { widget.setProperty(refusedProperty, QVariant()); });
}

bool isRefusedEdit(QWidget const& widget)
{
    return widget.property(refusedProperty).toBool();
}

} // namespace vantrix::sdk::ui::dialogs::propertybindings
