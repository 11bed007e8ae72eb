#pragma once

#include "ui/QtDialogAbstract.h"

namespace vantrix::sdk::ui::dialogs {

/// "Delete Zone": deletes the zones chosen in a list.
class DeleteZoneDialog : public vantrix::dialogs::common::QtDialogAbstract
{
    Q_OBJECT

public:
    /// The one dialog of the process. The first call creates it as a child of the parent; it goes with the parent.
    static DeleteZoneDialog& getInstance(QWidget& parent);

    /// When the dialog may be used.
    static Relevance relevance();

    ~DeleteZoneDialog() override;

private:
    explicit DeleteZoneDialog(QWidget& parent);

    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace vantrix::sdk::ui::dialogs
