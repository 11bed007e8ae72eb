#pragma once

#include <vtkType.h>

#include <array>

namespace vantrix::view {

/* I, J and K of a point or cell of an ordered zone, from 0, or how many there are along each. */
using GridIndex = std::array<vtkIdType, 3>;

/* The number of a point or cell among `size`, I counting fastest. */
inline vtkIdType numberAt(const GridIndex& index, const GridIndex& size)
{
    return (index[2] * size[1] + index[1]) * size[0] + index[0];
}

} // namespace vantrix::view
