#include "kernel/StateChanges.h"

#include <algorithm>

namespace vantrix::kernel {

void StateChanges::addListener(VtxStateChangeFunction function, void* clientData)
{
    const bool isKnown = std::any_of(m_listeners.begin(), m_listeners.end(), [&](const Listener& listener) {
        return listener.function == function && listener.clientData == clientData;
    });
    if (function && !isKnown) {
        m_listeners.push_back({function, clientData});
    }
}

void StateChanges::removeListener(VtxStateChangeFunction function, void* clientData)
{
    for (Listener& listener : m_listeners) {
        if (listener.function == function && listener.clientData == clientData) {
            listener.function = nullptr;
        }
    }
    if (!m_sending) {
        std::erase_if(m_listeners, [](const Listener& listener) { return !listener.function; });
    }
}

void StateChanges::send(const VtxStateChange& change)
{
    m_waiting.push_back(change);
    if (m_sending) {
        return;
    }
    m_sending = true;
    while (!m_waiting.empty()) {
        const VtxStateChange present = m_waiting.front();
        m_waiting.pop_front();
        const std::size_t count = m_listeners.size(); // who is added meanwhile hears of the next change only
        for (std::size_t i = 0; i < count; ++i) {
            const Listener listener = m_listeners[i];
            if (listener.function) {
                listener.function(&present, listener.clientData);
            }
        }
    }
    m_sending = false;
    std::erase_if(m_listeners, [](const Listener& listener) { return !listener.function; });
}

} // namespace vantrix::kernel
