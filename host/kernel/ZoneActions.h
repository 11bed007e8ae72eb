#pragma once

#include "kernel/OrderedZones.h"

#include <set>

namespace vantrix::kernel {

class Kernel;

/*
 * What changes which zones the active frame's data set has; one part each of the undo step under way. All throw
 * DataError, and change nothing, when it cannot be done.
 */
class ZoneActions
{
public:
    explicit ZoneActions(Kernel& kernel)
        : m_kernel(kernel)
    {}

    /* See VtxUtilCreateCircularZone() and VtxUtilCreateRectangularZone(). */
    void create(const CircularZone& zone) { createZone(zone); }
    void create(const RectangularZone& zone) { createZone(zone); }

    /* See VtxUtilDataSetDeleteZone(). */
    void remove(const std::set<long>& zones);

    /* See VtxUtilDataValueLoad(). */
    void load(long zone, const std::set<long>& variables);

private:
    template<class Description>
    void createZone(const Description& description);

    Kernel& m_kernel;
};

} // namespace vantrix::kernel
