#include "view/DashedLines.h"
#include "view/layers/FieldLayer.h"

#include <gtest/gtest.h>

#include <vtkCell.h>
#include <vtkCellArray.h>
#include <vtkDoubleArray.h>
#include <vtkPointData.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>

#include <cmath>

using namespace vantrix;

namespace {

/* The edges of a grid of squares, in no good order. */
vtkSmartPointer<vtkPolyData> gridEdges(int columns, int rows)
{
    const auto points = vtkSmartPointer<vtkPoints>::New();
    const auto values = vtkSmartPointer<vtkDoubleArray>::New();
    for (int j = 0; j < rows; ++j) {
        for (int i = 0; i < columns; ++i) {
            points->InsertNextPoint(i, j, 0);
            values->InsertNextValue(10.0 * i + j);
        }
    }
    const auto lines = vtkSmartPointer<vtkCellArray>::New();
    for (int j = 0; j < rows; ++j) {
        for (int i = columns - 2; i >= 0; --i) {
            lines->InsertNextCell({vtkIdType{j} * columns + i + 1, vtkIdType{j} * columns + i});
        }
    }
    for (int j = 0; j + 1 < rows; ++j) {
        for (int i = 0; i < columns; ++i) {
            lines->InsertNextCell({vtkIdType{j} * columns + i, (vtkIdType{j} + 1) * columns + i});
        }
    }
    auto edges = vtkSmartPointer<vtkPolyData>::New();
    edges->SetPoints(points);
    edges->SetLines(lines);
    edges->GetPointData()->SetScalars(values);
    return edges;
}

double length(vtkPolyData& lines)
{
    double sum = 0.0;
    for (vtkIdType i = 0; i < lines.GetNumberOfCells(); ++i) {
        sum += std::sqrt(lines.GetCell(i)->GetLength2());
    }
    return sum;
}

view::Placement pictureOf(double scale, double width, double height)
{
    view::Placement placement;
    placement.scale = {scale, scale, 0.0};
    placement.size = {width, height};
    return placement;
}

} // namespace

TEST(LineChains, ComeOutAsTheLinesOfAGrid)
{
    const auto edges = gridEdges(5, 4);
    const auto chains = view::lineChains(*edges);
    // Two rows and three columns inside, and the border, which runs on over its corners.
    EXPECT_EQ(chains.size(), 6U);
    std::size_t segments = 0;
    for (const view::LineChain& chain : chains) {
        const bool isBorder = chain.points.front() == chain.points.back();
        EXPECT_TRUE(isBorder ? chain.points.size() == 15 : chain.points.size() == 5 || chain.points.size() == 4);
        ASSERT_EQ(chain.cells.size() + 1, chain.points.size());
        segments += chain.cells.size();
    }
    EXPECT_EQ(long(segments), edges->GetNumberOfCells());
}

TEST(DashedLines, KeepTheirShareOfTheLinesAndTheirValues)
{
    const auto edges = gridEdges(5, 4);
    const auto chains = view::lineChains(*edges);
    // A repetition of 5 pixels where a square has 40: as many dashes as fit
    // exactly.
    const auto dashes = view::dashedLines(*edges, chains, LinePattern_Dashed, 5.0, pictureOf(40.0, 1000.0, 1000.0));
    EXPECT_NEAR(length(*dashes), 0.6 * length(*edges), 1e-4);
    for (vtkIdType i = 0; i < dashes->GetNumberOfPoints(); ++i) {
        const double* at = dashes->GetPoint(i);
        EXPECT_NEAR(dashes->GetPointData()->GetScalars()->GetComponent(i, 0), 10.0 * at[0] + at[1], 1e-4);
    }
    // A pattern longer than a segment runs on: over the border of 560 pixels, and lines of 160 and 120.
    const auto wide = view::dashedLines(*edges, chains, LinePattern_Dashed, 100.0, pictureOf(40.0, 1000.0, 1000.0));
    EXPECT_NEAR(length(*wide) * 40.0, (5 * 60.0 + 60.0) + 2 * (60.0 + 60.0) + 3 * (60.0 + 20.0), 1e-3);
    EXPECT_EQ(view::dashedLines(*edges, chains, LinePattern_Solid, 5.0, {}), edges);
}

TEST(DashedLines, AreMadeOfWhatAPictureShows)
{
    const auto edges = gridEdges(5, 4);
    // Of a picture of 1.5 x 1.5 squares, magnified so much that the whole would
    // have millions of dashes.
    const auto dashes =
        view::dashedLines(*edges, view::lineChains(*edges), LinePattern_Dotted, 5.0, pictureOf(1e6, 1000.0, 1000.0));
    EXPECT_LT(dashes->GetNumberOfCells(), 1000);
    EXPECT_NEAR(length(*dashes) * 1e6, 0.4 * 2 * 1000.0, 5.0);
}
