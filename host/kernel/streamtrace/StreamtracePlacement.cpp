#include "kernel/streamtrace/StreamtracePlacement.h"

#include "kernel/AxisVariables.h"
#include "kernel/DataError.h"
#include "kernel/Document.h"
#include "kernel/Kernel.h"
#include "kernel/NumberText.h"
#include "kernel/PickList.h"
#include "kernel/ProbeService.h"
#include "kernel/StyleStore.h"

#include <vtkGenericCell.h>

#include <algorithm>
#include <cmath>
#include <numbers>
#include <string>

namespace vantrix::kernel {

namespace {

constexpr long mostStreamtraces = 5000; /* of one rake */

const Frame& activeFrame(const Kernel& kernel)
{
    const Frame* frame = kernel.document().activeFrame();
    if (!frame) {
        throw DataError("There is no frame to place streamtraces in.");
    }
    return *frame;
}

void checkRange(const char* name, long value, long first, long last)
{
    if (value < first || value > last) {
        throw DataError('"' + std::string(name) + "\" is " + std::to_string(value) + "; it must be from " +
                        std::to_string(first) + " to " + std::to_string(last) + '.');
    }
}

std::string text(const Position& position, bool isThreeD)
{
    return '(' + numberText(position[0]) + ", " + numberText(position[1]) +
           (isThreeD ? ", " + numberText(position[2]) : "") + ')';
}

Position centerOf(vtkDataSet& cells, vtkIdType number)
{
    vtkNew<vtkGenericCell> cell;
    cells.GetCell(number, cell);
    Position inCell{};
    int part = cell->GetParametricCenter(inCell.data());
    Position center{};
    std::vector<double> weights(static_cast<std::size_t>(std::max<vtkIdType>(1, cell->GetNumberOfPoints())));
    cell->EvaluateLocation(part, inCell.data(), center.data(), weights.data());
    return center;
}

} // namespace

StreamtracePlacement::StreamtracePlacement(Kernel& kernel)
    : m_kernel(kernel)
    , m_frame(activeFrame(kernel))
    , m_plotType(static_cast<PlotType_e>(kernel.style().integer(m_frame.id(), kernel.style().entry("PlotType"))))
{
    if (m_plotType != PlotType_Cartesian2D && m_plotType != PlotType_Cartesian3D) {
        throw DataError("Streamtraces can be placed in 2D and 3D Cartesian plots; the active frame has another plot.");
    }
    if (!canShow(kernel.style(), m_frame)) {
        throw DataError("The active frame has no data to place streamtraces in.");
    }
    if (!VelocitySource::read(kernel.style(), m_frame,
                              m_plotType == PlotType_Cartesian2D ? TracedPart::Plane : TracedPart::Volume, false)
             .hasVectors()) {
        throw DataError("Streamtraces follow vectors, and the plot has none: choose their variables first.");
    }
}

bool StreamtracePlacement::canShow(const StyleStore& style, const Frame& frame)
{
    const long plotType = style.integer(frame.id(), style.entry("PlotType"));
    return (plotType == PlotType_Cartesian2D || plotType == PlotType_Cartesian3D) && frame.dataSet() &&
           frame.dataSet()->zoneCount() > 0;
}

std::vector<Streamtrace> StreamtracePlacement::place(const PlacementRequest& request) const
{
    const bool isThreeD = m_plotType == PlotType_Cartesian3D;
    const StyleStore& style = m_kernel.style();
    const std::string defaults = isThreeD ? "FrameSetup/Default3DStreamtrace/" : "FrameSetup/Default2DStreamtrace/";
    const auto styled = [&](const std::string& path) { return style.integer(m_frame.id(), style.entry(path.c_str())); };

    Streamtrace made;
    const long type = request.type.value_or(styled(defaults + "StreamType"));
    checkRange("StreamType", type, Streamtrace_SurfaceLine, Streamtrace_VolumeRod);
    made.type = static_cast<Streamtrace_e>(type);
    if (!belongsTo(m_plotType, made.type)) {
        throw DataError(isThreeD ? "\"StreamType\" 1, a 2D line, is for 2D plots; a 3D plot has types 0, 2, 3 and 4."
                                 : "\"StreamType\" of a 2D plot has to be 1, a 2D line.");
    }
    const long direction = request.direction.value_or(styled(defaults + "StreamDirection"));
    checkRange("StreamDirection", direction, StreamDir_Forward, StreamDir_Both);
    made.direction = static_cast<StreamDir_e>(direction);
    const long region = request.region.value_or(request.to ? DistributionRegion_Rake : DistributionRegion_Point);
    checkRange("DistributionRegion", region, DistributionRegion_Point, DistributionRegion_SurfacesOfActiveZones);
    const long count = request.count.value_or(styled("FrameSetup/NumStreamrakePoints"));
    checkRange("NumPts", count, 1, mostStreamtraces);

    std::vector<Position> positions;
    if (region == DistributionRegion_SurfacesOfSelectedObjects) {
        positions = onSurfaces(pickedZones(), count);
    } else if (region == DistributionRegion_SurfacesOfActiveZones) {
        positions = onSurfaces({}, count);
    } else if (!request.from) {
        throw DataError("A streamtrace needs the place where it starts: \"X1\" and \"Y1\", or \"Zone\" and \"I1\".");
    } else if (region == DistributionRegion_Rake) {
        if (!request.to) {
            throw DataError("A rake needs the place where it ends: \"X2\" and \"Y2\", or \"I2\".");
        }
        positions = onRake(position(*request.from), position(*request.to), count, made.type);
    } else if (const auto start = inData(position(*request.from), made.type)) {
        positions = {*start};
    }
    if (positions.empty()) {
        throw DataError(request.from ? "Streamtrace position " + text(position(*request.from), isThreeD) +
                                           (region == DistributionRegion_Rake ? ", and all of the rake," : "") +
                                           " is outside of the data field."
                                     : "There are no surfaces to place streamtraces on.");
    }
    if (isVolumeFormat(made.type) && region >= DistributionRegion_SurfacesOfSelectedObjects) {
        std::vector<Position> inside;
        for (const Position& onSurface : positions) {
            if (const auto start = inData(onSurface, made.type)) {
                inside.push_back(*start);
            }
        }
        if (inside.empty()) {
            throw DataError("There are no volumes to place streamtraces in.");
        }
        positions = std::move(inside);
    }
    std::vector<Streamtrace> result;
    for (const Position& start : positions) {
        made.x = start[0];
        made.y = start[1];
        made.z = isThreeD ? start[2] : 0.0;
        result.push_back(made);
    }
    return result;
}

Position StreamtracePlacement::position(const PlacementRequest::Place& place) const
{
    if (const auto* given = std::get_if<Position>(&place)) {
        return *given;
    }
    const auto& point = std::get<ZonePoint>(place);
    const DataSet& data = *m_frame.dataSet();
    checkRange("Zone", point.zone, 1, data.zoneCount());
    const Zone& zone = *data.zone(point.zone);
    const auto [iMax, jMax, kMax] = zone.isOrdered() ? zone.dimensions() : std::array<long, 3>{zone.pointCount(), 1, 1};
    checkRange("I", point.i, 1, iMax);
    checkRange("J", point.j, 1, jMax);
    checkRange("K", point.k, 1, kMax);
    const AxisVariables axes = axisVariables(m_kernel.style(), m_frame);
    const auto grid = zoneGrid(data, point.zone, {axes.x, axes.y, m_plotType == PlotType_Cartesian3D ? axes.z : 0});
    Position found{};
    grid->GetPoint(((point.k - 1) * jMax + point.j - 1) * iMax + point.i - 1, found.data());
    return found;
}

/* Where a streamtrace that is asked for at a position starts; nothing outside of the data. */
std::optional<Position> StreamtracePlacement::inData(const Position& position, Streamtrace_e type) const
{
    FieldPlace found;
    if (!std::ranges::all_of(position, [](double part) { return std::isfinite(part); })) {
        return std::nullopt;
    }
    const bool isInVolume = isVolumeFormat(type);
    const bool isFound = m_kernel.probes().fieldProbe().find({position, isInVolume, false}, found);
    if (isInVolume && (!isFound || found.place.distance2 > 0.0)) {
        return belowSurface(position);
    }
    if (!isFound) {
        return std::nullopt;
    }
    return type == Streamtrace_SurfaceLine ? found.place.position : position;
}

/* A place at the surface of a volume, just inside of its cells. */
std::optional<Position> StreamtracePlacement::belowSurface(const Position& position) const
{
    constexpr double depth = 1e-3; /* of the way to the middle of the cell */
    FieldProbe& probe = m_kernel.probes().fieldProbe();
    FieldPlace onSurface;
    if (!probe.find({position, false, false}, onSurface) ||
        m_frame.dataSet()->zone(onSurface.zone)->topologicalDimension() != 3) {
        return std::nullopt;
    }
    const FieldPlace volume = probe.placeOf(onSurface.zone, {}, true);
    MeshPlace inCell;
    if (!volume.mesh || !volume.mesh->findClosest(onSurface.place.position, volume.mesh->size(), inCell)) {
        return std::nullopt;
    }
    const std::vector<Position> corners = volume.mesh->pointsAt(inCell.points);
    Position inside = inCell.position;
    for (std::size_t axis = 0; axis < inside.size(); ++axis) {
        double middle = 0.0;
        for (const Position& corner : corners) {
            middle += corner[axis] / double(corners.size());
        }
        inside[axis] = std::lerp(inside[axis], middle, depth);
    }
    return inside;
}

std::vector<Position> StreamtracePlacement::onRake(const Position& from, const Position& to, long count,
                                                   Streamtrace_e type) const
{
    std::vector<Position> starts;
    for (long i = 0; i < count; ++i) {
        const double part = count > 1 ? double(i) / double(count - 1) : 0.5;
        Position between{};
        for (std::size_t axis = 0; axis < between.size(); ++axis) {
            between[axis] = std::lerp(from[axis], to[axis], part);
        }
        if (const auto start = inData(between, type)) {
            starts.push_back(*start);
        }
    }
    return starts;
}

/* An empty set stands for all zones that are drawn. */
std::vector<Position> StreamtracePlacement::onSurfaces(const std::set<long>& zones, long count) const
{
    const TracedPart part = m_plotType == PlotType_Cartesian2D ? TracedPart::Plane : TracedPart::Surface;
    VelocitySource source = VelocitySource::read(m_kernel.style(), m_frame, part, false);
    if (!zones.empty()) {
        std::erase_if(source.zones, [&](const auto& each) { return !zones.contains(each.zone); });
    }
    const VelocityField field(*m_frame.dataSet(), source);
    vtkIdType all = 0;
    for (const VelocityField::Block& block : field.blocks()) {
        all += block.cells->GetNumberOfCells();
    }
    // Steps of the golden ratio reach all parts of the cells evenly, whatever the number of steps.
    std::vector<Position> starts;
    for (long i = 0; i < count && all > 0; ++i) {
        const double turns = (double(i) + 0.5) / std::numbers::phi;
        auto cell = static_cast<vtkIdType>((turns - std::floor(turns)) * double(all));
        for (const VelocityField::Block& block : field.blocks()) {
            if (cell < block.cells->GetNumberOfCells()) {
                starts.push_back(centerOf(*block.cells, cell));
                break;
            }
            cell -= block.cells->GetNumberOfCells();
        }
    }
    return starts;
}

std::set<long> StreamtracePlacement::pickedZones() const
{
    std::set<long> zones;
    for (const PickedObject& object : m_kernel.pickList().objects()) {
        if (object.type == PickObject_Zone && object.frameId == m_frame.id()) {
            zones.insert(object.number);
        }
    }
    if (zones.empty()) {
        throw DataError("No zone is picked to place streamtraces on.");
    }
    return zones;
}

} // namespace vantrix::kernel
