#pragma once

#include "api/VtxEnumerations.h"

#include <array>
#include <optional>
#include <vector>

namespace vantrix::kernel {

class StyleStore;

/* Whether a choice of surfaces asks for planes of constant I (0), J (1) or K (2). */
bool hasPlanes(SurfacesToPlot_e surfaces, std::size_t axis);

/* The planes of constant I, J and K that a 3D plot draws of an ordered volume. */
class ShownPlanes
{
public:
    struct Plane
    {
        IJKPlanes_e family;
        long index; /* from 0 */

        bool operator==(const Plane&) const = default;
    };

    /* `dimensions` are those of the zone. */
    ShownPlanes(const StyleStore& style, long frame, long zone, const std::array<long, 3>& dimensions);

    /* The plane that a place is on, in indices from 0 and between them; nothing where it is on none. */
    std::optional<Plane> at(const std::array<double, 3>& place) const;

    std::vector<Plane> all() const;

private:
    struct Range
    {
        long first = 0;
        long last = -1; /* before `first` where none is drawn */
        long skip = 1;
    };
    std::array<Range, 3> m_ranges;
};

} // namespace vantrix::kernel
