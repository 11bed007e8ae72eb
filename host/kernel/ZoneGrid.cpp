#include "kernel/ZoneGrid.h"

#include "kernel/Parallel.h"

#include <vtkAOSDataArrayTemplate.h>
#include <vtkCellData.h>
#include <vtkDoubleArray.h>
#include <vtkFloatArray.h>
#include <vtkPointData.h>

#include <vtkStructuredGrid.h>
#include <vtkUnsignedCharArray.h>
#include <vtkUnstructuredGrid.h>

#include <algorithm>

namespace vantrix::kernel {

ZoneGridCache::ZoneGridCache(const ZoneGridCache& other)
    : entries(other.entries)
{
    for (Entry& entry : entries) {
        entry.grid = nullptr;
    }
}

ZoneGridCache& ZoneGridCache::operator=(const ZoneGridCache& other)
{
    return *this = ZoneGridCache(other);
}

void ZoneGridCache::forget(const vtkDataArray& values)
{
    std::erase_if(entries, [&](const Entry& entry) {
        return std::find(entry.coordinates.begin(), entry.coordinates.end(), &values) != entry.coordinates.end();
    });
    for (Entry& entry : entries) {
        entry.grid = nullptr; /* its arrays share the memory of the values */
    }
}

namespace {

using Entry = ZoneGridCache::Entry;

/* Two frames and a probe rarely use more than this; each costs its points once more. */
constexpr std::size_t keptGrids = 4;

template<typename Target>
void interleave(vtkDataArray* source, Target* target, vtkIdType count)
{
    const auto fill = [&](const auto& valueAt) {
        parallelFor(count, [&](long begin, long end) {
            for (long i = begin; i < end; ++i) {
                target[3 * i] = static_cast<Target>(valueAt(i));
            }
        });
    };
    if (!source) {
        fill([](vtkIdType) { return 0.0; });
    } else if (auto* singles = vtkAOSDataArrayTemplate<float>::FastDownCast(source)) {
        fill([p = singles->GetPointer(0)](vtkIdType i) { return p[i]; });
    } else if (auto* doubles = vtkAOSDataArrayTemplate<double>::FastDownCast(source)) {
        fill([p = doubles->GetPointer(0)](vtkIdType i) { return p[i]; });
    } else {
        fill([source](vtkIdType i) { return source->GetComponent(i, 0); });
    }
}

template<typename Array>
vtkSmartPointer<vtkPoints> interleavedPoints(const Entry& entry, vtkIdType count)
{
    const auto array = vtkSmartPointer<Array>::New();
    array->SetNumberOfComponents(3);
    array->SetNumberOfTuples(count);
    for (std::size_t axis = 0; axis < 3; ++axis) {
        interleave(entry.coordinates[axis].Get(), array->GetPointer(0) + axis, count);
    }
    auto points = vtkSmartPointer<vtkPoints>::New();
    points->SetData(array);
    return points;
}

bool fitsSinglePrecision(const vtkSmartPointer<vtkDataArray>& array)
{
    if (!array) {
        return true;
    }
    const int type = array->GetDataType();
    return type != VTK_DOUBLE && type != VTK_INT;
}

vtkSmartPointer<vtkPoints> makePoints(const Entry& entry, vtkIdType count)
{
    if (std::all_of(entry.coordinates.begin(), entry.coordinates.end(), fitsSinglePrecision)) {
        return interleavedPoints<vtkFloatArray>(entry, count);
    }
    return interleavedPoints<vtkDoubleArray>(entry, count);
}

int vtkCellType(ZoneType_e type)
{
    switch (type) {
    case ZoneType_FELineSeg:
        return VTK_LINE;
    case ZoneType_FETriangle:
        return VTK_TRIANGLE;
    case ZoneType_FEQuad:
        return VTK_QUAD;
    case ZoneType_FETetra:
        return VTK_TETRA;
    case ZoneType_FEBrick:
        return VTK_HEXAHEDRON;
    case ZoneType_FEPolygon:
        return VTK_POLYGON;
    case ZoneType_FEPolyhedron:
        return VTK_POLYHEDRON;
    case ZoneType_Ordered:
        break;
    }
    return VTK_EMPTY_CELL;
}

vtkSmartPointer<vtkDataSet> makeTopology(const Zone& zone, vtkPoints* points)
{
    if (zone.isOrdered()) {
        const auto grid = vtkSmartPointer<vtkStructuredGrid>::New();
        const auto [i, j, k] = zone.dimensions();
        grid->SetDimensions(static_cast<int>(i), static_cast<int>(j), static_cast<int>(k));
        grid->SetPoints(points);
        return grid;
    }
    const auto grid = vtkSmartPointer<vtkUnstructuredGrid>::New();
    grid->SetPoints(points);
    if (zone.type() == ZoneType_FEPolyhedron) {
        const auto types = vtkSmartPointer<vtkUnsignedCharArray>::New();
        types->SetNumberOfValues(zone.cellCount());
        types->FillValue(VTK_POLYHEDRON);
        grid->SetCells(types, zone.cells(), zone.polyhedronFaceLocations, zone.polyhedronFaces);
    } else {
        grid->SetCells(vtkCellType(zone.type()), zone.cells());
    }
    return grid;
}

/* An array object of its own, for a name of its own, over the same memory. */
vtkSmartPointer<vtkDataArray> named(vtkDataArray* values, const std::string& name)
{
    auto array = vtkSmartPointer<vtkDataArray>::Take(values->NewInstance());
    array->ShallowCopy(values);
    array->SetName(name.c_str());
    return array;
}

void addFields(const Zone& zone, const std::vector<Variable>& variables, vtkDataSet& grid)
{
    const std::size_t count = std::min(zone.fields.size(), variables.size());
    for (std::size_t i = 0; i < count; ++i) {
        const vtkSmartPointer<vtkDataArray> values = zone.fields[i].values;
        if (!values) {
            continue;
        }
        vtkDataSetAttributes* attributes = grid.GetPointData();
        if (zone.fields[i].location == ValueLocation_CellCentered) {
            attributes = grid.GetCellData();
        }
        attributes->AddArray(named(values, variables[i].name));
    }
}

std::array<vtkSmartPointer<vtkDataArray>, 3> coordinateArrays(const Zone& zone, const CoordinateVariables& axes)
{
    std::array<vtkSmartPointer<vtkDataArray>, 3> arrays;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const long variable = axes[axis];
        if (variable < 1 || variable > static_cast<long>(zone.fields.size())) {
            continue;
        }
        const FieldArray& field = zone.fields[static_cast<std::size_t>(variable - 1)];
        if (field.location == ValueLocation_Nodal) {
            arrays[axis] = field.load();
        }
    }
    return arrays;
}

/* The names of the variables that are in memory, and empty names of the others. */
std::vector<std::string> loadedNames(const Zone& zone, const std::vector<Variable>& variables)
{
    std::vector<std::string> names(variables.size());
    for (std::size_t i = 0; i < std::min(names.size(), zone.fields.size()); ++i) {
        if (zone.fields[i].isLoaded()) {
            names[i] = variables[i].name;
        }
    }
    return names;
}

} // namespace

