#pragma once

#include <vtkDataArray.h>
#include <vtkDataSet.h>
#include <vtkPoints.h>
#include <vtkSmartPointer.h>

#include <array>
#include <string>
#include <vector>

namespace vantrix::kernel {

/*
 * The grids made of one zone, a few at most: one for each choice of coordinates in use. A copy of a zone starts with
 * the points alone, which it can use again as long as it has the same coordinate arrays; its grid is another one.
 */
class ZoneGridCache
{
public:
    struct Entry
    {
        std::array<vtkSmartPointer<vtkDataArray>, 3> coordinates; /* null where a coordinate is 0 throughout */
        vtkSmartPointer<vtkPoints> points;
        std::array<long, 3> axes{0, 0, 0};
        std::vector<std::string> names;   /* of the arrays, as the variables were called; empty where not in memory */
        vtkSmartPointer<vtkDataSet> grid; /* null in a copy */
    };

    ZoneGridCache() = default;
    ZoneGridCache(const ZoneGridCache& other);
    ZoneGridCache& operator=(const ZoneGridCache& other);
    ZoneGridCache(ZoneGridCache&&) = default;
    ZoneGridCache& operator=(ZoneGridCache&&) = default;

    /* Lets go of values that leave the memory, and of what was made of them. */
    void forget(const vtkDataArray& values);

    std::vector<Entry> entries; /* the one used last in front */
};

} // namespace vantrix::kernel
