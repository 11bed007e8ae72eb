#pragma once

#include "propertymanager/generated/MemberRefusedException.h"
#include "styleproperties/KernelProperty.h"
#include "styleproperties/KernelPropertyDeferred.h"

#include <boost/make_shared.hpp>
#include <boost/shared_ptr.hpp>

namespace vantrix::sdk::ui::propertymanager {

/// One member of a generated property set, held twice: as the kernel property, which offsets and submission reach, and
/// as what the set hands out, at first the same object. Replacing the second leaves the first where it is.
template<typename T>
class PropertySetMember
{
public:
    PropertySetMember(bool modal, toolbox::StringList const& path);

    boost::shared_ptr<PropertyAbstract<T>> const& exposed() const { return m_exposed; }
    void setExposed(boost::shared_ptr<PropertyAbstract<T>> property) { m_exposed = std::move(property); }

    void setOffsets(int first, int second) { m_kernel->setOffsets(first, second); }

    /// Writes a deferred value to the host when it differs there; nothing for an immediate one.
    /// @throws MemberRefusedException
    void submit();

private:
    boost::shared_ptr<styleproperties::KernelPropertyAbstract<T>> m_kernel;
    boost::shared_ptr<PropertyAbstract<T>> m_exposed;
};

template<typename T>
PropertySetMember<T>::PropertySetMember(bool modal, toolbox::StringList const& path)
{
    toolbox::StyleValue const styleValue(path);
    if (modal) {
        m_kernel = boost::make_shared<styleproperties::KernelPropertyDeferred<T>>(styleValue);
    } else {
        m_kernel = boost::make_shared<styleproperties::KernelProperty<T>>(styleValue);
    }
    m_exposed = m_kernel;
}

template<typename T>
void PropertySetMember<T>::submit()
{
    if (auto* deferred = dynamic_cast<styleproperties::KernelPropertyDeferred<T>*>(m_kernel.get())) {
        applyMember(*deferred, m_exposed);
    }
}

#define VX_EXTERN(T) extern template class PropertySetMember<T>;
VX_KERNEL_PROPERTY_TYPES(VX_EXTERN)
#undef VX_EXTERN

} // namespace vantrix::sdk::ui::propertymanager
