#pragma once

#include "ui/QtDialogAbstract.h"

namespace vantrix::sdk::ui::dialogs {

/// "Probe History": the probes of the session as a table, to be pinned, compared, probed again, copied and exported.
class ProbeHistoryDialog : public vantrix::dialogs::common::QtDialogAbstract
{
    Q_OBJECT

public:
    /// The one dialog of the process. The first call creates it as a child of the parent; it goes with the parent.
    static ProbeHistoryDialog& getInstance(QWidget& parent);

    ~ProbeHistoryDialog() override;

    /// Writes the table as text: a line for the header and one for each probe, cells parted by tabs.
    /// @returns what went wrong; empty when nothing did
    QString exportTo(QString const& file) const;

private:
    explicit ProbeHistoryDialog(QWidget& parent);

    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace vantrix::sdk::ui::dialogs
