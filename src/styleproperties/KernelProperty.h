#pragma once

#include "sdk/SignalConnectionCollection.h"
#include "styleproperties/KernelPropertyAbstract.h"
#include "styleproperties/StyleValueTransport.h"
#include "toolbox/StateChangeEventInterface.h"

namespace vantrix::sdk::styleproperties {

/// A style value of the host as a property: a get asks the host, a set writes to it at once.
///
/// A get is also a refresh: one that finds another value than the last signals it. While somebody listens to the
/// value-changed signal, every state change of the host refreshes. A get that the host cannot answer gives the last
/// value that was read or written (at first the zero of T), and tells nobody.
///
/// setValue() throws InvalidPropertyValueException with the host's text when the host does not take the value; nothing
/// has changed then. When the host takes it but keeps another one, the next set is written whatever its value.
template<typename T>
class KernelProperty : public KernelPropertyAbstract<T>, public virtual PropertyAbstract<T>
{
public:
    /// Reads the value of the object that the offsets address; -1 addresses none.
    explicit KernelProperty(toolbox::StyleValue const& styleValue, long first = -1, long second = -1);

    void setOffsets(long first, long second) override;

    ~KernelProperty() override;

    void storeValue(T const& value) override;

    /// Compares with the host's present value.
    bool isEqual(T const& value) const override;

    T retrieveValue() const override;

    void signalValueChangedConnected() const override;

private:
    using Transport = StyleValueTransport<T>;

    void prepareRead();
    bool readFromHost(T& value) const;
    void stateChanged(toolbox::StateChangeEventInterface const& event) const;

    mutable T m_cached{};
    toolbox::CheckedStyleValue m_styleValue;
    long m_first;
    long m_second;
    bool m_forceWrite = false;
    mutable bool m_emitOnRefresh = true;
    mutable SignalConnectionCollection m_connections;

    // A state change makes every listening property read, so a read has its argument list ready and is left out while
    // the host's stamp tells that the value cannot have changed.
    mutable typename Transport::Raw m_raw{};
    toolbox::ArgList m_getArguments;
    mutable unsigned long m_stampOfCached = 0;
};

} // namespace vantrix::sdk::styleproperties

#include "styleproperties/KernelPropertyImpl.h"

namespace vantrix::sdk::styleproperties {

#define VX_EXTERN(T) extern template class KernelProperty<T>;
VX_KERNEL_PROPERTY_TYPES(VX_EXTERN)
#undef VX_EXTERN

} // namespace vantrix::sdk::styleproperties
