#include "kernel/samples/Samples.h"

#include <vtkIdTypeArray.h>

#include <algorithm>
#include <cmath>
#include <map>

namespace vantrix::kernel::samples {

namespace {

using Place = std::array<int, 3>;

int dot(const Place& a, const Place& b)
{
    return a[0] * b[0] + a[1] * b[1] + a[2] * b[2];
}

/* The permutations of (0, +-1, +-2). */
std::vector<Place> corners()
{
    std::vector<Place> result;
    for (int x = -2; x <= 2; ++x) {
        for (int y = -2; y <= 2; ++y) {
            for (int z = -2; z <= 2; ++z) {
                if (std::abs(x) + std::abs(y) + std::abs(z) == 3 && x * y * z == 0) {
                    result.push_back({x, y, z});
                }
            }
        }
    }
    return result;
}

/* The corners on one face, in order around its outward normal. */
std::vector<Place> face(const Place& normal, int distance)
{
    std::vector<Place> result;
    for (const Place& corner : corners()) {
        if (dot(corner, normal) == distance) {
            result.push_back(corner);
        }
    }
    const double length = std::sqrt(dot(normal, normal));
    const Place& first = result.front();
    std::array<double, 3> u{}, v{};
    for (std::size_t c = 0; c < 3; ++c) {
        u[c] = first[c] - distance * normal[c] / (length * length);
    }
    for (std::size_t c = 0; c < 3; ++c) {
        v[c] = (normal[(c + 1) % 3] * u[(c + 2) % 3] - normal[(c + 2) % 3] * u[(c + 1) % 3]) / length;
    }
    const auto angle = [&](const Place& p) {
        return std::atan2(p[0] * v[0] + p[1] * v[1] + p[2] * v[2], p[0] * u[0] + p[1] * u[1] + p[2] * u[2]);
    };
    std::sort(result.begin(), result.end(), [&](const Place& a, const Place& b) { return angle(a) < angle(b); });
    return result;
}

std::vector<std::vector<Place>> faces()
{
    std::vector<std::vector<Place>> result;
    for (const int sign : {-1, 1}) {
        result.push_back(face({sign, 0, 0}, 2));
        result.push_back(face({0, sign, 0}, 2));
        result.push_back(face({0, 0, sign}, 2));
    }
    for (const int x : {-1, 1}) {
        for (const int y : {-1, 1}) {
            for (const int z : {-1, 1}) {
                result.push_back(face({x, y, z}, 3));
            }
        }
    }
    return result;
}

/* The cells fill space when their centres form a body-centred lattice. */
std::vector<Place> centres(int count)
{
    std::vector<Place> result;
    for (int i = 0; i < count; ++i) {
        for (int j = 0; j < count; ++j) {
            for (int k = 0; k < count; ++k) {
                result.push_back({4 * i, 4 * j, 4 * k});
                if (i + 1 < count && j + 1 < count && k + 1 < count) {
                    result.push_back({4 * i + 2, 4 * j + 2, 4 * k + 2});
                }
            }
        }
    }
    return result;
}

Place sum(const Place& a, const Place& b)
{
    return {a[0] + b[0], a[1] + b[1], a[2] + b[2]};
}

} // namespace

void makePolyhedra(DataSet& dataSet)
{
    setVariables(dataSet, {"X", "Y", "Z", "Potential", "Cell Distance"});
    const std::vector<Place> cellCorners = corners();
    const std::vector<std::vector<Place>> cellFaces = faces();
    const std::vector<Place> cellCentres = centres(4);

    std::map<Place, vtkIdType> numbers;
    std::vector<Place> places;
    const auto number = [&](const Place& place) {
        const auto [found, isNew] = numbers.try_emplace(place, static_cast<vtkIdType>(places.size()));
        if (isNew) {
            places.push_back(place);
        }
        return found->second;
    };
    const auto cells = vtkSmartPointer<vtkCellArray>::New();
    const auto stream = vtkSmartPointer<vtkIdTypeArray>::New();
    const auto locations = vtkSmartPointer<vtkIdTypeArray>::New();
    for (const Place& centre : cellCentres) {
        std::vector<vtkIdType> points;
        points.reserve(cellCorners.size());
        for (const Place& corner : cellCorners) {
            points.push_back(number(sum(centre, corner)));
        }
        addCell(*cells, points);
        locations->InsertNextValue(stream->GetNumberOfValues());
        stream->InsertNextValue(static_cast<vtkIdType>(cellFaces.size()));
        for (const std::vector<Place>& face : cellFaces) {
            stream->InsertNextValue(static_cast<vtkIdType>(face.size()));
            for (const Place& corner : face) {
                stream->InsertNextValue(number(sum(centre, corner)));
            }
        }
    }

    Zone zone = Zone::finiteElement("Foam", ZoneType_FEPolyhedron, static_cast<long>(places.size()), cells);
    zone.polyhedronFaces = stream;
    zone.polyhedronFaceLocations = locations;
    fillNodal<4>(zone, [&](long point) {
        const Place& place = places[static_cast<std::size_t>(point)];
        const double x = place[0] / 4.0, y = place[1] / 4.0, z = place[2] / 4.0;
        return std::array<double, 4>{x, y, z, std::sin(1.6 * x) * std::cos(1.6 * y) + 0.4 * z};
    });
    fillCells(zone, [&](long cell) {
        const Place& centre = cellCentres[static_cast<std::size_t>(cell)];
        return std::hypot(centre[0] / 4.0 - 1.5, centre[1] / 4.0 - 1.5, centre[2] / 4.0 - 1.5);
    });
    dataSet.addZone(std::move(zone));
}

} // namespace vantrix::kernel::samples
