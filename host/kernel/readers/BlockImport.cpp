#include "kernel/readers/BlockImport.h"

#include "kernel/DataError.h"
#include "kernel/FieldValues.h"
#include "kernel/Parallel.h"
#include "kernel/readers/CellKinds.h"
#include "kernel/readers/Components.h"

#include <vtkCellData.h>
#include <vtkCompositeDataSet.h>
#include <vtkDataObjectTree.h>
#include <vtkDataObjectTreeIterator.h>
#include <vtkDoubleArray.h>
#include <vtkImageData.h>
#include <vtkInformation.h>
#include <vtkPointData.h>
#include <vtkPointSet.h>
#include <vtkRectilinearGrid.h>
#include <vtkStructuredGrid.h>

#include <algorithm>
#include <array>
#include <functional>
#include <iterator>

namespace vantrix::kernel::readers {

namespace {

constexpr const char* axisNames[] = {"X", "Y", "Z"};

vtkSmartPointer<vtkDataArray> gather(vtkDataArray& values, vtkIdList* origin)
{
    if (!origin) {
        return &values;
    }
    auto result = vtkSmartPointer<vtkDataArray>::Take(values.NewInstance());
    result->SetNumberOfTuples(origin->GetNumberOfIds());
    values.GetTuples(origin, result);
    return result;
}

/* Coordinates of a grid that keeps a formula, or an array an axis, in place of points. */
template<class PlaceAt>
std::array<vtkSmartPointer<vtkDataArray>, 3> computedCoordinates(const std::array<long, 3>& dimensions,
                                                                 const PlaceAt& placeAt)
{
    const auto [iMax, jMax, kMax] = dimensions;
    std::array<vtkSmartPointer<vtkDataArray>, 3> result;
    std::array<double*, 3> targets{};
    for (std::size_t axis = 0; axis < 3; ++axis) {
        result[axis] = makeValues(FieldDataType_Double, iMax * jMax * kMax);
        targets[axis] = vtkDoubleArray::FastDownCast(result[axis])->GetPointer(0);
    }
    parallelFor(jMax * kMax, [&, iCount = iMax, jCount = jMax](long begin, long end) {
        for (long row = begin; row < end; ++row) {
            for (long i = 0; i < iCount; ++i) {
                const std::array<double, 3> place = placeAt(i, row % jCount, row / jCount);
                for (std::size_t axis = 0; axis < 3; ++axis) {
                    targets[axis][row * iCount + i] = place[axis];
                }
            }
        }
    });
    return result;
}

std::array<vtkSmartPointer<vtkDataArray>, 3> coordinatesOf(vtkDataSet& grid, const std::array<long, 3>& dimensions)
{
    if (auto* image = vtkImageData::SafeDownCast(&grid)) {
        const int* extent = image->GetExtent();
        return computedCoordinates(dimensions, [=](long i, long j, long k) {
            std::array<double, 3> place{};
            image->TransformIndexToPhysicalPoint(static_cast<int>(i) + extent[0], static_cast<int>(j) + extent[2],
                                                 static_cast<int>(k) + extent[4], place.data());
            return place;
        });
    }
    if (auto* rectilinear = vtkRectilinearGrid::SafeDownCast(&grid)) {
        return computedCoordinates(dimensions, [x = rectilinear->GetXCoordinates(), y = rectilinear->GetYCoordinates(),
                                                z = rectilinear->GetZCoordinates()](long i, long j, long k) {
            return std::array<double, 3>{x->GetComponent(i, 0), y->GetComponent(j, 0), z->GetComponent(k, 0)};
        });
    }
    vtkDataArray* points = vtkPointSet::SafeDownCast(&grid)->GetPoints()->GetData();
    const std::vector<NamedValues> split = splitComponents(*points, "");
    return {split[0].values, split[1].values, split[2].values};
}

std::array<long, 3> orderedDimensions(vtkDataSet& grid)
{
    int dimensions[3] = {0, 0, 0};
    if (auto* structured = vtkStructuredGrid::SafeDownCast(&grid)) {
        structured->GetDimensions(dimensions);
    } else if (auto* image = vtkImageData::SafeDownCast(&grid)) {
        image->GetDimensions(dimensions);
    } else if (auto* rectilinear = vtkRectilinearGrid::SafeDownCast(&grid)) {
        rectilinear->GetDimensions(dimensions);
    }
    return {dimensions[0], dimensions[1], dimensions[2]};
}

Zone makeZone(const std::string& name, const CellsOfKind& kind, long pointCount)
{
    if (kind.type == ZoneType_Ordered) {
        return Zone::ordered(name, kind.origin ? static_cast<long>(kind.origin->GetNumberOfIds()) : pointCount, 1, 1);
    }
    Zone zone = Zone::finiteElement(name, kind.type, pointCount, kind.cells);
    zone.polyhedronFaces = kind.faces;
    zone.polyhedronFaceLocations = kind.faceLocations;
    return zone;
}

/* A name that none of the taken has; see Variable. */
std::string freeName(const std::string& wanted, const std::function<bool(const std::string&)>& isTaken)
{
    std::string name = wanted;
    for (int number = 2; isTaken(name); ++number) {
        name = wanted + " (" + std::to_string(number) + ")";
    }
    return name;
}

bool isCoordinateName(const std::string& name)
{
    return std::find(std::begin(axisNames), std::end(axisNames), name) != std::end(axisNames);
}

void remember(std::vector<std::string>& names, const std::string& name)
{
    if (std::find(names.begin(), names.end(), name) == names.end()) {
        names.push_back(name);
    }
}

/* Calls `use(array, name)` for each array of values; what VTK keeps there for its own use is left out. */
void forEachArray(vtkDataSetAttributes& attributes, long tuples, const char* place,
                  const std::function<void(vtkDataArray&, const std::string&)>& use)
{
    for (int i = 0; i < attributes.GetNumberOfArrays(); ++i) {
        vtkDataArray* array = attributes.GetArray(i);
        if (!array || array->GetNumberOfComponents() < 1) {
            continue;
        }
        const std::string name = array->GetName() && *array->GetName() ? array->GetName() : "Values";
        if (name == vtkDataSetAttributes::GhostArrayName()) {
            continue;
        }
        if (array->GetNumberOfTuples() != tuples) {
            throw DataError("\"" + name + "\" has " + std::to_string(array->GetNumberOfTuples()) + " values for " +
                            std::to_string(tuples) + " " + place);
        }
        use(*array, name);
    }
}

} // namespace

void BlockImport::add(vtkDataObject& object, const std::string& name)
{
    if (auto* grid = vtkDataSet::SafeDownCast(&object)) {
        addBlock(*grid, name);
        return;
    }
    auto* tree = vtkDataObjectTree::SafeDownCast(&object);
    if (!tree) {
        throw DataError(std::string("it holds a ") + object.GetClassName() + ", which has no zones");
    }
    const auto iterator = vtkSmartPointer<vtkDataObjectTreeIterator>::Take(tree->NewTreeIterator());
    iterator->VisitOnlyLeavesOn();
    iterator->SkipEmptyNodesOn();
    long number = 0;
    long blocks = 0;
    for (iterator->InitTraversal(); !iterator->IsDoneWithTraversal(); iterator->GoToNextItem()) {
        ++blocks;
    }
    for (iterator->InitTraversal(); !iterator->IsDoneWithTraversal(); iterator->GoToNextItem()) {
        auto* grid = vtkDataSet::SafeDownCast(iterator->GetCurrentDataObject());
        if (!grid) {
            continue;
        }
        ++number;
        const char* given =
            iterator->HasCurrentMetaData() ? iterator->GetCurrentMetaData()->Get(vtkCompositeDataSet::NAME()) : nullptr;
        const std::string fallback = blocks == 1 ? name : name + " " + std::to_string(number);
        addBlock(*grid, given && *given ? given : fallback);
    }
}

void BlockImport::add(BlockImport other)
{
    std::move(other.m_blocks.begin(), other.m_blocks.end(), std::back_inserter(m_blocks));
    for (const std::string& name : other.m_nodalNames) {
        remember(m_nodalNames, name);
    }
    for (const std::string& name : other.m_cellNames) {
        remember(m_cellNames, name);
    }
    m_ambiguous.merge(other.m_ambiguous);
}

void BlockImport::addBlock(vtkDataSet& grid, const std::string& name)
{
    const long pointCount = static_cast<long>(grid.GetNumberOfPoints());
    if (pointCount == 0) {
        return;
    }
    Block block;
    block.name = name;
    std::vector<vtkSmartPointer<vtkIdList>> cellOrigin;
    const std::array<long, 3> dimensions = orderedDimensions(grid);
    if (dimensions[0] > 0) {
        block.zones.push_back(Zone::ordered(name, dimensions[0], dimensions[1], dimensions[2]));
    } else {
        std::vector<CellsOfKind> kinds = sortCells(grid);
        if (kinds.empty()) {
            kinds.emplace_back();
        }
        for (const CellsOfKind& kind : kinds) {
            const std::string zoneName = kinds.size() == 1 ? name : name + " (" + kind.plural + ")";
            block.zones.push_back(makeZone(zoneName, kind, pointCount));
            const bool arePoints = kind.type == ZoneType_Ordered;
            block.pointOrigin.push_back(arePoints ? kind.origin : nullptr);
            cellOrigin.push_back(arePoints ? nullptr : kind.origin);
        }
    }
    block.pointOrigin.resize(block.zones.size());
    cellOrigin.resize(block.zones.size());
    const auto coordinates = coordinatesOf(grid, dimensions);
    for (std::size_t axis = 0; axis < 3; ++axis) {
        block.nodal[axisNames[axis]].values = coordinates[axis];
    }
    if (auto* pointSet = vtkPointSet::SafeDownCast(&grid)) {
        block.points = pointSet->GetPoints();
    }
    addArrays(grid, block, cellOrigin);
    m_blocks.push_back(std::move(block));
}

void BlockImport::addArrays(vtkDataSet& grid, Block& block, const std::vector<vtkSmartPointer<vtkIdList>>& cellOrigin)
{
    forEachArray(*grid.GetPointData(), grid.GetNumberOfPoints(), "points", [&](vtkDataArray& array, auto& name) {
        for (const NamedValues& component : splitComponents(array, name)) {
            const std::string free =
                freeName(component.name, [&](auto& taken) { return block.nodal.count(taken) > 0; });
            block.nodal[free].values = component.values;
            remember(m_nodalNames, free);
        }
    });
    forEachArray(*grid.GetCellData(), grid.GetNumberOfCells(), "cells", [&](vtkDataArray& array, auto& name) {
        for (const NamedValues& component : splitComponents(array, name)) {
            const std::string free = freeName(component.name, [&](auto& taken) { return block.cell.count(taken) > 0; });
            std::vector<FieldArray>& perZone = block.cell[free];
            for (std::size_t zone = 0; zone < block.zones.size(); ++zone) {
                /* Single points have no cells of their own in a zone. */
                const bool hasCells = !block.pointOrigin[zone];
                FieldArray& field = perZone.emplace_back();
                field.location = ValueLocation_CellCentered;
                field.values = hasCells ? gather(*component.values, cellOrigin[zone]) : nullptr;
                if (hasCells && perZone.back().values->GetNumberOfTuples() != block.zones[zone].cellCount()) {
                    perZone.back().values = nullptr; /* of points without cells */
                }
            }
            remember(m_cellNames, free);
            if (block.nodal.count(free) > 0 || isCoordinateName(free)) {
                m_ambiguous.insert(free);
            }
        }
    });
}

std::string BlockImport::cellName(const std::string& name) const
{
    return m_ambiguous.count(name) > 0 ? name + " (cell)" : name;
}

void BlockImport::fill(DataSet& dataSet) const
{
    for (const char* axis : axisNames) {
        dataSet.variables.push_back({axis, true});
    }
    for (const std::string& name : m_nodalNames) {
        dataSet.variables.push_back({name, true});
    }
    std::map<std::string, std::string> cellNames; /* by the variable's name */
    for (const std::string& name : m_cellNames) {
        cellNames[cellName(name)] = name;
        if (dataSet.variableNumber(cellName(name)) == 0) {
            dataSet.variables.push_back({cellName(name), true});
        }
    }
    for (const Block& block : m_blocks) {
        for (std::size_t z = 0; z < block.zones.size(); ++z) {
            Zone zone = block.zones[z];
            for (const Variable& variable : dataSet.variables) {
                FieldArray field;
                const auto cell = cellNames.find(variable.name);
                if (const auto nodal = block.nodal.find(variable.name); nodal != block.nodal.end()) {
                    field.values = gather(*nodal->second.values, block.pointOrigin[z]);
                } else if (cell != cellNames.end() && block.cell.count(cell->second) > 0) {
                    field = block.cell.at(cell->second)[z];
                }
                zone.fields.push_back(std::move(field));
            }
            if (block.points && !block.pointOrigin[z]) {
                /* The reader's points serve the first grid, so that they are not put together again. */
                ZoneGridCache::Entry entry;
                entry.coordinates = {zone.fields[0].values, zone.fields[1].values, zone.fields[2].values};
                entry.points = block.points;
                zone.grids().entries.push_back(std::move(entry));
            }
            dataSet.addZone(std::move(zone));
        }
    }
}

} // namespace vantrix::kernel::readers
