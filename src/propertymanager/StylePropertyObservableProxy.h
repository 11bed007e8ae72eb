#pragma once

#include "property/PropertyAbstract.h"
#include "sdk/SignalConnectionCollection.h"

#include <memory>

namespace vantrix::sdk::ui::propertymanager {

/// Relays the value-changed signal of a wrapped property into that of its wrapper, only while the wrapper has
/// listeners.
template<typename T>
class StylePropertyObservableProxy
{
public:
    using Signal = typename PropertyAbstract<T>::ValueChangedSignal;

    /// @param signal   the wrapper's value-changed signal
    /// @param wrapped  the property to relay; both must outlive this object
    StylePropertyObservableProxy(Signal& signal, PropertyAbstract<T> const& wrapped)
        : m_signal(signal)
        , m_wrapped(wrapped)
    {
        addOrRemoveStylePropertyListener();
    }

    /// Starts to relay when the wrapper has listeners, stops when it has none. Called each time a slot was connected to
    /// the wrapper's signal; a relay that finds nobody listening stops by itself.
    void addOrRemoveStylePropertyListener() const
    {
        if (PropertyAbstract<T>::listenerCount(m_signal) == 0) {
            m_connections.reset();
        } else if (!m_connections) {
            m_connections = std::make_unique<SignalConnectionCollection>();
            m_connections->add(m_wrapped.connectToValueChangedSignal(
                boost::bind(&StylePropertyObservableProxy::relay, this, boost::placeholders::_1)));
        }
    }

private:
    void relay(T const& value) const
    {
        if (PropertyAbstract<T>::listenerCount(m_signal) == 0) {
            m_connections.reset();
            return;
        }
        m_signal(value);
    }

    Signal& m_signal;
    PropertyAbstract<T> const& m_wrapped;
    mutable std::unique_ptr<SignalConnectionCollection> m_connections;
};

} // namespace vantrix::sdk::ui::propertymanager
