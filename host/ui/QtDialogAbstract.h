#pragma once

#include "propertymanager/RelevanceInterface.h"
#include "sdk/OnIdleActionPerformerSingleShot.h"
#include "ui/PersistentStateInterface.h"

#include <QDialog>

#include <map>
#include <memory>
#include <vector>

class QAbstractButton;
class QDialogButtonBox;
class QLabel;
class QSettings;

namespace vantrix::dialogs::common {

/// Base of the dialogs. A subclass builds its form on itself, creates its bindings, and gives its help action.
///
/// What the base does for every dialog, when it is shown first:
/// - while the dialog's relevance does not hold, the content and the buttons that act are disabled and a line above the
///   content tells why; Close and Help stay usable;
/// - the tab key follows the reading order, and each launch begins at the first field;
/// - Escape takes back the edit under way and closes; the rejecting button of the form's QDialogButtonBox closes;
/// - in a modeless dialog Enter ends an edit and triggers no button;
/// - the mouse wheel changes a value only in a widget that has the focus;
/// - a dialog with nothing that grows in height can be resized in width only;
/// - size, position and what was added with addPersistentState() are kept from run to run under the dialog's object
///   name, in the user's settings "vantrix/dialogs.ini" (QSettings::setPath() puts them elsewhere).
class QtDialogAbstract : public QDialog
{
    Q_OBJECT

public:
    using Relevance = boost::shared_ptr<vantrix::sdk::ui::propertymanager::RelevanceInterface const>;

    /// @param relevance  decides when the dialog may be used; null for always
    QtDialogAbstract(QWidget& parent, Relevance relevance);
    ~QtDialogAbstract() override;

    /// Shows the dialog, in front, with the focus on its first field.
    virtual void launch();

    /// Ends the edit under way and hides the dialog.
    virtual void drop();

    /// Adds a Help button to the form's QDialogButtonBox where it has none, and lets it and F1 trigger the action.
    void setHelpAction(QAction* action);

    /// Lets the dialog open beside the plot, where the user has not put it anywhere yet. See placeBesidePlot().
    void openBesidePlot() { m_opensBesidePlot = true; }

    /// Keeps a further piece of state: restored when the dialog is shown first, saved whenever it is hidden.
    void addPersistentState(std::unique_ptr<PersistentStateInterface> state);

    void setVisible(bool visible) override;

public Q_SLOTS:
    void reject() override;

protected:
    bool event(QEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    void prepare();
    void wrapContent();
    void leaveRoomForTitle();
    void setUpButtons();
    void setUpKeyboard();
    void focusFirstField();
    void limitHeight();
    void applyRelevance();
    void setActionButtonsEnabled(bool enabled);
    void savePersistentState();
    void restorePersistentState();

    Relevance m_relevance;
    vantrix::sdk::OnIdleActionPerformerSingleShot m_applyRelevanceOnIdle;
    boost::signals2::scoped_connection m_relevanceConnection;
    std::vector<std::unique_ptr<PersistentStateInterface>> m_persistentStates;
    std::unique_ptr<QSettings> m_settings; ///< with the group of the dialog open, from the first launch on
    bool m_prepared = false;
    bool m_opensBesidePlot = false;
    bool m_relevant = true;
    QDialogButtonBox* m_buttonBox = nullptr;
    QWidget* m_content = nullptr;
    QLabel* m_reason = nullptr;
    std::map<QAbstractButton*, bool> m_buttonStates; ///< whether each button that acts is enabled when the dialog is
};

} // namespace vantrix::dialogs::common
