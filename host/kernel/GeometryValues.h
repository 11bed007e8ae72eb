#pragma once

#include "kernel/Geometry.h"
#include "kernel/ObjectValue.h"

namespace vantrix::kernel {

template<>
struct ObjectTraits<Geometry>
{
    static constexpr const char* noun = "geometry";
    static constexpr const char* handleArgument = "GeometryID";
    static constexpr StateChange_e stateChange = StateChange_Geometry;

    /* All of them, in the order in which they are written. */
    static std::span<const ObjectValue<Geometry>> values();

    /* Throws DataError for a line whose points cannot be read, and for another shape in 3D. */
    static void check(const Geometry& geometry);
};

} // namespace vantrix::kernel
