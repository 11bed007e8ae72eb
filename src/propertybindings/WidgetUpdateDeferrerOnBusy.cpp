#include "propertybindings/WidgetUpdateDeferrerOnBusy.h"

#include <QAbstractItemView>
#include <QEvent>

#include <utility>

namespace vantrix::sdk::ui::dialogs::propertybindings {

WidgetUpdateDeferrerOnBusy::WidgetUpdateDeferrerOnBusy(QComboBox& comboBox, boost::function<void()> update)
    : m_comboBox(&comboBox)
    , m_update(std::move(update))
{
    comboBox.view()->installEventFilter(this);
}

bool WidgetUpdateDeferrerOnBusy::defer()
{
    bool const isBusy = m_comboBox && m_comboBox->view()->isVisible();
    m_isHeldBack = m_isHeldBack || isBusy;
    return isBusy;
}

bool WidgetUpdateDeferrerOnBusy::eventFilter(QObject* /*watched*/, QEvent* event)
{
    if (event->type() == QEvent::Hide && std::exchange(m_isHeldBack, false)) {
        m_update();
    }
    return false;
}

} // namespace vantrix::sdk::ui::dialogs::propertybindings
