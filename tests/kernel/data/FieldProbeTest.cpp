#include "ProbeFixture.h"

#include "kernel/probe/ProbedCell.h"

#include <cmath>

using namespace vantrix::kernel;

TEST_F(ProbeTest, AnIndexGivesTheStoredValues)
{
    show("flow3d");
    const auto data = document().activeDataSet();
    const auto [iMax, jMax, kMax] = data->zone(1)->dimensions();
    for (const auto& [i, j, k] : {std::array{1L, 1L, 1L}, {iMax, jMax, kMax}, {3L, 2L, 4L}}) {
        ASSERT_TRUE(probeIndex(i, j, k, 1)) << lastError();
        const long point = i + iMax * (j - 1 + jMax * (k - 1));
        EXPECT_EQ(VtxUtilProbeFieldGetPoint(), point);
        EXPECT_EQ(VtxUtilProbeFieldGetCell(), 0);
        for (long variable = 1; variable <= data->variableCount(); ++variable) {
            const double stored = data->field(1, variable)->values->GetComponent(point - 1, 0);
            EXPECT_TRUE(VtxUtilProbeFieldIsVarValid(variable));
            EXPECT_EQ(VtxUtilProbeFieldGetValue(variable), stored);
            double byPosition = 0.0;
            EXPECT_TRUE(VtxUtilDataValueGetByZoneVar(1, variable, point, &byPosition));
            EXPECT_EQ(byPosition, stored);
        }
    }
}

TEST_F(ProbeTest, ACellCentredValueAtAPointIsTheMeanOfTheCellsAround)
{
    show("polyhedra");
    const auto data = document().activeDataSet();
    ASSERT_EQ(VtxUtilDataValueGetLocation(1, 5), ValueLocation_CellCentered);
    ASSERT_TRUE(probeIndex(40, 1, 1, 1)) << lastError();
    double sum = 0.0;
    int count = 0;
    vtkNew<vtkIdList> corners;
    for (vtkIdType cell = 0; cell < grid(1)->GetNumberOfCells(); ++cell) {
        grid(1)->GetCellPoints(cell, corners);
        if (corners->IsId(39) >= 0) {
            sum += data->field(1, 5)->values->GetComponent(cell, 0);
            ++count;
        }
    }
    ASSERT_GT(count, 1);
    EXPECT_DOUBLE_EQ(VtxUtilProbeFieldGetValue(5), sum / count);
    EXPECT_FALSE(VtxUtilProbeFieldIsCellCenterValid(5));
}

TEST_F(ProbeTest, ASurfaceIsProbedNearItAndNowhereElse)
{
    showBox();
    const Zone& zone = *document().activeDataSet()->zone(1);
    const struct
    {
        Position at;
        IJKPlanes_e plane;
        std::array<long, 3> first;
    } places[] = {{{5.0, 1.5, 2.25}, IJKPlanes_I, {5, 1, 2}},
                  {{-0.01, 3.5, 0.5}, IJKPlanes_I, {0, 3, 0}},
                  {{2.25, 4.02, 1.5}, IJKPlanes_J, {2, 4, 1}},
                  {{4.5, 0.5, 3.0}, IJKPlanes_K, {4, 0, 3}}};
    for (const auto& place : places) {
        ASSERT_TRUE(probeAt(place.at)) << lastError();
        EXPECT_EQ(VtxUtilProbeFieldGetPlane(), place.plane);
        EXPECT_EQ(VtxUtilProbeFieldGetCell(), pointNumber(zone, place.first) + 1);
        EXPECT_EQ(VtxUtilProbeFieldGetCellNodeCount(), 4);
        EXPECT_EQ(VtxUtilProbeFieldGetFaceCount(), 4);
        Position found{};
        ASSERT_TRUE(VtxUtilProbeFieldGetPosition(&found[0], &found[1], &found[2]));
        for (std::size_t axis = 0; axis < 3; ++axis) {
            EXPECT_NEAR(found[axis], std::clamp(place.at[axis], 0.0, 5.0 - static_cast<double>(axis)), 1e-6);
            EXPECT_NEAR(VtxUtilProbeFieldGetValue(static_cast<long>(axis) + 1), found[axis], 1e-6);
        }
    }
    const Position inside{2.5, 2.5, 1.5};
    EXPECT_FALSE(probeAt(inside));
    EXPECT_TRUE(probeAt(inside, true)) << lastError();
    EXPECT_EQ(VtxUtilProbeFieldGetPlane(), IJKPlanes_Volume);
    EXPECT_EQ(VtxUtilProbeFieldGetCellNodeCount(), 8);
    EXPECT_EQ(VtxUtilProbeFieldGetCellCenterValue(1), 2.5);
    EXPECT_FALSE(probeAt({5.5, 1.5, 2.5})) << "too far from the surface";

    const Position onSurface = places[0].at;
    set("FieldMap/Surfaces/SurfacesToPlot", long{SurfacesToPlot_None}, 1);
    EXPECT_FALSE(probeAt(onSurface)) << "a surface that is not drawn";
    set("FieldMap/Surfaces/SurfacesToPlot", long{SurfacesToPlot_BoundaryFaces}, 1);
    set("ActiveFieldMaps", 0L, 1);
    EXPECT_FALSE(probeAt(onSurface)) << "a zone that is not shown";
}

