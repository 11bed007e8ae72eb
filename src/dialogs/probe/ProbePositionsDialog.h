#pragma once

#include "ui/QtDialogAbstract.h"

#include <QString>

#include <array>
#include <vector>

namespace vantrix::sdk::ui::dialogs {

/// "Probe Several Positions": probes a field plot at positions that are typed or pasted, one a line. What is found is
/// listed in the probe history.
class ProbePositionsDialog : public vantrix::dialogs::common::QtDialogAbstract
{
    Q_OBJECT

public:
    using Position = std::array<double, 3>;

    /// The one dialog of the process. The first call creates it as a child of the parent; it goes with the parent.
    static ProbePositionsDialog& getInstance(QWidget& parent);

    /// Reads lines of two or three numbers parted by blanks, tabs, commas or semicolons; empty lines and lines that
    /// begin with # are left out.
    /// @param problem  what is wrong with which line; the positions are then empty
    static std::vector<Position> parse(QString const& text, QString& problem);

    ~ProbePositionsDialog() override;

private:
    explicit ProbePositionsDialog(QWidget& parent);
    void probe();

    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace vantrix::sdk::ui::dialogs
