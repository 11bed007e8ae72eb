#pragma once

#include "property/PropertyAbstract.h"
#include "styleproperties/KernelPropertyTypes.h"

namespace vantrix {

#define VX_EXTERN(T) extern template class PropertyAbstract<T>;
VX_KERNEL_PROPERTY_ENUMERATIONS(VX_EXTERN)
#undef VX_EXTERN

namespace sdk::styleproperties {

/// A property whose value is a style value of the host, addressed by a style path and up to two object offsets.
template<typename T>
class KernelPropertyAbstract : public virtual PropertyAbstract<T>
{
public:
    /// Addresses another object: a frame, axis, zone, constraint ... as the path means them; -1 where it means none.
    /// Signals when the value differs from that of the object before.
    virtual void setOffsets(long first, long second) = 0;

    ~KernelPropertyAbstract() override = default;
};

} // namespace sdk::styleproperties

} // namespace vantrix
