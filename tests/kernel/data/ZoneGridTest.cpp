#include "kernel/ZoneGrid.h"
#include "kernel/FieldValues.h"
#include "kernel/OrderedZones.h"
#include "kernel/SampleData.h"

#include <gtest/gtest.h>
#include <vtkCellData.h>
#include <vtkDoubleArray.h>
#include <vtkFloatArray.h>
#include <vtkPointData.h>
#include <vtkShortArray.h>
#include <vtkStructuredGrid.h>
#include <vtkUnstructuredGrid.h>
#include <vtkWeakPointer.h>

using namespace vantrix::kernel;

namespace {

DataSet box(long iMax, long jMax, long kMax, FieldDataType_e type = FieldDataType_Float)
{
    DataSet dataSet(1);
    dataSet.variables = {{"X", true}, {"Y", true}, {"Z", true}, {"P", true}};
    dataSet.addZone(makeZone(RectangularZone{iMax, jMax, kMax, 0, 10, 20, 1, 11, 21, type}, 4, {1, 2, 3}));
    return dataSet;
}

} // namespace

TEST(ZoneGrid, OrderedZonesOfAnyDimensionBecomeStructuredGrids)
{
    for (const auto& [i, j, k] : {std::array<long, 3>{4, 3, 2}, {4, 3, 1}, {5, 1, 1}, {1, 4, 1}, {1, 1, 1}}) {
        const DataSet dataSet = box(i, j, k);
        const vtkSmartPointer<vtkDataSet> grid = zoneGrid(dataSet, 1, {1, 2, 3});
        ASSERT_NE(vtkStructuredGrid::SafeDownCast(grid), nullptr);
        EXPECT_EQ(grid->GetNumberOfPoints(), dataSet.zone(1)->pointCount());
        EXPECT_EQ(grid->GetNumberOfCells(), dataSet.zone(1)->cellCount());
    }
}

TEST(ZoneGrid, TheChosenVariablesAreTheCoordinates)
{
    const DataSet dataSet = box(2, 2, 2);
    double point[3];
    zoneGrid(dataSet, 1, {3, 0, 1})->GetPoint(1, point);
    EXPECT_EQ(point[0], 20.0);
    EXPECT_EQ(point[1], 0.0);
    EXPECT_EQ(point[2], 1.0);
}

TEST(ZoneGrid, PrecisionOfThePointsFollowsTheCoordinates)
{
    const auto type = [](const DataSet& dataSet) {
        return vtkStructuredGrid::SafeDownCast(zoneGrid(dataSet, 1, {1, 2, 3}))->GetPoints()->GetDataType();
    };
    EXPECT_EQ(type(box(2, 2, 1, FieldDataType_Float)), VTK_FLOAT);
    EXPECT_EQ(type(box(2, 2, 1, FieldDataType_Double)), VTK_DOUBLE);
}

TEST(ZoneGrid, ArraysAreNamedByVariableAndShareMemory)
{
    DataSet dataSet = box(3, 2, 1);
    Zone zone = *dataSet.zones[0];
    zone.fields[3] = {makeValues(FieldDataType_Int16, 2), ValueLocation_CellCentered, {}};
    zone.fields[3].values->Fill(7.0);
    dataSet.zones[0] = std::make_shared<const Zone>(zone);

    const vtkSmartPointer<vtkDataSet> grid = zoneGrid(dataSet, 1, {1, 2, 3});
    EXPECT_EQ(grid->GetPointData()->GetNumberOfArrays(), 3);
    EXPECT_EQ(grid->GetPointData()->GetArray("Y")->GetVoidPointer(0), zone.fields[1].values->GetVoidPointer(0));
    ASSERT_NE(grid->GetCellData()->GetArray("P"), nullptr);
    EXPECT_EQ(grid->GetCellData()->GetArray("P")->GetVoidPointer(0), zone.fields[3].values->GetVoidPointer(0));
    EXPECT_EQ(zone.fields[3].values->GetName(), nullptr) << "a shared array must keep no name of one variable";
}

