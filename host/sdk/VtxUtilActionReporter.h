#pragma once

#include <string>

namespace vantrix::sdk {

/// Tells the user how an action ended: a failure in an error message that waits for the user, a success in the status
/// line, so that doing a thing many times needs no extra click. What the user stopped is told there, too.
class VtxUtilActionReporter
{
public:
    /// @param result       whether the action succeeded
    /// @param failureText  shown, as it stands, when it did not
    /// @param successText  shown when it did; empty shows nothing
    void reportResult(bool result, std::string const& failureText, std::string const& successText = {}) const;

    /// Tells of a failure with the text of the host's last error.
    void reportLastFailure() const;

private:
    void reportFailure(std::string const& text) const;
};

} // namespace vantrix::sdk
