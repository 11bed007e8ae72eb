#include "view/ZoneSurface.h"
#include "view/ZonePoints.h"

#include <gtest/gtest.h>

#include <vtkDoubleArray.h>
#include <vtkIdTypeArray.h>
#include <vtkPointData.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>
#include <vtkStructuredGrid.h>

using namespace vantrix;
using view::PointSelection;
using view::SurfaceSelection;

namespace {

/* An ordered block whose points are at their indices. */
vtkSmartPointer<vtkStructuredGrid> block(int iMax, int jMax, int kMax)
{
    const auto points = vtkSmartPointer<vtkPoints>::New();
    for (int k = 0; k < kMax; ++k) {
        for (int j = 0; j < jMax; ++j) {
            for (int i = 0; i < iMax; ++i) {
                points->InsertNextPoint(i, j, k);
            }
        }
    }
    const auto grid = vtkSmartPointer<vtkStructuredGrid>::New();
    grid->SetDimensions(iMax, jMax, kMax);
    grid->SetPoints(points);
    return grid;
}

kernel::FieldArray numbered(vtkIdType count, ValueLocation_e location)
{
    const auto values = vtkSmartPointer<vtkDoubleArray>::New();
    for (vtkIdType i = 0; i < count; ++i) {
        values->InsertNextValue(double(i));
    }
    kernel::FieldArray field;
    field.values = values;
    field.location = location;
    return field;
}

} // namespace

TEST(ZoneSurface, DrawsTheChosenFacesOfAVolume)
{
    const auto grid = block(5, 4, 3);
    struct Case
    {
        SurfacesToPlot_e faces;
        long cells;
    };
    for (const Case& expected : {Case{SurfacesToPlot_None, 0},
                                 {SurfacesToPlot_BoundaryFaces, 2 * (12 + 8 + 6)},
                                 {SurfacesToPlot_IPlanes, 5 * 6},
                                 {SurfacesToPlot_JPlanes, 4 * 8},
                                 {SurfacesToPlot_KPlanes, 3 * 12},
                                 {SurfacesToPlot_IJPlanes, 30 + 32},
                                 {SurfacesToPlot_IJKPlanes, 30 + 32 + 36},
                                 {SurfacesToPlot_EveryFace, 30 + 32 + 36}}) {
        view::ZoneSurface surface;
        surface.set(grid, {expected.faces, {}});
        EXPECT_EQ(surface.surface()->GetNumberOfCells(), expected.cells) << expected.faces;
    }
    view::ZoneSurface flat;
    flat.set(block(5, 4, 1), {SurfacesToPlot_None, {}});
    EXPECT_EQ(flat.surface()->GetNumberOfCells(), 12) << "the choice is about volumes";
}

TEST(ZoneSurface, TakesPlanesByIndexAndTheirValues)
{
    const auto grid = block(5, 4, 3);
    view::ZoneSurface surface;
    SurfaceSelection selection{SurfacesToPlot_IPlanes, {}};
    selection.planes[0] = {2, 5, 2};
    surface.set(grid, selection);
    vtkPolyData* planes = surface.surface();
    ASSERT_EQ(planes->GetNumberOfPoints(), 2 * 12);
    const auto nodal = surface.withValues(planes, numbered(60, ValueLocation_Nodal));
    for (vtkIdType i = 0; i < planes->GetNumberOfPoints(); ++i) {
        const double* at = planes->GetPoint(i);
        EXPECT_TRUE(at[0] == 1.0 || at[0] == 3.0);
        EXPECT_EQ(nodal->GetPointData()->GetScalars()->GetComponent(i, 0), at[0] + 5.0 * at[1] + 20.0 * at[2]);
    }
    // The cell-centred value of a plane's quadrilateral is that of the cell behind it.
    EXPECT_EQ(surface.cellNumbers()->GetValue(0), 1);
}

TEST(ZoneSurface, IsMadeAgainOnlyForAnotherShape)
{
    const auto grid = block(3, 3, 3);
    view::ZoneSurface surface;
    surface.set(grid, {});
    vtkPolyData* first = surface.surface();
    const unsigned long revision = surface.revision();
    surface.set(grid, {});
    EXPECT_EQ(surface.surface(), first);
    EXPECT_EQ(surface.revision(), revision);
    surface.set(grid, {SurfacesToPlot_KPlanes, {}});
    EXPECT_NE(surface.revision(), revision);
}

TEST(ZonePoints, TakesTheChosenPointsWithTheirValues)
{
    const auto grid = block(5, 4, 3);
    view::ZoneSurface surface;
    surface.set(grid, {});
    struct Case
    {
        PointSelection selection;
        std::size_t count;
    };
    for (const Case& expected : {Case{{PointsToPlot_AllNodes, {1, 1, 1}}, 60},
                                 {{PointsToPlot_SurfaceNodes, {1, 1, 1}}, 60 - 3 * 2 * 1},
                                 {{PointsToPlot_AllNodes, {2, 3, 2}}, 3 * 2 * 2},
                                 {{PointsToPlot_AllCellCenters, {1, 1, 1}}, 24},
                                 {{PointsToPlot_SurfaceCellCenters, {1, 1, 1}}, 24}}) {
        view::ZonePoints points;
        points.set(surface, expected.selection);
        EXPECT_EQ(points.places().size(), expected.count) << expected.selection.points;
    }
    view::ZonePoints centres;
    centres.set(surface, {PointsToPlot_AllCellCenters, {1, 1, 1}});
    EXPECT_EQ(centres.places().front(), (std::array{0.5, 0.5, 0.5}));
    EXPECT_EQ(centres.values(numbered(60, ValueLocation_Nodal)).front(), (0 + 1 + 5 + 6 + 20 + 21 + 25 + 26) / 8.0);
    EXPECT_EQ(centres.values(numbered(24, ValueLocation_CellCentered)).back(), 23.0);
    view::ZonePoints nodes;
    nodes.set(surface, {PointsToPlot_AllNodes, {1, 1, 1}});
    EXPECT_EQ(nodes.values(numbered(24, ValueLocation_CellCentered)).front(), 0.0) << "one cell around a corner";
    EXPECT_EQ(nodes.values(numbered(24, ValueLocation_CellCentered))[1], 0.5);
}
