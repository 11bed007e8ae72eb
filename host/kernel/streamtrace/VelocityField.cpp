#include "kernel/streamtrace/VelocityField.h"

#include "kernel/AxisVariables.h"
#include "kernel/Parallel.h"
#include "kernel/StyleStore.h"

#include <vtkBoundingBox.h>
#include <vtkCellData.h>
#include <vtkCellDataToPointData.h>
#include <vtkDataSetSurfaceFilter.h>
#include <vtkDoubleArray.h>
#include <vtkExtractCells.h>
#include <vtkIdList.h>
#include <vtkPointData.h>
#include <vtkPolyData.h>
#include <vtkStructuredGrid.h>
#include <vtkUnstructuredGrid.h>

#include <cmath>

namespace vantrix::kernel {

namespace {

constexpr auto numbersName = "vxPoints";

/* The values of a field at the points of a zone; of a cell-centred one the mean of the cells around each. */
vtkSmartPointer<vtkDataArray> pointValues(vtkDataSet* grid, const FieldArray* field)
{
    vtkSmartPointer<vtkDataArray> values = field ? field->load() : nullptr;
    if (!field || !values || field->location == ValueLocation_Nodal) {
        return values;
    }
    const auto shape = vtkSmartPointer<vtkDataSet>::Take(grid->NewInstance());
    shape->CopyStructure(grid);
    shape->GetCellData()->SetScalars(values);
    vtkNew<vtkCellDataToPointData> filter;
    filter->SetInputData(shape);
    filter->Update();
    return vtkDataSet::SafeDownCast(filter->GetOutput())->GetPointData()->GetScalars();
}

vtkSmartPointer<vtkDoubleArray> vectorsOf(const DataSet& dataSet, long zone, vtkDataSet* grid,
                                          const VelocitySource& source)
{
    auto vectors = vtkSmartPointer<vtkDoubleArray>::New();
    vectors->SetName(VelocityField::arrayName);
    vectors->SetNumberOfComponents(3);
    vectors->SetNumberOfTuples(grid->GetNumberOfPoints());
    for (int axis = 0; axis < 3; ++axis) {
        const long variable = axis == 2 && source.part == TracedPart::Plane ? 0 : source.vectors[std::size_t(axis)];
        const vtkSmartPointer<vtkDataArray> values =
            pointValues(grid, variable > 0 ? dataSet.field(zone, variable) : nullptr);
        double* const target = vectors->GetPointer(0);
        parallelFor(static_cast<long>(grid->GetNumberOfPoints()), [&](long begin, long end) {
            for (long i = begin; i < end; ++i) {
                const double value = values ? values->GetComponent(i, 0) : 0.0;
                target[3 * i + axis] = std::isfinite(value) ? value : 0.0;
            }
        });
    }
    return vectors;
}

vtkSmartPointer<vtkIdTypeArray> allNumbers(vtkIdType count)
{
    auto numbers = vtkSmartPointer<vtkIdTypeArray>::New();
    numbers->SetName(numbersName);
    numbers->SetNumberOfTuples(count);
    for (vtkIdType i = 0; i < count; ++i) {
        numbers->SetValue(i, i);
    }
    return numbers;
}

/* Points and cells of a zone, each point with its vector and its number. */
vtkSmartPointer<vtkPointSet> wholeZone(const DataSet& dataSet, long zone, const VelocitySource& source)
{
    const vtkSmartPointer<vtkDataSet> shape = zoneShape(dataSet, zone, source.coordinates);
    auto* points = vtkPointSet::SafeDownCast(shape);
    if (points) {
        points->GetPointData()->AddArray(vectorsOf(dataSet, zone, points, source));
        points->GetPointData()->AddArray(allNumbers(points->GetNumberOfPoints()));
    }
    return points;
}

vtkSmartPointer<vtkPointSet> withoutBlanked(vtkPointSet* cells, const BlankedZone& blanked)
{
    vtkNew<vtkIdList> left;
    const vtkIdType count = std::min(cells->GetNumberOfCells(), static_cast<vtkIdType>(blanked.cells.size()));
    for (vtkIdType cell = 0; cell < count; ++cell) {
        if (blanked.cells[static_cast<std::size_t>(cell)] == 0) {
            left->InsertNextId(cell);
        }
    }
    vtkNew<vtkExtractCells> filter;
    filter->SetInputData(cells);
    filter->SetCellList(left);
    filter->Update();
    return filter->GetOutput();
}

/* The points of an ordered zone with one index in a range, as a grid of their own. */
vtkSmartPointer<vtkStructuredGrid> planeOf(vtkStructuredGrid& volume, std::size_t axis, int index)
{
    std::array<int, 3> size{};
    volume.GetDimensions(size.data());
    std::array<int, 3> first{0, 0, 0};
    std::array<int, 3> last{size[0] - 1, size[1] - 1, size[2] - 1};
    first[axis] = last[axis] = index;
    vtkNew<vtkIdList> taken;
    for (int k = first[2]; k <= last[2]; ++k) {
        for (int j = first[1]; j <= last[1]; ++j) {
            for (int i = first[0]; i <= last[0]; ++i) {
                taken->InsertNextId((vtkIdType{k} * size[1] + j) * size[0] + i);
            }
        }
    }
    auto plane = vtkSmartPointer<vtkStructuredGrid>::New();
    plane->SetDimensions(last[0] - first[0] + 1, last[1] - first[1] + 1, last[2] - first[2] + 1);
    vtkNew<vtkPoints> points;
    points->SetDataType(volume.GetPoints()->GetDataType());
    points->SetNumberOfPoints(taken->GetNumberOfIds());
    volume.GetPoints()->GetPoints(taken, points);
    plane->SetPoints(points);
    plane->GetPointData()->CopyAllocate(volume.GetPointData(), taken->GetNumberOfIds());
    plane->GetPointData()->SetNumberOfTuples(taken->GetNumberOfIds());
    for (vtkIdType i = 0; i < taken->GetNumberOfIds(); ++i) {
        plane->GetPointData()->CopyData(volume.GetPointData(), taken->GetId(i), i);
    }
    return plane;
}

vtkSmartPointer<vtkPointSet> surfaceOf(vtkPointSet* cells)
{
    vtkNew<vtkDataSetSurfaceFilter> filter;
    filter->SetInputData(cells);
    filter->Update();
    return filter->GetOutput();
}

void addPart(const DataSet& dataSet, const VelocitySource::ZonePart& part, const VelocitySource& source,
             std::vector<VelocityField::Block>& blocks)
{
    const auto add = [&](const vtkSmartPointer<vtkPointSet>& cells) {
        if (!cells || cells->GetNumberOfCells() == 0) {
            return;
        }
        vtkPointData* arrays = cells->GetPointData();
        const vtkSmartPointer<vtkIdTypeArray> numbers =
            vtkIdTypeArray::SafeDownCast(arrays->GetAbstractArray(numbersName));
        const vtkSmartPointer<vtkDataArray> vectors = arrays->GetArray(VelocityField::arrayName);
        arrays->Initialize();
        cells->GetCellData()->Initialize();
        arrays->SetVectors(vectors);
        blocks.push_back({part.zone, cells, numbers});
    };
    vtkSmartPointer<vtkPointSet> cells = wholeZone(dataSet, part.zone, source);
    auto* grid = vtkStructuredGrid::SafeDownCast(cells);
    const bool isVolume = dataSet.zone(part.zone)->topologicalDimension() == 3;
    if (grid && isVolume && source.part != TracedPart::Volume && !part.planes.empty()) {
        for (const ShownPlanes::Plane& plane : part.planes) {
            add(planeOf(*grid, plane.family, static_cast<int>(plane.index)));
        }
        return;
    }
    if (const auto blanked = source.blanking.isActive() ? source.blanking.of(dataSet, part.zone) : nullptr) {
        cells = withoutBlanked(cells, *blanked);
    }
    add(isVolume && source.part == TracedPart::Surface ? surfaceOf(cells) : cells);
}

} // namespace

TracedPart tracedPart(Streamtrace_e type)
{
    switch (type) {
    case Streamtrace_TwoDLine:
        return TracedPart::Plane;
    case Streamtrace_SurfaceLine:
        return TracedPart::Surface;
    default:
        return TracedPart::Volume;
    }
}

VelocitySource VelocitySource::read(const StyleStore& style, const Frame& frame, TracedPart part, bool obeysBlanking)
{
    VelocitySource source;
    source.part = part;
    const AxisVariables axes = axisVariables(style, frame);
    source.coordinates = {axes.x, axes.y, part == TracedPart::Plane ? 0 : axes.z};
    constexpr std::array<const char*, 3> paths{"GlobalStream/UVar", "GlobalStream/VVar", "GlobalStream/WVar"};
    for (std::size_t axis = 0; axis < (part == TracedPart::Plane ? 2 : 3); ++axis) {
        source.vectors[axis] = style.integer(frame.id(), style.entry(paths[axis]));
    }
    if (obeysBlanking) {
        source.blanking = ValueBlanking::read(style, frame);
    }
    const DataSet* data = frame.dataSet().get();
    const long activeEntry = style.entry("ActiveFieldMaps");
    const long surfacesEntry = style.entry("FieldMap/Surfaces/SurfacesToPlot");
    for (long zone = 1; data && zone <= data->zoneCount(); ++zone) {
        if (!data->zoneEnabled[static_cast<std::size_t>(zone - 1)] || !style.flag(frame.id(), activeEntry, zone)) {
            continue;
        }
        const Zone& about = *data->zone(zone);
        const int dimension = about.topologicalDimension();
        const bool isOrderedVolume = about.isOrdered() && dimension == 3;
        const long surfaces = style.integer(frame.id(), surfacesEntry, zone);
        ZonePart taken{zone, {}};
        bool takesPart = dimension == 2;
        switch (part) {
        case TracedPart::Plane:
            if (isOrderedVolume) { // a flat plot shows the first layer of it
                taken.planes = {{IJKPlanes_K, 0}};
                takesPart = true;
            }
            break;
        case TracedPart::Volume:
            takesPart = dimension == 3;
            break;
        case TracedPart::Surface:
            if (isOrderedVolume) {
                taken.planes = ShownPlanes(style, frame.id(), zone, about.dimensions()).all();
            }
            takesPart = dimension == 2 || (dimension == 3 && surfaces != SurfacesToPlot_None);
            break;
        }
        if (takesPart) {
            source.zones.push_back(std::move(taken));
        }
    }
    return source;
}

VelocityField::VelocityField(const DataSet& dataSet, const VelocitySource& source)
    : m_coordinates(source.coordinates)
    , m_dataSet(vtkSmartPointer<vtkMultiBlockDataSet>::New())
{
    for (const VelocitySource::ZonePart& part : source.zones) {
        addPart(dataSet, part, source, m_blocks);
    }
    for (std::size_t i = 0; i < m_blocks.size(); ++i) {
        m_dataSet->SetBlock(static_cast<unsigned int>(i), m_blocks[i].cells);
    }
}

vtkSmartPointer<vtkDataArray> VelocityField::valuesAtPoints(const Block& block, const DataSet& dataSet,
                                                            long variable) const
{
    const vtkSmartPointer<vtkDataSet> grid = zoneShape(dataSet, block.zone, m_coordinates);
    const vtkSmartPointer<vtkDataArray> ofZone = pointValues(grid, dataSet.field(block.zone, variable));
    if (!ofZone) {
        return nullptr;
    }
    auto values = vtkSmartPointer<vtkDoubleArray>::New();
    values->SetNumberOfTuples(block.pointNumbers->GetNumberOfTuples());
    for (vtkIdType i = 0; i < values->GetNumberOfTuples(); ++i) {
        values->SetValue(i, ofZone->GetComponent(block.pointNumbers->GetValue(i), 0));
    }
    return values;
}

vtkStaticCellLocator& VelocityField::locator(const Block& block) const
{
    m_locators.resize(m_blocks.size());
    auto& kept = m_locators[static_cast<std::size_t>(&block - m_blocks.data())];
    if (!kept) {
        kept = vtkSmartPointer<vtkStaticCellLocator>::New();
        kept->SetDataSet(block.cells);
        kept->BuildLocator();
    }
    return *kept;
}

bool VelocityField::CellSearch::isIn(const Block& block, vtkIdType cell, const std::array<double, 3>& place,
                                     bool isExact)
{
    block.cells->GetCell(cell, m_cell);
    m_weights.resize(static_cast<std::size_t>(std::max<vtkIdType>(1, m_cell->GetNumberOfPoints())));
    std::array<double, 3> inCell{};
    int part = 0;
    double distance2 = 0.0;
    const int inside =
        m_cell->EvaluatePosition(place.data(), m_closest.data(), part, inCell.data(), distance2, m_weights.data());
    // A way on a surface lies beside the cell that it belongs to.
    const double reach2 = 1e-4 * m_cell->GetLength2();
    if (inside < 0 || (isExact && (inside == 0 || distance2 > reach2))) {
        return false;
    }
    m_block = &block;
    m_cellNumber = cell;
    m_points.assign(m_cell->GetPointIds()->begin(), m_cell->GetPointIds()->end());
    return true;
}

const VelocityField::Block* VelocityField::CellSearch::find(const std::array<double, 3>& place)
{
    if (m_block && isIn(*m_block, m_cellNumber, place, true)) {
        return m_block;
    }
    for (const Block& block : m_field.m_blocks) {
        std::array<double, 3> at = place;
        std::array<double, 3> closest{};
        vtkIdType cell = -1;
        int part = 0;
        double distance2 = 0.0;
        int inside = 0;
        const double radius = 1e-3 * block.cells->GetLength();
        if (m_field.locator(block).FindClosestPointWithinRadius(at.data(), radius, closest.data(), m_cell, cell, part,
                                                                distance2, inside) != 0 &&
            isIn(block, cell, closest, false)) {
            return &block;
        }
    }
    return nullptr;
}

std::optional<std::array<double, 3>> VelocityField::CellSearch::closest(const std::array<double, 3>& place)
{
    return find(place) ? std::optional(m_closest) : std::nullopt;
}

double VelocityField::size() const
{
    vtkBoundingBox box;
    for (const Block& block : m_blocks) {
        box.AddBounds(block.cells->GetBounds());
    }
    return box.IsValid() ? box.GetDiagonalLength() : 0.0;
}

} // namespace vantrix::kernel