vtkSmartPointer<vtkDataSet> zoneGrid(const DataSet& dataSet, long zoneNumber, const CoordinateVariables& axes)
{
    const Zone* zone = dataSet.zone(zoneNumber);
    if (!zone) {
        return nullptr;
    }
    std::vector<Entry>& entries = zone->grids().entries;
    Entry entry;
    entry.axes = axes;
    entry.coordinates = coordinateArrays(*zone, axes);
    entry.names = loadedNames(*zone, dataSet.variables);
    const auto found = std::find_if(entries.begin(), entries.end(), [&](const Entry& other) {
        return other.grid && other.axes == axes && other.names == entry.names;
    });
    if (found != entries.end()) {
        std::rotate(entries.begin(), found, found + 1);
        return entries.front().grid;
    }

    const auto samePoints = std::find_if(entries.begin(), entries.end(),
                                         [&](const Entry& other) { return other.coordinates == entry.coordinates; });
    entry.points = samePoints != entries.end() ? samePoints->points : makePoints(entry, zone->pointCount());
    entry.grid = makeTopology(*zone, entry.points);
    addFields(*zone, dataSet.variables, *entry.grid);

    /* A grid under other names, and points of a copied zone, are replaced by the new ones. */
    std::erase_if(entries, [&](const Entry& other) { return other.axes == axes; });
    entries.insert(entries.begin(), std::move(entry));
    if (entries.size() > keptGrids) {
        entries.pop_back();
    }
    return entries.front().grid;
}

bool haveSameShape(vtkDataSet* one, vtkDataSet* other)
{
    auto* points = vtkPointSet::SafeDownCast(one);
    auto* otherPoints = vtkPointSet::SafeDownCast(other);
    if (!points || !otherPoints || points->GetPoints() != otherPoints->GetPoints()) {
        return false;
    }
    if (auto* grid = vtkStructuredGrid::SafeDownCast(one)) {
        auto* otherGrid = vtkStructuredGrid::SafeDownCast(other);
        return otherGrid && std::equal(grid->GetDimensions(), grid->GetDimensions() + 3, otherGrid->GetDimensions());
    }
    auto* grid = vtkUnstructuredGrid::SafeDownCast(one);
    auto* otherGrid = vtkUnstructuredGrid::SafeDownCast(other);
    return grid && otherGrid && grid->GetCells() == otherGrid->GetCells();
}

vtkSmartPointer<vtkDataSet> zoneShape(const DataSet& dataSet, long zone, const CoordinateVariables& axes)
{
    const vtkSmartPointer<vtkDataSet> grid = zoneGrid(dataSet, zone, axes);
    if (!grid) {
        return nullptr;
    }
    auto shape = vtkSmartPointer<vtkDataSet>::Take(grid->NewInstance());
    shape->CopyStructure(grid);
    return shape;
}

} // namespace vantrix::kernel
