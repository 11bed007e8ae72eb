#pragma once

#include "propertymanager/StylePropertyObservableProxy.h"
#include "propertymanager/UIStylePropertyWithRelevances.h"
#include "styleproperties/KernelPropertyDeferred.h"

#include <stdexcept>

namespace vantrix::sdk::ui::propertymanager {

/// A UI style property that mirrors one style value of the host, at once or, when deferred, from apply() on. It listens
/// to the host only while somebody listens to it.
template<typename T>
class UIKernelStyleProperty : public UIStylePropertyWithRelevances<T>
{
public:
    /// @param deferred       keep edits until apply()
    /// @param first, second  the object that the path addresses; -1 where it addresses none
    UIKernelStyleProperty(bool deferred, toolbox::StyleValue const& path, int first = -1, int second = -1)
    {
        if (deferred) {
            m_deferred = boost::make_shared<styleproperties::KernelPropertyDeferred<T>>(path, first, second);
            m_kernelProperty = m_deferred;
        } else {
            m_kernelProperty = boost::make_shared<styleproperties::KernelProperty<T>>(path, first, second);
        }
        m_proxy = std::make_unique<StylePropertyObservableProxy<T>>(this->valueChangedSignal(), *m_kernelProperty);
    }

    /// Addresses another object; an edit that was not applied is lost.
    void setOffsets(long first, long second) { m_kernelProperty->setOffsets(first, second); }

    /// Writes a deferred value to the host unless the host has it.
    /// @throws InvalidPropertyValueException when the host does not take it
    /// @throws std::logic_error for a property that was not made deferred
    void apply()
    {
        if (!m_deferred) {
            throw std::logic_error("apply() was called on a style property that writes at once.");
        }
        m_deferred->apply();
    }

    void signalValueChangedConnected() const override { m_proxy->addOrRemoveStylePropertyListener(); }

    void storeValue(T const& value) override
    {
        m_kernelProperty->validate(value);
        if (!m_kernelProperty->isEqual(value)) {
            m_kernelProperty->setValue(value);
        }
    }

    T retrieveValue() const override { return m_kernelProperty->retrieveValue(); }

private:
    boost::shared_ptr<styleproperties::KernelPropertyAbstract<T>> m_kernelProperty;
    boost::shared_ptr<styleproperties::KernelPropertyDeferred<T>> m_deferred;
    std::unique_ptr<StylePropertyObservableProxy<T>> m_proxy;
};

#define VX_EXTERN(T) extern template class UIKernelStyleProperty<T>;
VX_UI_PROPERTY_TYPES(VX_EXTERN)
#undef VX_EXTERN

} // namespace vantrix::sdk::ui::propertymanager
