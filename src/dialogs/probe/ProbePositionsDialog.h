#pragma once

#include "propertymanager/LineProbePosSpinBoxIncDecCalculator.h"
#include "ui/QtDialogAbstract.h"

#include <QString>

#include <array>
#include <vector>

namespace vantrix::sdk::ui::dialogs {

/// "Probe Several Positions": probes a field plot at positions that are typed or pasted, one a line, and a line plot at
/// places on one of its axes. What is found is listed in the probe history.
class ProbePositionsDialog : public vantrix::dialogs::common::QtDialogAbstract
{
    Q_OBJECT

public:
    using Position = std::array<double, 3>;

    /// The one dialog of the process. The first call creates it as a child of the parent; it goes with the parent.
    static ProbePositionsDialog& getInstance(QWidget& parent);

    /// Reads lines of numbers parted by blanks, tabs, commas or semicolons; empty lines and lines that begin with # are
    /// left out. A comma between digits does not part where something else does: it may be meant as a decimal point.
    /// @param dimension  how many numbers a line has to have, 1 to 3
    /// @param problem  what is wrong with which line; the positions are then empty
    static std::vector<Position> parse(QString const& text, int dimension, QString& problem);

    ~ProbePositionsDialog() override;

    /// Chooses the axis of a line plot that positions are on; does nothing for one that the present plot does not have.
    void setLineAxis(propertymanager::LineProbeAxis_e axis, int number);

    /// Brings the form in step with the plot.
    void launch() override;

private:
    explicit ProbePositionsDialog(QWidget& parent);
    void createForm();
    void followPlot();
    void probe();

    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace vantrix::sdk::ui::dialogs
