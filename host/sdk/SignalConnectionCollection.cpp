#include "sdk/SignalConnectionCollection.h"

#include <algorithm>

namespace vantrix::sdk {

SignalConnectionCollection::~SignalConnectionCollection() = default;

void SignalConnectionCollection::add(boost::signals2::connection const& connection)
{
    std::erase_if(m_connections, [](auto const& old) { return !old.connected(); });
    m_connections.emplace_back(connection);
}

void SignalConnectionCollection::clear()
{
    m_connections.clear();
}

bool SignalConnectionCollection::empty() const
{
    return std::none_of(m_connections.begin(), m_connections.end(), [](auto const& one) { return one.connected(); });
}

SignalConnectionCollection::ConnectionBlocker::ConnectionBlocker(SignalConnectionCollection const& collection)
    : m_blocks(collection.m_connections.begin(), collection.m_connections.end())
{}

} // namespace vantrix::sdk
