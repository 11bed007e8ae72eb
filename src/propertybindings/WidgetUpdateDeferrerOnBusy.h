#pragma once

#include <boost/function.hpp>

#include <QComboBox>
#include <QPointer>

namespace vantrix::sdk::ui::dialogs::propertybindings {

/// Holds back the rewriting of a combo box while the user has its popup open, so that the marked row does not jump away
/// under the mouse. Rows that come and go are seen at once all the same; only the current row is left alone.
class WidgetUpdateDeferrerOnBusy : public QObject
{
public:
    /// @param update  called once when the popup has closed and an update was held back
    WidgetUpdateDeferrerOnBusy(QComboBox& comboBox, boost::function<void()> update);

    /// Whether the update has to wait; it is then made up for.
    bool defer();

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    QPointer<QComboBox> m_comboBox;
    boost::function<void()> m_update;
    bool m_isHeldBack = false;
};

} // namespace vantrix::sdk::ui::dialogs::propertybindings
