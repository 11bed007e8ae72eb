#include "view/ZoneSurface.h"
#include "view/FeatureEdges.h"
#include "view/ZonePoints.h"

#include "kernel/BlankedZone.h"

#include <gtest/gtest.h>

#include <vtkCell.h>
#include <vtkCellArray.h>
#include <vtkDoubleArray.h>
#include <vtkIdTypeArray.h>
#include <vtkMath.h>
#include <vtkPointData.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>
#include <vtkStructuredGrid.h>

#include <array>
#include <cmath>

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
    auto grid = vtkSmartPointer<vtkStructuredGrid>::New();
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
        int cells;
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

TEST(ZoneSurface, LeavesBlankedCellsOut)
{
    const auto grid = block(5, 4, 3); // 4 x 3 x 2 cells
    const auto blanked = std::make_shared<kernel::BlankedZone>();
    blanked->points.assign(60, 0);
    blanked->cells.assign(24, 0);
    blanked->cells[0] = 1; // at a corner of the block
    struct Case
    {
        SurfacesToPlot_e faces;
        long cells;
    };
    for (const Case& expected : {Case{SurfacesToPlot_BoundaryFaces, 52 - 3},
                                 {SurfacesToPlot_ExposedFaces, 52 - 3 + 3},
                                 {SurfacesToPlot_IPlanes, 30 - 1}}) {
        view::ZoneSurface surface;
        surface.set(grid, {expected.faces, {}}, 1.0, blanked);
        EXPECT_EQ(surface.surface()->GetNumberOfCells(), expected.cells) << expected.faces;
        for (vtkIdType i = 0; i < surface.surface()->GetNumberOfPoints(); ++i) {
            std::array<double, 3> place{};
            grid->GetPoint(surface.pointNumbers()->GetValue(i), place.data());
            std::array<double, 3> drawn{};
            surface.surface()->GetPoint(i, drawn.data());
            EXPECT_EQ(drawn, place);
        }
        // Twelve edges, of which three are shorter by the one cell.
        EXPECT_EQ(surface.edges(EdgeType_Borders)->GetNumberOfCells(), 4 * (4 + 3 + 2) - 3) << expected.faces;
    }
    blanked->points[59] = 1;
    view::ZoneSurface surface;
    surface.set(grid, {}, 1.0, blanked);
    view::ZonePoints points;
    points.set(surface, {PointsToPlot_AllNodes, {1, 1, 1}});
    EXPECT_EQ(points.places().size(), 59U);
    points.set(surface, {PointsToPlot_AllCellCenters, {1, 1, 1}});
    EXPECT_EQ(points.places().size(), 23U);
}

TEST(ZoneSurface, TrimsCellsAlongStraightLines)
{
    const auto grid = block(5, 4, 1); // 4 x 3 squares
    const auto blanked = std::make_shared<kernel::BlankedZone>();
    blanked->points.assign(20, 0);
    blanked->cells.assign(12, 0);
    kernel::FieldArray field = numbered(20, ValueLocation_Nodal);
    blanked->trimming.resize(2);
    for (vtkIdType i = 0; i < 20; ++i) {
        const double* at = grid->GetPoint(i);
        blanked->trimming[0].push_back(at[0] + at[1] - 2.5);
        blanked->trimming[1].push_back(3.25 - at[0]);
        field.values->SetComponent(i, 0, 3.0 * at[0] - 2.0 * at[1]);
    }
    view::ZoneSurface surface;
    surface.set(grid, {}, 1.0, blanked);
    const auto colored = surface.withValues(surface.surface(), field);
    double area = 0.0;
    for (vtkIdType cell = 0; cell < colored->GetNumberOfCells(); ++cell) {
        vtkPoints* corners = colored->GetCell(cell)->GetPoints();
        for (vtkIdType i = 0; i < corners->GetNumberOfPoints(); ++i) {
            std::array<double, 3> a{};
            std::array<double, 3> b{};
            corners->GetPoint(i, a.data());
            corners->GetPoint((i + 1) % corners->GetNumberOfPoints(), b.data());
            area += 0.5 * (a[0] * b[1] - a[1] * b[0]);
        }
    }
    EXPECT_NEAR(area, 3.25 * 3.0 - 0.5 * 2.5 * 2.5, 1e-6);
    for (vtkIdType i = 0; i < colored->GetNumberOfPoints(); ++i) {
        const double* at = colored->GetPoint(i);
        EXPECT_GE(at[0] + at[1], 2.5 - 1e-6);
        EXPECT_LE(at[0], 3.25 + 1e-6);
        EXPECT_NEAR(colored->GetPointData()->GetScalars()->GetComponent(i, 0), 3.0 * at[0] - 2.0 * at[1], 1e-5);
    }
    double length = 0.0;
    vtkPolyData* borders = surface.edges(EdgeType_Borders);
    for (vtkIdType cell = 0; cell < borders->GetNumberOfCells(); ++cell) {
        length += std::sqrt(borders->GetCell(cell)->GetLength2());
    }
    EXPECT_NEAR(length, (3.25 - 2.5) + 3.25 + (3.0 - 2.5), 1e-6) << "the border along X and Y, no new one";
}

TEST(ZoneSurface, KeepsItsExtentWhenItIsThinned)
{
    const auto grid = block(31, 21, 1);
    for (const double kept : {0.5, 0.1, 0.02}) {
        view::ZoneSurface surface;
        surface.set(grid, {}, kept);
        vtkPolyData* thin = surface.surface();
        EXPECT_NEAR(double(thin->GetNumberOfPoints()), kept * 31 * 21, 0.4 * kept * 31 * 21);
        std::array<double, 6> bounds{};
        thin->GetBounds(bounds.data());
        EXPECT_EQ(bounds, (std::array{0.0, 30.0, 0.0, 20.0, 0.0, 0.0})) << kept;
    }
}

TEST(FeatureEdges, AreThoseOfOnePolygonAloneAndThoseWhereTwoMeetSharply)
{
    for (const double degrees : {30.0, 60.0}) {
        const double angle = vtkMath::RadiansFromDegrees(degrees);
        const auto sheet = vtkSmartPointer<vtkPolyData>::New();
        const auto points = vtkSmartPointer<vtkPoints>::New();
        const auto quads = vtkSmartPointer<vtkCellArray>::New();
        for (const double y : {0.0, 1.0}) {
            points->InsertNextPoint(-1.0, y, 0.0);
            points->InsertNextPoint(0.0, y, 0.0);
            points->InsertNextPoint(std::cos(angle), y, std::sin(angle));
        }
        quads->InsertNextCell({0, 1, 4, 3});
        quads->InsertNextCell({1, 2, 5, 4});
        sheet->SetPoints(points);
        sheet->SetPolys(quads);
        const int sharp = degrees > 35.0 ? 1 : 0;
        EXPECT_EQ(view::featureEdges(*sheet, true, false)->GetNumberOfLines(), 6);
        EXPECT_EQ(view::featureEdges(*sheet, false, true)->GetNumberOfLines(), sharp);
        EXPECT_EQ(view::featureEdges(*sheet, true, true)->GetNumberOfLines(), 6 + sharp);
    }
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
                                 {{PointsToPlot_SurfaceNodes, {1, 1, 1}}, 60 - 6},
                                 {{PointsToPlot_AllNodes, {2, 3, 2}}, 12},
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
