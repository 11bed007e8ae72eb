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

constexpr long valuesBetweenReports = 4'000'000;

template<typename T, typename ValueAt>
void fillRows(T* values, const std::array<long, 3>& dimensions, long begin, long end, const ValueAt& valueAt)
{
    const long iMax = dimensions[0];
    const long jMax = dimensions[1];
    parallelFor(end - begin, [&](long first, long last) {
        for (long row = begin + first; row < begin + last; ++row) {
            T* target = values + row * iMax;
            for (long i = 0; i < iMax; ++i) {
                target[i] = static_cast<T>(valueAt(static_cast<std::size_t>(i), static_cast<std::size_t>(row % jMax),
                                                   static_cast<std::size_t>(row / jMax)));
            }
        }
    });
}

/* Fills the coordinates of a zone one after another and reports how far it is. */
class CoordinateFiller
{
public:
    CoordinateFiller(Zone& zone, FieldDataType_e type, const ReportProgress& progress)
        : m_zone(zone)
        , m_type(type)
        , m_progress(progress)
    {}

    /* Fills the coordinate of the next axis, where a variable serves as it. */
    template<typename ValueAt>
    void fill(long variable, const ValueAt& valueAt)
    {
        if (variable >= 1 && variable <= static_cast<long>(m_zone.fields.size())) {
            const vtkSmartPointer<vtkDataArray> values = makeValues(m_type, m_zone.pointCount());
            if (auto* singles = vtkFloatArray::FastDownCast(values)) {
                fill(singles->GetPointer(0), valueAt);
            } else {
                fill(vtkDoubleArray::FastDownCast(values)->GetPointer(0), valueAt);
            }
            m_zone.fields[static_cast<std::size_t>(variable - 1)].values = values;
        }
        ++m_filledCount;
    }

private:
    template<typename T, typename ValueAt>
    void fill(T* values, const ValueAt& valueAt) const
    {
        const auto dimensions = m_zone.dimensions();
        const long rows = dimensions[1] * dimensions[2];
        const long rowsAtOnce = std::max(1L, valuesBetweenReports / dimensions[0]);
        for (long row = 0; row < rows; row += rowsAtOnce) {
            if (m_progress && !m_progress((m_filledCount + double(row) / double(rows)) / 3.0)) {
                throw ActionCancelled();
            }
            fillRows(values, dimensions, row, std::min(rows, row + rowsAtOnce), valueAt);
        }
    }

    Zone& m_zone;
    FieldDataType_e m_type;
    const ReportProgress& m_progress;
    int m_filledCount = 0;
};

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

Zone makeZone(const CircularZone& circle, long variableCount, const CoordinateVariables& coordinates,
              const ReportProgress& progress)
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
    CoordinateFiller filler(zone, circle.dataType, progress);
    filler.fill(coordinates[0],
                [&](std::size_t i, std::size_t j, std::size_t) { return circle.xOrigin + radii[i] * cosines[j]; });
    filler.fill(coordinates[1],
                [&](std::size_t i, std::size_t j, std::size_t) { return circle.yOrigin + radii[i] * sines[j]; });
    filler.fill(coordinates[2], [&](std::size_t, std::size_t, std::size_t k) { return heights[k]; });
    setOthersToZero(zone, circle.dataType);
    return zone;
}

Zone makeZone(const RectangularZone& box, long variableCount, const CoordinateVariables& coordinates,
              const ReportProgress& progress)
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
    CoordinateFiller filler(zone, box.dataType, progress);
    filler.fill(coordinates[0], [&](std::size_t i, std::size_t, std::size_t) { return x[i]; });
    filler.fill(coordinates[1], [&](std::size_t, std::size_t j, std::size_t) { return y[j]; });
    filler.fill(coordinates[2], [&](std::size_t, std::size_t, std::size_t k) { return z[k]; });
    setOthersToZero(zone, box.dataType);
    return zone;
}

} // namespace vantrix::kernel
