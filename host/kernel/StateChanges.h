#pragma once

#include "api/VtxUtilState.h"

#include <deque>
#include <string>
#include <vector>

/* What the interface hands out as VtxStateChangeHandle. */
struct VtxStateChange
{
    StateChange_e kind = StateChange_Style;
    long styleEntry = -1; /* of a style change */
    long object = 0;      /* text handle, zone ...; 0 where it is about none in particular */
};

namespace vantrix::kernel {

/*
 * Sends state changes to whoever listens (VtxUtilStateChangeAddListener). A change that is sent while another is being
 * handed out waits until that one has reached everybody. Listeners must not throw.
 */
class StateChanges
{
public:
    void addListener(VtxStateChangeFunction function, void* clientData);
    void removeListener(VtxStateChangeFunction function, void* clientData);

    void send(const VtxStateChange& change);
    void send(StateChange_e kind) { send(VtxStateChange{kind, -1, 0}); }

private:
    struct Listener
    {
        VtxStateChangeFunction function = nullptr; /* null once it is removed during a notification */
        void* clientData = nullptr;
    };
    std::vector<Listener> m_listeners;
    std::deque<VtxStateChange> m_waiting;
    bool m_sending = false;
};

} // namespace vantrix::kernel
