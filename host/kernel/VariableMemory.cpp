#include "kernel/VariableMemory.h"

#include "kernel/Document.h"
#include "kernel/FieldValues.h"
#include "kernel/ShownVariables.h"
#include "kernel/StateChanges.h"
#include "kernel/StyleStore.h"
#include "kernel/UndoStack.h"
#include "kernel/VariableFiles.h"

#include <algorithm>
#include <unistd.h>

namespace vantrix::kernel {

namespace {

double machineMemory()
{
    return static_cast<double>(sysconf(_SC_PHYS_PAGES)) * static_cast<double>(sysconf(_SC_PAGESIZE));
}

std::size_t bytesOf(vtkDataArray& values)
{
    return static_cast<std::size_t>(values.GetActualMemorySize()) * 1024;
}

} // namespace

/* One variable of the data sets of one identifier, in all zones. */
struct VariableMemory::Candidate
{
    long dataSet = 0;
    long variable = 0;
    unsigned long lastUse = 0;
    double bytes = 0.0;
};

VariableMemory::VariableMemory(Document& document, StyleStore& style, StateChanges& changes, UndoStack& undo)
    : memoryInUse([] { return 1.0 - availableMemory() / machineMemory(); })
    , m_document(document)
    , m_style(style)
    , m_changes(changes)
    , m_undo(undo)
{}

void VariableMemory::forEachDataSet(const std::function<void(const DataSet&)>& visit) const
{
    for (const auto& page : m_document.pages()) {
        for (const auto& frame : page->frames) {
            if (frame->dataSet()) {
                visit(*frame->dataSet());
            }
        }
    }
    m_undo.forEachDataSet(visit);
}

VariableMemory::Shown VariableMemory::shown() const
{
    Shown result;
    for (const auto& page : m_document.pages()) {
        for (const auto& frame : page->frames) {
            if (frame->dataSet()) {
                result[frame->dataSet()->id()].merge(shownVariables(m_style, *frame));
            }
        }
    }
    return result;
}

std::vector<VariableMemory::Candidate> VariableMemory::candidates(const Shown& shown) const
{
    std::map<std::pair<long, long>, Candidate> found;
    forEachDataSet([&](const DataSet& data) {
        const auto inPlots = shown.find(data.id());
        for (long variable = 1; variable <= data.variableCount(); ++variable) {
            if (inPlots != shown.end() && inPlots->second.count(variable) > 0) {
                continue;
            }
            Candidate& candidate = found[{data.id(), variable}];
            candidate.dataSet = data.id();
            candidate.variable = variable;
            for (long zone = 1; zone <= data.zoneCount(); ++zone) {
                const FieldArray* field = data.field(zone, variable);
                if (field && field->loader && field->values && field->values.Get() == field->loaded.Get()) {
                    candidate.lastUse = std::max(candidate.lastUse, field->lastUse);
                    candidate.bytes += static_cast<double>(bytesOf(*field->values));
                }
            }
        }
    });
    std::vector<Candidate> result;
    for (const auto& [place, candidate] : found) {
        if (candidate.bytes > 0.0) {
            result.push_back(candidate);
        }
    }
    std::ranges::sort(result, {}, &Candidate::lastUse);
    return result;
}

bool VariableMemory::unload(const Candidate& candidate) const
{
    bool isUnloaded = false;
    forEachDataSet([&](const DataSet& data) {
        if (data.id() != candidate.dataSet) {
            return;
        }
        for (const auto& zone : data.zones) {
            const FieldArray& field = zone->fields[static_cast<std::size_t>(candidate.variable - 1)];
            const vtkSmartPointer<vtkDataArray> values = field.values;
            if (field.unload()) {
                zone->grids().forget(*values);
                isUnloaded = true;
            }
        }
    });
    return isUnloaded;
}

bool VariableMemory::unloadAll(unsigned long sparedFrom) const
{
    bool isUnloaded = false;
    for (const Candidate& candidate : candidates(shown())) {
        isUnloaded = (candidate.lastUse <= sparedFrom && unload(candidate)) || isUnloaded;
    }
    return isUnloaded;
}

bool VariableMemory::unloadOldest() const
{
    const auto fraction = [&](const char* path) { return m_style.real(StyleStore::processScope, m_style.entry(path)); };
    double inUse = memoryInUse();
    if (inUse <= fraction("Limits/LodThresholdMaxFract")) {
        return false;
    }
    const double enough = fraction("Limits/LodThresholdMinFract");
    bool isUnloaded = false;
    for (const Candidate& candidate : candidates(shown())) {
        if (inUse < enough) {
            break;
        }
        isUnloaded = unload(candidate) || isUnloaded;
        inUse -= candidate.bytes / machineMemory();
    }
    return isUnloaded;
}

long VariableMemory::strategy() const
{
    return m_style.integer(StyleStore::processScope, m_style.entry("FileConfig/LoadOnDemand/UnloadStrategy"));
}

void VariableMemory::tidy()
{
    const bool isLoaded = m_readCount != VariableFiles::readCount();
    bool isUnloaded = false;
    const long present = strategy();
    if (present == UnloadStrategy_MinimizeMemoryUse) {
        Shown now = shown();
        if (!m_isTidied || isLoaded || now != m_tidied) {
            isUnloaded = unloadAll(m_isTidied ? m_latestUse : FieldArray::latestUse());
            m_tidied = std::move(now);
        }
    } else if (present == UnloadStrategy_Auto) {
        isUnloaded = unloadOldest();
    }
    m_isTidied = present == UnloadStrategy_MinimizeMemoryUse;
    m_readCount = VariableFiles::readCount();
    m_latestUse = FieldArray::latestUse();
    if (isLoaded || isUnloaded) {
        m_changes.send(StateChange_DataAvailability);
    }
}

std::size_t VariableMemory::bytesOfValues() const
{
    std::set<vtkDataArray*> counted;
    std::size_t bytes = 0;
    forEachDataSet([&](const DataSet& data) {
        for (const auto& zone : data.zones) {
            for (const FieldArray& field : zone->fields) {
                if (field.values && counted.insert(field.values).second) {
                    bytes += bytesOf(*field.values);
                }
            }
        }
    });
    return bytes;
}

} // namespace vantrix::kernel
