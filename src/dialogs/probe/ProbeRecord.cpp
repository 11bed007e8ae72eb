#include "dialogs/probe/ProbeRecord.h"

#include "api/VtxUtil.h"
#include "dialogs/probe/ProbeQueries.h"
#include "dialogs/probe/ProbeTables.h"
#include "sdk/AppLock.h"
#include "toolbox/HostString.h"

#include <QCoreApplication>

#include <cmath>

namespace vantrix::sdk::ui::dialogs {

namespace {

QString tr(char const* text)
{
    return QCoreApplication::translate("ProbeHistory", text);
}

} // namespace

std::optional<ProbeRecord> ProbeRecord::ofLastProbe()
{
    AppLock const lock(false);
    ProbeRecord record;
    if (VtxUtilProbeFieldGetZone() != 0) {
        record.takeField();
    } else if (VtxUtilProbeLineGetMapCount() != 0) {
        record.takeLine();
    } else {
        return std::nullopt;
    }
    record.dataSet = VtxUtilDataSetGetUniqueID();
    record.plotType = VtxUtilProbeGetPlotType();
    record.info = {VtxUtilProbeInfoGet(), [](VtxProbeInfoHandle info) { VtxUtilProbeInfoDealloc(&info); }};
    return record;
}

void ProbeRecord::addValue(QString const& name, double value)
{
    if (values.insert_or_assign(name, value).second) {
        names.push_back(name);
    }
}

void ProbeRecord::takeField()
{
    item = QString::fromStdString(GetProbedItemName());
    double x = 0.0, y = 0.0, z = 0.0;
    VtxUtilProbeFieldGetPosition(&x, &y, &z);
    position = {x, y, z};
    for (VarValue_s const& value : GetFieldVarValuesForLastProbe()) {
        if (value.isValid) {
            char* name = nullptr;
            VtxUtilVarGetName(value.variable, &name);
            addValue(QString::fromStdString(toolbox::takeHostString(name)), value.value);
        }
    }
}

void ProbeRecord::takeLine()
{
    if (long const map = VtxUtilProbeLineGetPickedMap()) {
        double x = 0.0, y = 0.0;
        VtxUtilProbeLineGetPickedValues(&x, &y);
        position = {x, y, std::nullopt};
        item = tr("Line map %1, point %2").arg(probetables::lineMapText(map)).arg(VtxUtilProbeLineGetPoint());
        return;
    }
    char const axis = VtxUtilProbeLineGetAxis();
    bool const isFirst = axis == 'X' || axis == 'T';
    position[isFirst ? 0 : 1] = VtxUtilProbeLineGetPosition();
    item = probetables::axisName();
    for (LineMapValue_s const& value : GetLineProbeDependentValues()) {
        if (value.isValid) {
            addValue(probetables::lineMapText(value.lineMap), value.value);
        }
    }
}

std::optional<double> ProbeRecord::distanceTo(ProbeRecord const& other) const
{
    if (plotType != other.plotType || plotType == PlotType_PolarLine) {
        return std::nullopt;
    }
    std::array<double, 3> apart{};
    for (std::size_t axis = 0; axis < position.size(); ++axis) {
        if (position[axis].has_value() != other.position[axis].has_value()) {
            return std::nullopt;
        }
        apart[axis] = other.position[axis].value_or(0.0) - position[axis].value_or(0.0);
    }
    return std::hypot(apart[0], apart[1], apart[2]);
}

} // namespace vantrix::sdk::ui::dialogs
