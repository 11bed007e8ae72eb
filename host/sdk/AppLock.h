#pragma once

namespace vantrix::sdk {

/// Holds the host's application lock while it lives. What is changed under the outermost lock is one step of undo.
class AppLock
{
public:
    /// @param record  record what is done as a command of the macro that is being recorded, if one is
    explicit AppLock(bool record = true);
    ~AppLock();
    AppLock(AppLock const&) = delete;
    AppLock& operator=(AppLock const&) = delete;
};

} // namespace vantrix::sdk
