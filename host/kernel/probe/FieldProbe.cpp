#include "kernel/probe/FieldProbe.h"

#include "kernel/AxisVariables.h"
#include "kernel/DataError.h"
#include "kernel/StyleStore.h"

#include <algorithm>

namespace vantrix::kernel {

namespace {

/* How far from a surface, in sizes of its zone, a position still means it. */
constexpr double surfaceTolerance = 0.01;

/* How far outside, in sizes of the zone, a position still belongs to the cell next to it: rounding. */
constexpr double borderTolerance = 1e-6;

const FieldArray* loadedField(const Zone& zone, long variable)
{
    const auto at = static_cast<std::size_t>(variable - 1);
    return at < zone.fields.size() && zone.fields[at].isLoaded() ? &zone.fields[at] : nullptr;
}

double weightedSum(vtkDataArray& values, const MeshPlace& place)
{
    double sum = 0.0;
    for (std::size_t i = 0; i < place.points.size(); ++i) {
        sum += place.weights[i] * values.GetComponent(place.points[i], 0);
    }
    return sum;
}

double mean(vtkDataArray& values, const std::vector<long>& positions)
{
    double sum = 0.0;
    for (const long position : positions) {
        sum += values.GetComponent(position, 0);
    }
    return sum / static_cast<double>(positions.size());
}

void checkIndex(const char* name, long index, long last)
{
    if (index < 1 || index > last) {
        throw DataError(std::string(name) + " is " + std::to_string(index) + "; it must be from 1 to " +
                        std::to_string(last) + ".");
    }
}

} // namespace

FieldProbe::FieldProbe(const StyleStore& style, const Frame& frame, ProbeMeshes& meshes)
    : m_style(style)
    , m_frameId(frame.id())
    , m_meshes(meshes)
    , m_dataSet(frame.dataSet())
    , m_blanking(ValueBlanking::read(style, frame))
{
    const long plotType = style.integer(frame.id(), style.entry("PlotType"));
    m_isThreeD = plotType == PlotType_Cartesian3D;
    if (!m_isThreeD && plotType != PlotType_Cartesian2D) {
        throw DataError(
            "A position or point can be probed in a 2D or 3D Cartesian plot; the active frame has another.");
    }
    if (!m_dataSet || m_dataSet->zoneCount() == 0) {
        throw DataError("The active frame has no data to probe.");
    }
    const AxisVariables axes = axisVariables(style, frame);
    m_coordinates = {axes.x, axes.y, axes.z};
}

/* Where zones overlap, the last one covers the others. */
std::vector<FieldProbe::Candidate> FieldProbe::candidates(bool isInVolume) const
{
    std::vector<Candidate> result;
    const long activeEntry = m_style.entry("ActiveFieldMaps");
    for (long zone = m_dataSet->zoneCount(); zone >= 1; --zone) {
        if (!m_dataSet->zoneEnabled[static_cast<std::size_t>(zone - 1)] ||
            !m_style.flag(m_frameId, activeEntry, zone)) {
            continue;
        }
        if (const auto part = partToSearch(zone, isInVolume)) {
            result.push_back(candidate(zone, *part, isInVolume));
        }
    }
    return result;
}

FieldProbe::Candidate FieldProbe::candidate(long number, ProbeMesh::Part part, bool isInVolume) const
{
    Candidate result{number, part, isInVolume || !m_isThreeD};
    const Zone& zone = *m_dataSet->zone(number);
    if (!result.isExact && part == ProbeMesh::Part::Cells && zone.isOrdered() && zone.topologicalDimension() == 3) {
        result.planes.emplace(m_style, m_frameId, number, zone.dimensions());
    }
    return result;
}

std::optional<ProbeMesh::Part> FieldProbe::partToSearch(long number, bool isInVolume) const
{
    const Zone& zone = *m_dataSet->zone(number);
    const bool isVolume = zone.topologicalDimension() == 3;
    if (m_isThreeD && isInVolume) {
        return isVolume ? std::optional(ProbeMesh::Part::Cells) : std::nullopt;
    }
    const long surfacesEntry = m_style.entry("FieldMap/Surfaces/SurfacesToPlot");
    if (!isVolume) {
        return ProbeMesh::Part::Cells;
    }
    switch (m_style.integer(m_frameId, surfacesEntry, number)) {
    case SurfacesToPlot_None:
        return std::nullopt;
    case SurfacesToPlot_BoundaryFaces:
        break;
    case SurfacesToPlot_ExposedFaces:
        if (m_isThreeD || !zone.isOrdered()) {
            return ProbeMesh::Part::ExposedFaces;
        }
        break;
    default: // faces inside of the volume are drawn: they are found through its cells
        if (m_isThreeD) {
            return ProbeMesh::Part::Cells;
        }
        break;
    }
    return zone.isOrdered() && !m_isThreeD ? ProbeMesh::Part::FirstLayer : ProbeMesh::Part::Surface;
}

std::shared_ptr<ProbeMesh> FieldProbe::mesh(long zone, ProbeMesh::Part part)
{
    return m_meshes.mesh(*m_dataSet, zone, m_coordinates, part, m_blanking.of(*m_dataSet, zone));
}

/* All cells of a zone, those included that the plot leaves out. */
std::shared_ptr<ProbeMesh> FieldProbe::wholeMesh(long zone)
{
    return m_meshes.mesh(*m_dataSet, zone, m_coordinates, ProbeMesh::Part::Cells);
}

bool FieldProbe::findIn(Candidate& candidate, const FieldPositionRequest& request, FieldPlace& best, long startCell)
{
    if (!candidate.mesh) {
        candidate.mesh = mesh(candidate.zone, candidate.part);
    }
    ProbeMesh& searched = *candidate.mesh;
    FieldPlace found{candidate.zone, candidate.mesh, {}};
    bool isFound = false;
    if (request.isNearestPoint) {
        isFound = searched.findNearestPoint(request.position, found.place);
    } else {
        // What is drawn need not be met exactly, but the inside of a volume or of a flat plot has a border.
        const int dimension = m_dataSet->zone(candidate.zone)->topologicalDimension();
        const int cellDimension = candidate.part == ProbeMesh::Part::Cells ? dimension : 2;
        const bool fillsPlot = cellDimension == (m_isThreeD ? 3 : 2);
        const bool isExact = fillsPlot && candidate.isExact;
        const double tolerance = (isExact ? borderTolerance : surfaceTolerance) * searched.size();
        isFound = searched.isNear(request.position, tolerance) &&
                  ((fillsPlot && searched.findInside(request.position, found.place, startCell)) ||
                   searched.findClosest(request.position, tolerance, found.place));
    }
    if (isFound && candidate.planes && !request.isNearestPoint) {
        isFound = putOnPlane(*m_dataSet->zone(candidate.zone), *candidate.planes, found);
    }
    if (!isFound || (best.mesh && best.place.distance2 <= found.place.distance2)) {
        return false;
    }
    best = std::move(found);
    return true;
}

/* Gives a place in a volume the cell of the plane that it is on; false where that is not drawn. */
bool FieldProbe::putOnPlane(const Zone& zone, const ShownPlanes& planes, FieldPlace& place)
{
    std::array<double, 3> indices{0.0, 0.0, 0.0};
    for (std::size_t corner = 0; corner < place.place.points.size(); ++corner) {
        const std::array<long, 3> at = pointIndices(zone, place.place.points[corner]);
        for (std::size_t axis = 0; axis < indices.size(); ++axis) {
            indices[axis] += place.place.weights[corner] * static_cast<double>(at[axis]);
        }
    }
    const auto plane = planes.at(indices);
    if (plane) {
        std::array<long, 3> first = place.mesh->cellIndex(zone, place.place.cell).first;
        first[static_cast<std::size_t>(plane->family)] = plane->index;
        place.planeCell = orderedCellIndex(zone, first, plane->family);
    }
    return plane.has_value();
}

bool FieldProbe::find(const FieldPositionRequest& request, FieldPlace& place, const std::set<long>* zones,
                      const FieldPlace* start)
{
    place.mesh = nullptr;
    FieldPositionRequest sought = request;
    if (!m_isThreeD) {
        sought.position[2] = 0.0;
    }
    auto& shown = m_candidates[request.isInVolume ? 1 : 0];
    std::vector<Candidate> named;
    if (zones) {
        named = candidatesAmong(*zones, request.isInVolume);
    } else if (!shown) {
        shown = candidates(request.isInVolume);
    }
    std::vector<Candidate>& searched = zones ? named : *shown;
    if (start) { // before all others
        const auto first = std::find_if(searched.begin(), searched.end(),
                                        [&](const Candidate& candidate) { return candidate.zone == start->zone; });
        if (first != searched.end() && findIn(*first, sought, place, start->place.cell) &&
            place.place.distance2 == 0.0) {
            return true;
        }
    }
    for (Candidate& candidate : searched) {
        if (findIn(candidate, sought, place, -1) && place.place.distance2 == 0.0) {
            return true;
        }
    }
    return place.mesh != nullptr;
}

std::vector<FieldProbe::Candidate> FieldProbe::candidatesAmong(const std::set<long>& zones, bool isInVolume) const
{
    std::vector<Candidate> result;
    for (auto zone = zones.rbegin(); zone != zones.rend(); ++zone) {
        if (!m_dataSet->zone(*zone)) {
            throw DataError("There is no zone " + std::to_string(*zone) + "; zones are numbered from 1 to " +
                            std::to_string(m_dataSet->zoneCount()) + ".");
        }
        if (const auto part = partToSearch(*zone, isInVolume)) {
            result.push_back(candidate(*zone, *part, isInVolume));
        }
    }
    return result;
}

FieldPlace FieldProbe::placeOf(long number, const CellIndex& cell, bool isInVolume)
{
    FieldPlace place;
    const Zone* zone = m_dataSet->zone(number);
    const auto part = zone ? partToSearch(number, isInVolume) : std::nullopt;
    if (part) {
        place.zone = number;
        place.mesh = mesh(number, *part);
        place.place.cell = place.mesh->findCell(*zone, cell);
    }
    return place;
}

CellIndex FieldProbe::cellIndex(const FieldPlace& place) const
{
    return place.planeCell ? *place.planeCell
                           : place.mesh->cellIndex(*m_dataSet->zone(place.zone), std::max(place.place.cell, 0L));
}

std::optional<double> FieldProbe::value(const FieldPlace& place, long variable) const
{
    const Zone& zone = *m_dataSet->zone(place.zone);
    const FieldArray* field = loadedField(zone, variable);
    if (!field) {
        return std::nullopt;
    }
    if (field->location == ValueLocation_Nodal) {
        return weightedSum(*field->values, place.place);
    }
    if (place.place.cell < 0) {
        return std::nullopt;
    }
    return field->values->GetComponent(cellIndex(place).storage, 0);
}

FieldProbeResult FieldProbe::newResult(long number) const
{
    const Zone& zone = *m_dataSet->zone(number);
    FieldProbeResult result;
    result.zone = number;
    result.name = zone.name();
    for (long variable = 1; variable <= m_dataSet->variableCount(); ++variable) {
        const FieldArray* field = m_dataSet->field(number, variable);
        result.fields.push_back({field ? field->location : ValueLocation_Nodal});
    }
    return result;
}

/* Zones that meet share no points: behind a border face is the cell of another zone that has the same face. */
void FieldProbe::findNeighborsInOtherZones(ProbedCell& cell, long zone)
{
    const int dimension = m_dataSet->zone(zone)->topologicalDimension();
    const std::shared_ptr<ProbeMesh> own = wholeMesh(zone);
    std::vector<std::pair<ProbedCell::Face*, std::vector<Position>>> borders;
    for (ProbedCell::Face& face : cell.faces) {
        if (face.neighbor == 0 && static_cast<int>(face.points.size()) >= dimension) {
            borders.push_back({&face, own->pointsAt(face.points)});
        }
    }
    for (long other = 1; !borders.empty() && other <= m_dataSet->zoneCount(); ++other) {
        const Zone& otherZone = *m_dataSet->zone(other);
        if (other == zone || !m_dataSet->zoneEnabled[static_cast<std::size_t>(other - 1)] ||
            otherZone.topologicalDimension() != dimension) {
            continue;
        }
        const std::shared_ptr<ProbeMesh> searched = wholeMesh(other);
        std::erase_if(borders, [&](const auto& border) {
            const long found = searched->cellWithCorners(border.second);
            if (found >= 0) {
                border.first->neighbor = searched->probedCell(otherZone, found).number;
                border.first->neighborZone = other;
            }
            return found >= 0;
        });
    }
}

std::optional<FieldProbeResult> FieldProbe::probe(const FieldPositionRequest& request)
{
    FieldPlace found;
    if (!find(request, found)) {
        return std::nullopt;
    }
    const Zone& zone = *m_dataSet->zone(found.zone);
    FieldProbeResult result = newResult(found.zone);
    result.position = found.place.position;
    result.point = request.isNearestPoint ? found.place.points.front() + 1 : 0;
    if (found.place.cell >= 0) {
        result.cell = found.planeCell ? ProbedCell::ofOrdered(zone, *found.planeCell)
                                      : found.mesh->probedCell(zone, found.place.cell);
        findNeighborsInOtherZones(*result.cell, found.zone);
    }
    for (long variable = 1; variable <= m_dataSet->variableCount(); ++variable) {
        result.values.push_back(value(found, variable));
        const FieldArray* field = loadedField(zone, variable);
        std::optional<double> center;
        if (field && result.cell) {
            center = field->location == ValueLocation_Nodal
                         ? mean(*field->values, result.cell->corners)
                         : field->values->GetComponent(result.cell->index.storage, 0);
        }
        result.cellCenterValues.push_back(center);
    }
    return result;
}

FieldProbeResult FieldProbe::probe(const FieldIndexRequest& request)
{
    const long number = request.zoneIdentity != 0 ? m_dataSet->zoneNumber(request.zoneIdentity) : request.zone;
    if (request.zoneIdentity != 0 && number == 0) {
        throw DataError("The zone that was probed, then number " + std::to_string(request.zone) +
                        ", is no longer in the data of the active frame.");
    }
    checkIndex("Zone", number, m_dataSet->zoneCount());
    const Zone& zone = *m_dataSet->zone(number);
    const auto [iMax, jMax, kMax] = zone.dimensions();
    checkIndex("I", request.i, iMax);
    checkIndex("J", request.j, zone.isOrdered() ? jMax : 1);
    checkIndex("K", request.k, zone.isOrdered() ? kMax : 1);

    FieldProbeResult result = newResult(number);
    result.picked = {request.i, request.j, request.k, number, zone.identity()};
    const long point =
        zone.isOrdered() ? pointNumber(zone, {request.i - 1, request.j - 1, request.k - 1}) : request.i - 1;
    result.point = point + 1;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const FieldArray* field = m_coordinates[axis] > 0 ? loadedField(zone, m_coordinates[axis]) : nullptr;
        if (field && field->location == ValueLocation_Nodal) {
            result.position[axis] = field->values->GetComponent(point, 0);
        }
    }
    std::vector<long> cells;
    for (long variable = 1; variable <= m_dataSet->variableCount(); ++variable) {
        const FieldArray* field = loadedField(zone, variable);
        std::optional<double> value;
        if (field && field->location == ValueLocation_Nodal) {
            value = field->values->GetComponent(point, 0);
        } else if (field) {
            if (cells.empty()) {
                cells = wholeMesh(number)->cellsAround(point);
            }
            if (!cells.empty()) {
                value = mean(*field->values, cells);
            }
        }
        result.values.push_back(value);
    }
    result.cellCenterValues.resize(result.values.size());
    return result;
}

} // namespace vantrix::kernel
