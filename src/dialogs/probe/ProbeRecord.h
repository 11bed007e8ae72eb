#pragma once

#include "api/VtxUtilProbe.h"

#include <QString>

#include <array>
#include <map>
#include <memory>
#include <optional>
#include <vector>

namespace vantrix::sdk::ui::dialogs {

/// One probe with what it found then.
struct ProbeRecord
{
    /// What the host's last probe found; nothing when that found nothing. Number and pin are left to the caller.
    static std::optional<ProbeRecord> ofLastProbe();

    /// How far two probes are apart; nothing where they were not made in the same coordinates, or where those are angle
    /// and radius.
    std::optional<double> distanceTo(ProbeRecord const& other) const;

    long number = 0; ///< from 1 in the session
    bool isPinned = false;
    long dataSet = 0; ///< its unique identifier
    PlotType_e plotType = PlotType_Sketch;
    QString item; ///< "Zone 1: Wing", "X1", "Line map 2: Lift, point 7"

    /// X, Y and Z, in a polar plot theta and R; of a probe along an axis the place on it alone.
    std::array<std::optional<double>, 3> position;

    /// By name those of the variables, or of the line maps, that had one.
    std::map<QString, double> values;
    std::vector<QString> names; ///< of the values, in the order of the data
    std::shared_ptr<VtxProbeInfo> info;

private:
    void addValue(QString const& name, double value);
    void takeField();
    void takeLine();
};

} // namespace vantrix::sdk::ui::dialogs
