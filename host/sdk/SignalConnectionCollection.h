#pragma once

#include <boost/signals2.hpp>

#include <vector>

namespace vantrix::sdk {

/// Owns connections: disconnects them when it is cleared or goes.
class SignalConnectionCollection
{
public:
    SignalConnectionCollection() = default;
    ~SignalConnectionCollection();
    SignalConnectionCollection(SignalConnectionCollection&&) = default;
    SignalConnectionCollection& operator=(SignalConnectionCollection&&) = default;

    void add(boost::signals2::connection const& connection);

    /// Disconnects all. May be called from a slot of one of them.
    void clear();

    /// True when nothing added is connected any more.
    bool empty() const;

    /// Keeps the connections that a collection has now from being called, while it lives.
    class ConnectionBlocker
    {
    public:
        explicit ConnectionBlocker(SignalConnectionCollection const& collection);

    private:
        std::vector<boost::signals2::shared_connection_block> m_blocks;
    };

private:
    std::vector<boost::signals2::scoped_connection> m_connections;
};

} // namespace vantrix::sdk
