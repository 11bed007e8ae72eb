#pragma once

namespace vantrix::sdk {

/// Shows the host's busy indicator while it lives; nests.
class WaitState
{
public:
    WaitState();
    ~WaitState();
    WaitState(WaitState const&) = delete;
    WaitState& operator=(WaitState const&) = delete;
};

} // namespace vantrix::sdk
