#include "ui/TabWidgetPersistence.h"

#include <QSettings>
#include <QTabWidget>

namespace vantrix::dialogs::common {

TabWidgetPersistence::TabWidgetPersistence(QTabWidget* tabWidget)
    : m_tabWidget(tabWidget)
{}

void TabWidgetPersistence::save(QSettings& settings) const
{
    if (m_tabWidget && m_tabWidget->currentWidget()) {
        settings.setValue(m_tabWidget->objectName(), m_tabWidget->currentWidget()->objectName());
    }
}

void TabWidgetPersistence::restore(QSettings const& settings)
{
    if (!m_tabWidget) {
        return;
    }
    QString const name = settings.value(m_tabWidget->objectName()).toString();
    for (int index = 0; index < m_tabWidget->count(); ++index) {
        if (m_tabWidget->widget(index)->objectName() == name && m_tabWidget->isTabEnabled(index)) {
            m_tabWidget->setCurrentIndex(index);
        }
    }
}

} // namespace vantrix::dialogs::common
