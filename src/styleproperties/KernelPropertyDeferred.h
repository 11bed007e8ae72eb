#pragma once

#include "styleproperties/KernelProperty.h"

namespace vantrix::sdk::styleproperties {

/// A style value of the host that is edited locally and written by apply(): for dialogs with OK and Cancel.
///
/// Addressing another object discards what was edited. State changes of the host do not reach the local value.
template<typename T>
class KernelPropertyDeferred : public KernelPropertyAbstract<T>, public virtual PropertyAbstract<T>
{
public:
    /// Reads the value of the object that the offsets address; -1 addresses none.
    explicit KernelPropertyDeferred(toolbox::StyleValue const& styleValue, long first = -1, long second = -1);

    void setOffsets(long first, long second) override;

    ~KernelPropertyDeferred() override;

    /// Writes the local value to the host unless the host has it.
    /// @throws InvalidPropertyValueException when the host does not take it; the local value stays
    virtual void apply();

    void storeValue(T const& value) override;
    T retrieveValue() const override;

private:
    T m_local;
    KernelProperty<T> m_inner;
    long m_first;
    long m_second;
};

template<typename T>
KernelPropertyDeferred<T>::KernelPropertyDeferred(toolbox::StyleValue const& styleValue, long first, long second)
    : m_local()
    , m_inner(styleValue, first, second)
    , m_first(first)
    , m_second(second)
{
    m_local = m_inner.value();
}

template<typename T>
KernelPropertyDeferred<T>::~KernelPropertyDeferred() = default;

template<typename T>
void KernelPropertyDeferred<T>::setOffsets(long first, long second)
{
    m_first = first;
    m_second = second;
    m_inner.setOffsets(first, second);
    T const value = m_inner.value();
    if (!(value == m_local)) {
        m_local = value;
        this->emitValueChangedSignal(value);
    }
}

template<typename T>
void KernelPropertyDeferred<T>::apply()
{
    m_inner.validate(m_local);
    if (!m_inner.isEqual(m_local)) {
        m_inner.setValue(m_local);
    }
}

template<typename T>
void KernelPropertyDeferred<T>::storeValue(T const& value)
{
    m_local = value;
}

template<typename T>
T KernelPropertyDeferred<T>::retrieveValue() const
{
    return m_local;
}

#define VX_EXTERN(T) extern template class KernelPropertyDeferred<T>;
VX_KERNEL_PROPERTY_TYPES(VX_EXTERN)
#undef VX_EXTERN

} // namespace vantrix::sdk::styleproperties
