#include "kernel/samples/Samples.h"

#include <algorithm>
#include <cmath>
#include <numbers>

namespace vantrix::kernel::samples {

namespace {

constexpr double halfWidth = 4.0;
constexpr double plateEnd = 9.0;

struct Stress
{
    double xx, yy, xy;
    double vonMises() const { return std::sqrt(xx * xx - xx * yy + yy * yy + 3.0 * xy * xy); }
    double energy() const { return 0.5 * (xx * xx + yy * yy - 0.6 * xx * yy + 2.6 * xy * xy); }
};

/* Kirsch's solution for a hole of radius 1 in an infinite plate that is pulled along X with unit stress. */
Stress stressAt(double x, double y)
{
    const double r2 = std::max(x * x + y * y, 1.0), r4 = r2 * r2;
    const double angle = std::atan2(y, x);
    const double c2 = std::cos(2.0 * angle), c4 = std::cos(4.0 * angle);
    const double s2 = std::sin(2.0 * angle), s4 = std::sin(4.0 * angle);
    return {1.0 - (1.5 * c2 + c4) / r2 + 1.5 * c4 / r4, -(0.5 * c2 - c4) / r2 - 1.5 * c4 / r4,
            -(0.5 * s2 + s4) / r2 + 1.5 * s4 / r4};
}

std::array<double, 6> valuesAt(double x, double y)
{
    const Stress stress = stressAt(x, y);
    return {x, y, stress.xx, stress.yy, stress.xy, stress.vonMises()};
}

double coordinate(const Zone& zone, std::size_t axis, vtkIdType point)
{
    return zone.fields[axis].values->GetComponent(point, 0);
}

void addEnergy(Zone& zone)
{
    fillCells(zone, [&](long cell) {
        vtkIdType count = 0;
        const vtkIdType* points = nullptr;
        zone.cells()->GetCellAtId(cell, count, points);
        double x = 0.0, y = 0.0;
        for (vtkIdType corner = 0; corner < count; ++corner) {
            x += coordinate(zone, 0, points[corner]) / static_cast<double>(count);
            y += coordinate(zone, 1, points[corner]) / static_cast<double>(count);
        }
        return stressAt(x, y).energy();
    });
}

/* Quadrilaterals between the hole and a square; the ring is closed, so that its seam has no points twice. */
Zone makeRing()
{
    constexpr long around = 128, rings = 33;
    const auto cells = vtkSmartPointer<vtkCellArray>::New();
    for (long j = 0; j + 1 < rings; ++j) {
        for (long i = 0; i < around; ++i) {
            const long next = (i + 1) % around;
            addCell(*cells, {j * around + i, (j + 1) * around + i, (j + 1) * around + next, j * around + next});
        }
    }
    Zone zone = Zone::finiteElement("Around the hole", ZoneType_FEQuad, around * rings, cells);
    fillNodal<6>(zone, [](long point) {
        const double angle = 2.0 * std::numbers::pi * static_cast<double>(point % around) / around;
        const double t = std::floor(static_cast<double>(point) / around) / (rings - 1);
        const double c = std::cos(angle), s = std::sin(angle);
        const double edge = halfWidth / std::max(std::abs(c), std::abs(s));
        const double r = 1.0 + (edge - 1.0) * std::expm1(1.8 * t) / std::expm1(1.8);
        return valuesAt(r * c, r * s);
    });
    addEnergy(zone);
    return zone;
}

Zone makeEnd()
{
    constexpr long columns = 31, rows = 49;
    const auto cells = vtkSmartPointer<vtkCellArray>::New();
    for (long j = 0; j + 1 < rows; ++j) {
        for (long i = 0; i + 1 < columns; ++i) {
            const vtkIdType a = j * columns + i, b = a + 1, c = b + columns, d = a + columns;
            if ((i + j) % 2 == 0) {
                addCell(*cells, {a, b, c});
                addCell(*cells, {a, c, d});
            } else {
                addCell(*cells, {a, b, d});
                addCell(*cells, {b, c, d});
            }
        }
    }
    Zone zone = Zone::finiteElement("Far end", ZoneType_FETriangle, columns * rows, cells);
    fillNodal<6>(zone, [](long point) {
        const double x = halfWidth + (plateEnd - halfWidth) * static_cast<double>(point % columns) / (columns - 1);
        const double y = halfWidth * (2.0 * std::floor(static_cast<double>(point) / columns) / (rows - 1) - 1.0);
        return valuesAt(x, y);
    });
    addEnergy(zone);
    return zone;
}

} // namespace

void makePlate(DataSet& dataSet)
{
    setVariables(dataSet, {"X", "Y", "Stress XX", "Stress YY", "Stress XY", "Von Mises Stress", "Strain Energy"});
    dataSet.addZone(makeRing());
    dataSet.addZone(makeEnd());
}

} // namespace vantrix::kernel::samples
