#pragma once

#include <boost/signals2.hpp>

namespace vantrix {

/// A property of whatever type: something that tells that it has changed.
class PropertyItemInterface
{
public:
    using PropertyChangedSignal = boost::signals2::signal<void()>;

    PropertyItemInterface();
    PropertyItemInterface(PropertyItemInterface const&) = delete;
    PropertyItemInterface& operator=(PropertyItemInterface const&) = delete;

    /// Called after a slot was connected to the property-changed signal. Does nothing.
    virtual void signalPropertyChangedConnected() const;

    virtual ~PropertyItemInterface();

    /// Connects a slot `void()` that is called after every change of the value, before the typed listeners.
    template<typename Slot>
    boost::signals2::connection connectToPropertyChangedSignal(Slot const& slot) const
    {
        boost::signals2::connection connection = m_propertyChanged.connect(slot);
        signalPropertyChangedConnected();
        return connection;
    }

protected:
    mutable PropertyChangedSignal m_propertyChanged;
};

} // namespace vantrix
