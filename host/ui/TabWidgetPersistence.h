#pragma once

#include "ui/PersistentStateInterface.h"

#include <QPointer>

class QTabWidget;

namespace vantrix::dialogs::common {

/// Keeps which tab is shown. The page is remembered by its object name, so that it is found again among other tabs.
class TabWidgetPersistence : public PersistentStateInterface
{
public:
    /// @param tabWidget  not null, with an object name
    explicit TabWidgetPersistence(QTabWidget* tabWidget);

    void save(QSettings& settings) const override;
    void restore(QSettings const& settings) override;

private:
    QPointer<QTabWidget> m_tabWidget;
};

} // namespace vantrix::dialogs::common
