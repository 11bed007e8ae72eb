#pragma once

#include "ui/QtDialogAbstract.h"

class QListWidget;

namespace vantrix::dialogs::common {

/// "Load Variables": brings variables of one zone that are not in memory into it.
class LoadVariablesDialog : public QtDialogAbstract
{
    Q_OBJECT

public:
    /// The one dialog of the process, for a zone of the active frame's data set. The first call creates it as a child
    /// of the parent; it goes with the parent.
    static LoadVariablesDialog& getInstance(QWidget& parent, long zone);

    /// Lists what is not loaded, all of it chosen, and returns when the user has answered. Modal.
    void launch() override;

public Q_SLOTS:
    /// Loads what is chosen; stays open, after the user was told why, when that fails.
    void accept() override;

private:
    explicit LoadVariablesDialog(QWidget& parent);
    void fill();

    long m_zone = 0;
    QListWidget* m_variables;
};

} // namespace vantrix::dialogs::common
