#pragma once

#include <string>

namespace vantrix::toolbox {

/// One change of the host's state, as listeners see it. Valid only during the notification.
class StateChangeEventInterface
{
public:
    virtual ~StateChangeEventInterface() = default;

    /// The StateChange_e.
    virtual int kind() const = 0;

    /// Name number `index` (from 1) of the path of a style change; empty behind the last one and for other kinds.
    virtual std::string styleParam(int index) const = 0;

    /// The style entry of a style change (see VtxUtilStyleFindEntry()); -1 for other kinds.
    virtual long styleEntry() const = 0;

    /// The number of the object that the change is about; 0 where it is about none in particular.
    virtual long object() const = 0;
};

} // namespace vantrix::toolbox
