#include "kernel/SampleData.h"
#include "kernel/DataError.h"
#include "kernel/ZoneGrid.h"

#include <gtest/gtest.h>
#include <vtkCellData.h>
#include <vtkCellSizeFilter.h>
#include <vtkCellTypes.h>
#include <vtkGeometryFilter.h>
#include <vtkPolyData.h>

#include <cmath>

using namespace vantrix::kernel;

class SampleDataNamed : public testing::TestWithParam<std::string>
{};

/* Every zone must be whole: an array of the right length and finite values for each variable, cells with points. */
TEST_P(SampleDataNamed, IsCompleteAndFinite)
{
    DataSet dataSet(1);
    SampleData::make(GetParam(), dataSet);
    ASSERT_GE(dataSet.zoneCount(), 1);
    EXPECT_FALSE(dataSet.title.empty());
    for (long z = 1; z <= dataSet.zoneCount(); ++z) {
        const Zone& zone = *dataSet.zone(z);
        SCOPED_TRACE(zone.name());
        ASSERT_EQ(static_cast<long>(zone.fields.size()), dataSet.variableCount());
        for (const FieldArray& field : zone.fields) {
            ASSERT_TRUE(field.isLoaded());
            const long expected = field.location == ValueLocation_Nodal ? zone.pointCount() : zone.cellCount();
            ASSERT_EQ(field.values->GetNumberOfTuples(), expected);
            for (long i = 0; i < expected; ++i) {
                ASSERT_TRUE(std::isfinite(field.values->GetComponent(i, 0)));
            }
        }
        const vtkSmartPointer<vtkDataSet> grid = zoneGrid(dataSet, z, {1, 2, 3});
        EXPECT_EQ(grid->GetNumberOfPoints(), zone.pointCount());
        EXPECT_EQ(grid->GetNumberOfCells(), zone.cellCount());
        vtkNew<vtkCellTypes> types;
        grid->GetCellTypes(types);
        EXPECT_EQ(types->GetNumberOfTypes(), 1);
    }
}

INSTANTIATE_TEST_SUITE_P(All, SampleDataNamed, testing::ValuesIn(SampleData::names()));

TEST(SampleData, PolyhedraFillSpaceWithoutGaps)
{
    DataSet dataSet(1);
    SampleData::make("polyhedra", dataSet);
    vtkNew<vtkGeometryFilter> surface;
    surface->SetInputData(zoneGrid(dataSet, 1, {1, 2, 3}));
    surface->Update();
    /* 91 cells of 14 faces; neighbours share 3*48 squares, and 8 hexagons each of the 27 inner cells. */
    EXPECT_EQ(surface->GetOutput()->GetNumberOfCells(), 91 * 14 - 2 * (3 * (48 + 18) + 27 * 8));

    vtkNew<vtkCellSizeFilter> size;
    size->SetInputData(zoneGrid(dataSet, 1, {1, 2, 3}));
    size->Update();
    /* A truncated octahedron with edges of sqrt(2) has the volume 32; lengths are a quarter of that. */
    EXPECT_NEAR(vtkDataSet::SafeDownCast(size->GetOutput())->GetCellData()->GetArray("Volume")->GetComponent(0, 0), 0.5,
                1e-5);
}

TEST(SampleData, AnUnknownNameIsRefusedWithTheNamesThatThereAre)
{
    DataSet dataSet(1);
    try {
        SampleData::make("flow", dataSet);
        FAIL();
    } catch (const DataError& error) {
        EXPECT_NE(std::string(error.what()).find("\"flow\""), std::string::npos);
        EXPECT_NE(std::string(error.what()).find("flow3d"), std::string::npos);
    }
    EXPECT_EQ(dataSet.zoneCount(), 0);
}
