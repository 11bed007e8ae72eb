#include "kernel/OrderedZones.h"

#include "kernel/DataError.h"
#include "kernel/FieldValues.h"
#include "kernel/Parallel.h"

#include <vtkDoubleArray.h>
#include <vtkFloatArray.h>

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <utility>

namespace vantrix::kernel {

namespace {

void expectDimension(const char* name, long value, long least)
{
    if (value < least || value > std::numeric_limits<int>::max()) {
        throw DataError(std::string("The ") + name + " dimension is " + std::to_string(value) + "; it must be from " +
                        std::to_string(least) + " to " + std::to_string(std::numeric_limits<int>::max()) + ".");
    }
}

void expectPlace(const char* name, double value, FieldDataType_e type)
{
    const double limit = type == FieldDataType_Float ? static_cast<double>(std::numeric_limits<float>::max())
                                                     : std::numeric_limits<double>::max();
    if (!(std::abs(value) <= limit)) {
        throw DataError(std::string("The ") + name + " is not a number that " +
                        (type == FieldDataType_Float ? "single" : "double") +
                        " precision holds; it must lie within +/-" +
                        (type == FieldDataType_Float ? "3.4028e+38." : "1.7976e+308."));
    }
}

void expectFloatingPoint(FieldDataType_e type)
{
    if (type != FieldDataType_Float && type != FieldDataType_Double) {
        throw DataError("A zone is created with values of single (1) or double precision (2); the data type " +
                        std::to_string(static_cast<int>(type)) + " cannot hold coordinates.");
    }
}

/* The coordinates, the zeros of the other variables, and the points that a plot makes of them. */
void expectMemory(const std::array<long, 3>& dimensions, FieldDataType_e type)
{
    const double points =
        static_cast<double>(dimensions[0]) * static_cast<double>(dimensions[1]) * static_cast<double>(dimensions[2]);
    if (points * static_cast<double>(valueSize(type)) * 7.0 > availableMemory()) {
        throw DataError("The index values are too large: " + std::to_string(dimensions[0]) + " x " +
                        std::to_string(dimensions[1]) + " x " + std::to_string(dimensions[2]) +
                        " points are more than there is memory for.");
    }
}

/* `count` numbers evenly spaced, both ends exact. */
std::vector<double> spaced(long count, double first, double last)
{
    std::vector<double> values(static_cast<std::size_t>(count), first);
    for (long i = 1; i < count; ++i) {
        values[static_cast<std::size_t>(i)] =
            std::lerp(first, last, static_cast<double>(i) / static_cast<double>(count - 1));
    }
    return values;
}

template<typename T, typename ValueAt>
void fillOrdered(T* values, const std::array<long, 3>& dimensions, const ValueAt& valueAt)
{
    const auto [iMax, jMax, kMax] = dimensions;
    parallelFor(jMax * kMax, [&, iCount = iMax, jCount = jMax](long begin, long end) {
        for (long row = begin; row < end; ++row) {
            T* target = values + row * iCount;
            for (long i = 0; i < iCount; ++i) {
                target[i] = static_cast<T>(valueAt(static_cast<std::size_t>(i), static_cast<std::size_t>(row % jCount),
                                                   static_cast<std::size_t>(row / jCount)));
            }
        }
    });
}

/* Fills the coordinate of one axis, where a variable serves as it. */
template<typename ValueAt>
void setCoordinate(Zone& zone, long variable, FieldDataType_e type, const ValueAt& valueAt)
{
    if (variable < 1 || variable > static_cast<long>(zone.fields.size())) {
        return;
    }
    const vtkSmartPointer<vtkDataArray> values = makeValues(type, zone.pointCount());
    if (auto* singles = vtkFloatArray::FastDownCast(values)) {
        fillOrdered(singles->GetPointer(0), zone.dimensions(), valueAt);
    } else {
        fillOrdered(vtkDoubleArray::FastDownCast(values)->GetPointer(0), zone.dimensions(), valueAt);
    }
    zone.fields[static_cast<std::size_t>(variable - 1)].values = values;
}

void setOthersToZero(Zone& zone, FieldDataType_e type)
{
    vtkSmartPointer<vtkDataArray> zeros;
    for (FieldArray& field : zone.fields) {
        if (field.isAvailable()) {
            continue;
        }
        if (!zeros) {
            zeros = makeZeros(type, zone.pointCount());
        }
        field.values = zeros;
    }
}

} // namespace

Zone makeZone(const CircularZone& circle, long variableCount, const CoordinateVariables& coordinates)
{
    expectFloatingPoint(circle.dataType);
    expectDimension("I", circle.iMax, 2);
    expectDimension("J", circle.jMax, 2);
    expectDimension("K", circle.kMax, 1);
    expectPlace("X origin", circle.xOrigin, circle.dataType);
    expectPlace("Y origin", circle.yOrigin, circle.dataType);
    expectPlace("minimum of Z", circle.zMin, circle.dataType);
    expectPlace("maximum of Z", circle.zMax, circle.dataType);
    expectPlace("radius", circle.radius, circle.dataType);
    if (circle.radius <= 0.0) {
        throw DataError("The radius must be greater than 0.");
    }
    expectPlace("edge of the zone", std::abs(circle.xOrigin) + circle.radius, circle.dataType);
    expectPlace("edge of the zone", std::abs(circle.yOrigin) + circle.radius, circle.dataType);
    Zone zone = Zone::ordered("Circular zone", circle.iMax, circle.jMax, circle.kMax);
    expectMemory(zone.dimensions(), circle.dataType);

    const std::vector<double> radii = spaced(circle.iMax, 0.0, circle.radius);
    const std::vector<double> heights = spaced(circle.kMax, circle.zMin, circle.zMax);
    std::vector<double> cosines, sines;
    for (const double angle : spaced(circle.jMax, 0.0, 2.0 * std::numbers::pi)) {
        cosines.push_back(std::cos(angle));
        sines.push_back(std::sin(angle));
    }
    /* The seam is closed exactly, whatever rounding does to the full turn. */
    cosines.back() = cosines.front();
    sines.back() = sines.front();

    zone.fields.resize(static_cast<std::size_t>(variableCount));
    setCoordinate(zone, coordinates[0], circle.dataType,
                  [&](std::size_t i, std::size_t j, std::size_t) { return circle.xOrigin + radii[i] * cosines[j]; });
    setCoordinate(zone, coordinates[1], circle.dataType,
                  [&](std::size_t i, std::size_t j, std::size_t) { return circle.yOrigin + radii[i] * sines[j]; });
    setCoordinate(zone, coordinates[2], circle.dataType,
                  [&](std::size_t, std::size_t, std::size_t k) { return heights[k]; });
    setOthersToZero(zone, circle.dataType);
    return zone;
}

Zone makeZone(const RectangularZone& box, long variableCount, const CoordinateVariables& coordinates)
{
    expectFloatingPoint(box.dataType);
    expectDimension("I", box.iMax, 1);
    expectDimension("J", box.jMax, 1);
    expectDimension("K", box.kMax, 1);
    const std::pair<const char*, double> places[] = {{"minimum of X", box.xMin}, {"maximum of X", box.xMax},
                                                     {"minimum of Y", box.yMin}, {"maximum of Y", box.yMax},
                                                     {"minimum of Z", box.zMin}, {"maximum of Z", box.zMax}};
    for (const auto& [name, place] : places) {
        expectPlace(name, place, box.dataType);
    }
    Zone zone = Zone::ordered("Rectangular zone", box.iMax, box.jMax, box.kMax);
    expectMemory(zone.dimensions(), box.dataType);

    const std::vector<double> x = spaced(box.iMax, box.xMin, box.xMax);
    const std::vector<double> y = spaced(box.jMax, box.yMin, box.yMax);
    const std::vector<double> z = spaced(box.kMax, box.zMin, box.zMax);
    zone.fields.resize(static_cast<std::size_t>(variableCount));
    setCoordinate(zone, coordinates[0], box.dataType, [&](std::size_t i, std::size_t, std::size_t) { return x[i]; });
    setCoordinate(zone, coordinates[1], box.dataType, [&](std::size_t, std::size_t j, std::size_t) { return y[j]; });
    setCoordinate(zone, coordinates[2], box.dataType, [&](std::size_t, std::size_t, std::size_t k) { return z[k]; });
    setOthersToZero(zone, box.dataType);
    return zone;
}

} // namespace vantrix::kernel