TEST(ZoneGrid, IsTheSameObjectUntilAnInputChanges)
{
    DataSet dataSet = box(3, 3, 1);
    const vtkSmartPointer<vtkDataSet> first = zoneGrid(dataSet, 1, {1, 2, 3});
    EXPECT_EQ(zoneGrid(dataSet, 1, {1, 2, 3}), first);
    EXPECT_NE(zoneGrid(dataSet, 1, {2, 1, 3}), first);
    EXPECT_EQ(zoneGrid(dataSet, 1, {1, 2, 3}), first) << "another choice of coordinates must not displace it";

    dataSet.variables[3].name = "Pressure";
    const vtkSmartPointer<vtkDataSet> renamed = zoneGrid(dataSet, 1, {1, 2, 3});
    EXPECT_NE(renamed, first);
    EXPECT_NE(renamed->GetPointData()->GetArray("Pressure"), nullptr);
    EXPECT_EQ(renamed->GetPointData()->GetArray("P"), nullptr);

    Zone edited = *dataSet.zones[0];
    edited.fields[3].values = makeZeros(FieldDataType_Double, edited.pointCount());
    dataSet.zones[0] = std::make_shared<const Zone>(edited);
    const vtkSmartPointer<vtkDataSet> after = zoneGrid(dataSet, 1, {1, 2, 3});
    EXPECT_EQ(after->GetPointData()->GetArray("Pressure")->GetDataType(), VTK_DOUBLE);
    EXPECT_EQ(vtkStructuredGrid::SafeDownCast(after)->GetPoints(), vtkStructuredGrid::SafeDownCast(first)->GetPoints())
        << "the coordinates did not change";
}

TEST(ZoneGrid, ADroppedZoneFreesItsGrid)
{
    DataSet dataSet = box(3, 3, 3);
    const vtkWeakPointer<vtkDataSet> grid = zoneGrid(dataSet, 1, {1, 2, 3}).Get();
    ASSERT_NE(grid.Get(), nullptr);
    dataSet.zones.clear();
    EXPECT_EQ(grid.Get(), nullptr);
}

TEST(ZoneGrid, ValuesNotInMemoryComeThroughTheirLoader)
{
    DataSet dataSet = box(2, 2, 1);
    Zone zone = *dataSet.zones[0];
    zone.fields[0].loader = [values = zone.fields[0].values] { return values; };
    zone.fields[0].values = nullptr;
    zone.fields[3].values = nullptr; /* the zone does not have it */
    dataSet.zones[0] = std::make_shared<const Zone>(zone);

    const vtkSmartPointer<vtkDataSet> grid = zoneGrid(dataSet, 1, {1, 2, 3});
    EXPECT_EQ(grid->GetPoint(1)[0], 1.0);
    EXPECT_EQ(grid->GetPointData()->GetArray("P"), nullptr);
    EXPECT_EQ(zoneGrid(dataSet, 2, {1, 2, 3}), nullptr);
}

TEST(ZoneGrid, RangeLeavesNaNOut)
{
    DataSet dataSet = box(4, 1, 1, FieldDataType_Double);
    Zone zone = *dataSet.zones[0];
    const vtkSmartPointer<vtkDataArray> values = makeZeros(FieldDataType_Double, 4);
    values->SetComponent(0, 0, std::nan(""));
    values->SetComponent(1, 0, -3.0);
    values->SetComponent(2, 0, std::nan(""));
    values->SetComponent(3, 0, 8.0);
    zone.fields[3].values = values;
    dataSet.zones[0] = std::make_shared<const Zone>(zone);
    ASSERT_TRUE(variableRange(dataSet, 4));
    EXPECT_EQ(variableRange(dataSet, 4)->minimum, -3.0);
    EXPECT_EQ(variableRange(dataSet, 4)->maximum, 8.0);
    dataSet.zoneEnabled[0] = false;
    EXPECT_FALSE(variableRange(dataSet, 4));

    const vtkSmartPointer<vtkDataArray> none = makeValues(FieldDataType_Float, 2);
    none->Fill(std::nan(""));
    EXPECT_FALSE(valueRange(*none));
}