TEST_F(ProbeTest, PlanesOfConstantIndexAreProbedWhereTheyAreDrawn)
{
    showBox();
    const Zone& zone = *document().activeDataSet()->zone(1);
    set("FieldMap/Surfaces/SurfacesToPlot", long{SurfacesToPlot_IKPlanes}, 1);
    set("FieldMap/Surfaces/IRange/Min", 2L, 1);
    set("FieldMap/Surfaces/IRange/Max", 5L, 1);
    set("FieldMap/Surfaces/IRange/Skip", 2L, 1);
    set("FieldMap/Surfaces/KRange/Min", 4L, 1);
    const struct
    {
        Position at;
        IJKPlanes_e plane; // volume: on none
        std::array<long, 3> first;
    } places[] = {{{1.0, 2.5, 1.5}, IJKPlanes_I, {1, 2, 1}}, {{3.001, 0.25, 2.75}, IJKPlanes_I, {3, 0, 2}},
                  {{2.5, 3.5, 3.0}, IJKPlanes_K, {2, 3, 3}}, {{2.0, 2.5, 1.5}, IJKPlanes_Volume, {}},
                  {{5.0, 2.5, 1.5}, IJKPlanes_Volume, {}},   {{2.5, 2.0, 1.5}, IJKPlanes_Volume, {}},
                  {{2.5, 2.5, 0.0}, IJKPlanes_Volume, {}},   {{1.25, 2.5, 1.5}, IJKPlanes_Volume, {}}};
    for (const auto& place : places) {
        SCOPED_TRACE(testing::PrintToString(place.at));
        ASSERT_EQ(probeAt(place.at), place.plane != IJKPlanes_Volume);
        if (place.plane != IJKPlanes_Volume) {
            EXPECT_EQ(VtxUtilProbeFieldGetPlane(), place.plane);
            EXPECT_EQ(VtxUtilProbeFieldGetCell(), pointNumber(zone, place.first) + 1);
            EXPECT_EQ(VtxUtilProbeFieldGetCellNodeCount(), 4);
            EXPECT_NEAR(VtxUtilProbeFieldGetValue(1), place.at[0], 1e-12);
        }
    }
    set("FieldMap/Surfaces/SurfacesToPlot", long{SurfacesToPlot_EveryFace}, 1);
    EXPECT_TRUE(probeAt({2.5, 2.0, 1.5})) << "a J plane";
    set("FieldMap/Surfaces/SurfacesToPlot", long{SurfacesToPlot_ExposedFaces}, 1);
    EXPECT_FALSE(probeAt({2.5, 2.0, 1.5})) << "inside";
    ASSERT_TRUE(probeAt({2.5, 0.0, 1.5})) << lastError();
    EXPECT_EQ(VtxUtilProbeFieldGetPlane(), IJKPlanes_J);
}

TEST_F(ProbeTest, AFlatPlotShowsTheFirstLayerOfAVolume)
{
    show("flow3d");
    set("PlotType", long{PlotType_Cartesian2D});
    const auto source = grid(1);
    const Zone& zone = *document().activeDataSet()->zone(1);
    std::mt19937 random(3);
    const Position at = placeIn(*source, 10, random);
    ASSERT_TRUE(probeAt({at[0], at[1], 99.0})) << lastError();
    EXPECT_EQ(VtxUtilProbeFieldGetPlane(), IJKPlanes_K);
    EXPECT_EQ(VtxUtilProbeFieldGetCell(), pointNumber(zone, {10, 0, 0}) + 1);
    EXPECT_NEAR(VtxUtilProbeFieldGetValue(VtxUtilVarGetNumByAssignment('X')), at[0], 1e-5);
}

TEST_F(ProbeTest, TheCellOfTheNearestPointIsTheOneThatHoldsThePosition)
{
    const LockScope lock;
    ASSERT_TRUE(VtxUtilCreateRectangularZone(6, 5, 1, 0, 0, 0, 5, 4, 0, FieldDataType_Double)) << lastError();
    const struct
    {
        Position at;
        long cell;
    } cases[] = {{{2.2, 2.1, 0.0}, 15}, {{1.8, 2.1, 0.0}, 14}, {{2.2, 1.9, 0.0}, 9}, {{1.8, 1.9, 0.0}, 8}};
    for (const auto& [at, cell] : cases) {
        ASSERT_TRUE(probeAt(at, false, true)) << lastError();
        EXPECT_EQ(VtxUtilProbeFieldGetPoint(), 15);
        EXPECT_EQ(VtxUtilProbeFieldGetCell(), cell) << at[0] << ", " << at[1];
    }
}

TEST_F(ProbeTest, TheNearestPointIsTheNearestOfAllZones)
{
    show("mixed");
    std::vector<vtkSmartPointer<vtkDataSet>> grids;
    for (long zone = 1; zone <= VtxUtilDataSetGetNumZones(); ++zone) {
        grids.push_back(grid(zone));
    }
    set("ActiveFieldMaps", 0L, 1); // of volumes only the surface counts; surfaces and lines remain
    set("ActiveFieldMaps", 0L, 2);
    std::mt19937 random(5);
    std::uniform_real_distribution<double> anywhere(-4.0, 4.0);
    for (int i = 0; i < 20; ++i) {
        const Position at{anywhere(random), anywhere(random), anywhere(random)};
        const auto distanceTo = [&](const double* p) { return std::hypot(p[0] - at[0], p[1] - at[1], p[2] - at[2]); };
        ASSERT_TRUE(probeAt(at, false, true)) << lastError();
        double nearest = 1e300;
        for (std::size_t zone = 2; zone < grids.size(); ++zone) {
            for (vtkIdType point = 0; point < grids[zone]->GetNumberOfPoints(); ++point) {
                nearest = std::min(nearest, distanceTo(grids[zone]->GetPoint(point)));
            }
        }
        const auto zone = static_cast<std::size_t>(VtxUtilProbeFieldGetZone() - 1);
        EXPECT_NEAR(distanceTo(grids[zone]->GetPoint(VtxUtilProbeFieldGetPoint() - 1)), nearest, 1e-9);
    }
}
