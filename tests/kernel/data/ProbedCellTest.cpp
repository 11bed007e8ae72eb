#include "ProbeFixture.h"

#include "kernel/probe/ProbedCell.h"

#include <vtkGenericCell.h>
#include <vtkUnstructuredGrid.h>

using namespace vantrix::kernel;

namespace {

/* The cells of a zone by the points of each of their faces. */
using CellsByFace = std::map<std::set<long>, std::vector<long>>;

CellsByFace cellsByFace(vtkDataSet& grid)
{
    CellsByFace result;
    vtkNew<vtkGenericCell> cell;
    for (vtkIdType number = 0; number < grid.GetNumberOfCells(); ++number) {
        grid.GetCell(number, cell);
        const bool isVolume = cell->GetCellDimension() == 3;
        for (int face = 0; face < (isVolume ? cell->GetNumberOfFaces() : cell->GetNumberOfEdges()); ++face) {
            vtkIdList* ids = (isVolume ? cell->GetFace(face) : cell->GetEdge(face))->GetPointIds();
            std::set<long> points;
            for (vtkIdType i = 0; i < ids->GetNumberOfIds(); ++i) {
                points.insert(static_cast<long>(ids->GetId(i)));
            }
            result[points].push_back(static_cast<long>(number));
        }
    }
    return result;
}

} // namespace

TEST_F(ProbeTest, NeighborsOfElementsAreThoseThatShareTheFace)
{
    for (const char* sample : {"mixed", "polyhedra", "fe2d"}) {
        show(sample);
        const auto data = document().activeDataSet();
        for (long zone = 1; zone <= data->zoneCount(); ++zone) {
            const auto source = grid(zone);
            auto* elements = vtkUnstructuredGrid::SafeDownCast(source);
            if (!elements || data->zone(zone)->topologicalDimension() < 2) {
                continue;
            }
            const CellsByFace expected = cellsByFace(*source);
            for (long number = 0; number < source->GetNumberOfCells(); number += 7) {
                const ProbedCell cell = ProbedCell::ofElement(*elements, number);
                ASSERT_GE(cell.faces.size(), 3U);
                for (const ProbedCell::Face& face : cell.faces) {
                    const auto& sharing = expected.at({face.points.begin(), face.points.end()});
                    const long other = sharing.size() < 2 ? -1 : sharing[sharing[0] == number ? 1 : 0];
                    EXPECT_EQ(face.neighbor, other + 1) << sample << " zone " << zone << " cell " << number + 1;
                }
            }
        }
    }
}

TEST_F(ProbeTest, NeighborsOfVolumeCellsOfAnOrderedZoneShareTheFace)
{
    showBox();
    const Zone& zone = *document().activeDataSet()->zone(1);
    const auto source = grid(1);
    const CellsByFace expected = cellsByFace(*source);
    vtkNew<vtkIdList> corners;
    for (long number = 0; number < source->GetNumberOfCells(); ++number) {
        source->GetCellPoints(number, corners);
        const auto first = pointIndices(zone, corners->GetId(0));
        const ProbedCell cell = ProbedCell::ofOrdered(zone, orderedCellIndex(zone, first, IJKPlanes_Volume));
        EXPECT_EQ(cell.index.storage, number);
        ASSERT_EQ(cell.faces.size(), 6U);
        for (const ProbedCell::Face& face : cell.faces) {
            const auto& sharing = expected.at({face.points.begin(), face.points.end()});
            long neighbor = 0;
            if (sharing.size() > 1) {
                source->GetCellPoints(sharing[sharing[0] == number ? 1 : 0], corners);
                neighbor = static_cast<long>(corners->GetId(0)) + 1;
            }
            EXPECT_EQ(face.neighbor, neighbor);
        }
    }
}

TEST_F(ProbeTest, TheFaceOfAPolyhedronIsToldThatWasProbedOnTheSurface)
{
    show("polyhedra");
    const auto source = grid(1);
    int probed = 0;
    for (const auto& [points, cells] : cellsByFace(*source)) {
        if (cells.size() != 1 || probed == 10) {
            continue;
        }
        Position middle{0.0, 0.0, 0.0};
        for (const long point : points) {
            for (std::size_t axis = 0; axis < 3; ++axis) {
                middle[axis] += source->GetPoint(point)[axis] / static_cast<double>(points.size());
            }
        }
        ASSERT_TRUE(probeAt(middle)) << lastError();
        ASSERT_EQ(VtxUtilProbeFieldGetCell(), cells.front() + 1);
        std::set<long> found;
        for (long corner = 1; corner <= VtxUtilProbeFieldGetFaceNodeCount(VtxUtilProbeFieldGetFace()); ++corner) {
            found.insert(VtxUtilProbeFieldGetFaceNode(VtxUtilProbeFieldGetFace(), corner) - 1);
        }
        EXPECT_EQ(found, points);
        ++probed;
    }
    EXPECT_EQ(probed, 10);
    std::mt19937 random(2);
    ASSERT_TRUE(probeAt(placeIn(*source, 0, random), true)) << lastError();
    EXPECT_EQ(VtxUtilProbeFieldGetFace(), 0) << "inside of the cell";
}

TEST_F(ProbeTest, BehindTheBorderIsTheCellOfTheZoneThatMeetsIt)
{
    const LockScope lock;
    ASSERT_TRUE(VtxUtilCreateRectangularZone(4, 4, 4, 0, 0, 0, 3, 3, 3, FieldDataType_Double)) << lastError();
    ASSERT_TRUE(VtxUtilCreateRectangularZone(3, 4, 4, 3, 0, 0, 5, 3, 3, FieldDataType_Double)) << lastError();
    ASSERT_TRUE(VtxUtilCreateRectangularZone(3, 7, 4, 0, 3, 0, 3, 6, 3, FieldDataType_Double)) << lastError();
    ASSERT_TRUE(VtxUtilFrameSetPlotType(PlotType_Cartesian3D)) << lastError();
    ASSERT_TRUE(probeAt({2.5, 2.5, 1.5}, true)) << lastError();
    ASSERT_EQ(VtxUtilProbeFieldGetZone(), 1);
    std::map<std::pair<long, long>, int> neighbors; // zone and cell
    for (long face = 1; face <= VtxUtilProbeFieldGetFaceCount(); ++face) {
        long cell = -1, zone = -1;
        ASSERT_TRUE(VtxUtilProbeFieldGetFaceNeighbor(face, &cell, &zone));
        ++neighbors[{zone, cell}];
    }
    const auto number = [](long i, long j, long k, long iMax, long jMax) {
        return i + iMax * (j - 1 + jMax * (k - 1));
    };
    const std::map<std::pair<long, long>, int> expected{
        {{1, number(2, 3, 2, 4, 4)}, 1}, {{1, number(3, 2, 2, 4, 4)}, 1}, {{1, number(3, 3, 1, 4, 4)}, 1},
        {{1, number(3, 3, 3, 4, 4)}, 1}, {{2, number(1, 3, 2, 3, 4)}, 1}, {{0, 0}, 1}};
    EXPECT_EQ(neighbors, expected) << "the third zone touches it, but its faces are others";
}
