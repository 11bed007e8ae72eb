#include "kernel/samples/Samples.h"

#include <cmath>
#include <numbers>

namespace vantrix::kernel::samples {

namespace {

constexpr long side = 11; /* points along an edge of the cubes */

std::array<double, 4> valuesAt(double x, double y, double z)
{
    return {x, y, z, std::sin(2.5 * x) * std::cos(2.0 * y) + 0.5 * z};
}

std::array<double, 4> cubeValues(long point, double zMin)
{
    const auto place = [](long index) { return 2.0 * static_cast<double>(index) / (side - 1) - 1.0; };
    return valuesAt(place(point % side), place(point / side % side), zMin + 1.0 + place(point / (side * side)));
}

/* The corners of the small cubes, in the order of a hexahedron. */
std::vector<std::array<vtkIdType, 8>> smallCubes()
{
    std::vector<std::array<vtkIdType, 8>> result;
    for (long k = 0; k + 1 < side; ++k) {
        for (long j = 0; j + 1 < side; ++j) {
            for (long i = 0; i + 1 < side; ++i) {
                const vtkIdType a = (k * side + j) * side + i, up = side * side;
                result.push_back(
                    {a, a + 1, a + 1 + side, a + side, a + up, a + 1 + up, a + 1 + side + up, a + side + up});
            }
        }
    }
    return result;
}

Zone makeBricks()
{
    const auto cells = vtkSmartPointer<vtkCellArray>::New();
    for (const auto& cube : smallCubes()) {
        addCell(*cells, {cube.begin(), cube.end()});
    }
    Zone zone = Zone::finiteElement("Bricks", ZoneType_FEBrick, side * side * side, cells);
    fillNodal<4>(zone, [](long point) { return cubeValues(point, -2.0); });
    return zone;
}

Zone makeTetrahedra()
{
    /* The six tetrahedra along one diagonal of a cube, which fit those of the neighbours. */
    constexpr std::size_t corners[6][4] = {{0, 1, 2, 6}, {0, 2, 3, 6}, {0, 3, 7, 6},
                                           {0, 7, 4, 6}, {0, 4, 5, 6}, {0, 5, 1, 6}};
    const auto cells = vtkSmartPointer<vtkCellArray>::New();
    for (const auto& cube : smallCubes()) {
        for (const auto& tetra : corners) {
            addCell(*cells, {cube[tetra[0]], cube[tetra[1]], cube[tetra[2]], cube[tetra[3]]});
        }
    }
    Zone zone = Zone::finiteElement("Tetrahedra", ZoneType_FETetra, side * side * side, cells);
    fillNodal<4>(zone, [](long point) { return cubeValues(point, 0.25); });
    return zone;
}

Zone makeGround()
{
    constexpr long count = 25;
    const auto cells = vtkSmartPointer<vtkCellArray>::New();
    for (long j = 0; j + 1 < count; ++j) {
        for (long i = 0; i + 1 < count; ++i) {
            const vtkIdType a = j * count + i;
            addCell(*cells, {a, a + 1, a + 1 + count, a + count});
        }
    }
    Zone zone = Zone::finiteElement("Quadrilaterals", ZoneType_FEQuad, count * count, cells);
    fillNodal<4>(zone, [](long point) {
        const double x = 6.0 * static_cast<double>(point % count) / (count - 1) - 3.0;
        const double y = 6.0 * std::floor(static_cast<double>(point) / count) / (count - 1) - 3.0;
        return valuesAt(x, y, -2.3 + 0.1 * std::cos(x) * std::cos(y));
    });
    return zone;
}

Zone makeRoof()
{
    constexpr long rows = 21, columns = 33;
    const auto cells = vtkSmartPointer<vtkCellArray>::New();
    for (long j = 0; j + 1 < rows; ++j) {
        for (long i = 0; i + 1 < columns; ++i) {
            const vtkIdType a = j * columns + i;
            addCell(*cells, {a, a + 1, a + columns});
            addCell(*cells, {a + 1, a + 1 + columns, a + columns});
        }
    }
    Zone zone = Zone::finiteElement("Triangles", ZoneType_FETriangle, rows * columns, cells);
    fillNodal<4>(zone, [](long point) {
        const double x = 3.2 * static_cast<double>(point % columns) / (columns - 1) - 1.6;
        const double y = 3.2 * std::floor(static_cast<double>(point) / columns) / (rows - 1) - 1.6;
        return valuesAt(x, y, 3.6 - 0.35 * (x * x + y * y) / 2.0);
    });
    return zone;
}

Zone makeSpiral()
{
    constexpr long count = 241;
    const auto cells = vtkSmartPointer<vtkCellArray>::New();
    for (vtkIdType i = 0; i + 1 < count; ++i) {
        addCell(*cells, {i, i + 1});
    }
    Zone zone = Zone::finiteElement("Line segments", ZoneType_FELineSeg, count, cells);
    fillNodal<4>(zone, [](long point) {
        const double t = static_cast<double>(point) / (count - 1);
        const double angle = 8.0 * std::numbers::pi * t;
        return valuesAt(2.0 * std::cos(angle), 2.0 * std::sin(angle), -2.0 + 5.0 * t);
    });
    return zone;
}

} // namespace

void makeMixedCells(DataSet& dataSet)
{
    setVariables(dataSet, {"X", "Y", "Z", "Value"});
    dataSet.addZone(makeBricks());
    dataSet.addZone(makeTetrahedra());
    dataSet.addZone(makeGround());
    dataSet.addZone(makeRoof());
    dataSet.addZone(makeSpiral());
}

} // namespace vantrix::kernel::samples
