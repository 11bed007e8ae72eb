#pragma once

#include "propertymanager/StylePropertyObservableProxy.h"
#include "propertymanager/UIStylePropertyWithRelevances.h"

namespace vantrix::sdk::ui::propertymanager {

/// A UI style property that stands for another property, which can be exchanged while widgets stay bound to this one.
template<typename T>
class UIStylePropertyProxy : public UIStylePropertyWithRelevances<T>
{
public:
    /// @param target  not owned; has to live as long as it is the target
    explicit UIStylePropertyProxy(PropertyAbstract<T>& target) { setProperty(target); }

    /// Stands for another property from now on. Signals when its value differs from that of the one before, which must
    /// still be alive.
    void setProperty(PropertyAbstract<T>& target)
    {
        PropertyAbstract<T>* const previous = m_target;
        if (previous == &target) {
            return;
        }
        m_target = &target;
        T const value = target.value();
        if (previous == nullptr || !(previous->value() == value)) {
            this->emitValueChangedSignal(value);
        }
        // The constructor starts to relay, before the relay of the target before ends.
        m_proxy = std::make_unique<StylePropertyObservableProxy<T>>(this->valueChangedSignal(), target);
    }

    void signalValueChangedConnected() const override { m_proxy->addOrRemoveStylePropertyListener(); }

    void storeValue(T const& value) override
    {
        m_target->validate(value);
        if (!m_target->isEqual(value)) {
            m_target->storeValue(value);
            m_target->emitValueChangedSignal(m_target->value());
        }
    }

    T retrieveValue() const override { return m_target->retrieveValue(); }

protected:
    PropertyAbstract<T>& target() const { return *m_target; }

private:
    PropertyAbstract<T>* m_target = nullptr;
    std::unique_ptr<StylePropertyObservableProxy<T>> m_proxy;
};

#define VX_EXTERN(T) extern template class UIStylePropertyProxy<T>;
VX_UI_PROPERTY_TYPES(VX_EXTERN)
#undef VX_EXTERN

} // namespace vantrix::sdk::ui::propertymanager
