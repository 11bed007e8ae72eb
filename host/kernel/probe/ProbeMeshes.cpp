#include "kernel/probe/ProbeMeshes.h"

#include "kernel/Document.h"

#include <algorithm>
#include <utility>

namespace vantrix::kernel {

std::shared_ptr<ProbeMesh> ProbeMeshes::mesh(const DataSet& dataSet, long zone, const CoordinateVariables& coordinates,
                                             ProbeMesh::Part part, std::shared_ptr<const BlankedZone> blanked)
{
    const vtkSmartPointer<vtkDataSet> grid = zoneGrid(dataSet, zone, coordinates);
    const Key key{dataSet.id(), zone, coordinates, part, blanked != nullptr};
    const auto found = m_meshes.find(key);
    if (found != m_meshes.end() && found->second->isOf(*grid, blanked.get())) {
        return found->second;
    }
    dropUnused();
    return m_meshes[key] = std::make_shared<ProbeMesh>(*dataSet.zone(zone), *grid, part, std::move(blanked));
}

void ProbeMeshes::dropUnused()
{
    std::map<long, long> zoneCounts; /* by the identifiers of the data sets that are shown */
    for (const auto& page : m_document.pages()) {
        for (const auto& frame : page->frames) {
            if (frame->dataSet()) {
                zoneCounts[frame->dataSet()->id()] = frame->dataSet()->zoneCount();
            }
        }
    }
    std::erase_if(m_meshes, [&](const auto& entry) {
        const auto shown = zoneCounts.find(std::get<0>(entry.first));
        return shown == zoneCounts.end() || std::get<1>(entry.first) > shown->second;
    });
}

} // namespace vantrix::kernel
