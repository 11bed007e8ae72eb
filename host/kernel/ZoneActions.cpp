#include "kernel/ZoneActions.h"

#include "kernel/AxisVariables.h"
#include "kernel/DataError.h"
#include "kernel/DataHistory.h"
#include "kernel/Document.h"
#include "kernel/Kernel.h"
#include "kernel/PlotDefaults.h"
#include "kernel/Progress.h"
#include "kernel/StateChanges.h"
#include "kernel/StyleStore.h"

namespace vantrix::kernel {

namespace {

void expectFieldPlot(long plotType, long kMax)
{
    if (plotType != PlotType_Cartesian2D && plotType != PlotType_Cartesian3D) {
        throw DataError(
            "The frame shows data, but not in a 2D or 3D Cartesian plot; a zone is created in one of those.");
    }
    if (kMax > 1 && plotType == PlotType_Cartesian2D) {
        throw DataError("A 2D Cartesian plot has no third axis: the K dimension must be 1, not " +
                        std::to_string(kMax) + ".");
    }
}

} // namespace

template<class Description>
void ZoneActions::createZone(const Description& description)
{
    Document& document = m_kernel.document();
    Frame* frame = document.activeFrame();
    if (!frame) {
        throw DataError("There is no frame to create a zone in. Create a frame first.");
    }
    const Progress progress(m_kernel.frontEnd(), "Creating zone");
    if (!frame->dataSet()) {
        DataSet made = document.newDataSet();
        DataHistory::apply(DataHistory::creating(description, {1, 2, description.kMax > 1 ? 3 : 0}), made,
                           progress.report());
        document.attachDataSet(*frame, std::make_shared<const DataSet>(std::move(made)));
        PlotDefaults::apply(*frame);
        return;
    }
    StyleStore& style = m_kernel.style();
    expectFieldPlot(style.integer(frame->id(), style.entry("PlotType")), description.kMax);
    const AxisVariables axes = axisVariables(style, *frame);
    DataSet changed = *frame->dataSet();
    DataHistory::apply(DataHistory::creating(description, {axes.x, axes.y, axes.z}), changed, progress.report());
    document.replaceDataSet(std::move(changed), {StateChange_ZonesAdded});
    for (const auto& page : document.pages()) {
        for (const auto& each : page->frames) {
            if (each->dataSet() == frame->dataSet()) {
                PlotDefaults(style, *each).applyToZone(each->dataSet()->zoneCount());
            }
        }
    }
}

template void ZoneActions::createZone(const CircularZone&);
template void ZoneActions::createZone(const RectangularZone&);

void ZoneActions::remove(const std::set<long>& zones)
{
    const std::shared_ptr<const DataSet> present = m_kernel.document().activeDataSet();
    if (!present) {
        throw DataError("The active frame has no data set whose zones could be deleted.");
    }
    if (zones.empty()) {
        throw DataError("No zones are named. Name at least one zone to delete.");
    }
    for (const long zone : zones) {
        if (!present->zone(zone)) {
            throw DataError("There is no zone " + std::to_string(zone) + "; zones are numbered from 1 to " +
                            std::to_string(present->zoneCount()) + ".");
        }
    }
    if (static_cast<long>(zones.size()) == present->zoneCount()) {
        throw DataError("Cannot delete all zones of a data set. Leave at least one.");
    }
    DataSet changed = *present;
    DataHistory::apply(DataHistory::deleting(zones), changed, {});
    m_kernel.document().replaceDataSet(std::move(changed), {StateChange_ZonesDeleted}, {zones.begin(), zones.end()});
}

void ZoneActions::load(long number, const std::set<long>& variables)
{
    const std::shared_ptr<const DataSet> present = m_kernel.document().activeDataSet();
    const Zone* zone = present ? present->zone(number) : nullptr;
    if (!zone) {
        throw DataError("There is no zone " + std::to_string(number) + " whose variables could be loaded.");
    }
    bool isChanged = false;
    for (const long variable : variables) {
        const FieldArray* field = present->field(number, variable);
        if (!field) {
            throw DataError("There is no variable " + std::to_string(variable) + "; variables are numbered from 1 to " +
                            std::to_string(present->variableCount()) + ".");
        }
        if (field->isLoaded() || !field->isAvailable()) {
            continue;
        }
        if (!field->load()) {
            throw DataError("Variable \"" + present->variables[static_cast<std::size_t>(variable - 1)].name +
                            "\" of zone " + std::to_string(number) + " cannot be read any more.");
        }
        isChanged = true;
    }
    if (isChanged) {
        m_kernel.stateChanges().send(StateChange_DataAvailability);
    }
}

} // namespace vantrix::kernel
