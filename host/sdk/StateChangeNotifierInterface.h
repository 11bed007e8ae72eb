#pragma once

#include "toolbox/StateChangeEventInterface.h"

#include <boost/function.hpp>

namespace boost::signals2 {
class connection;
}

namespace vantrix::sdk::integration {

/// Announces the host's state changes. It is handed on together with a change, so that who handles the change can
/// listen to further ones without knowing where they come from.
class StateChangeNotifierInterface
{
public:
    using Slot = boost::function<void(toolbox::StateChangeEventInterface const&)>;

    StateChangeNotifierInterface() = default;
    StateChangeNotifierInterface(StateChangeNotifierInterface const&) = delete;
    StateChangeNotifierInterface& operator=(StateChangeNotifierInterface const&) = delete;
    virtual ~StateChangeNotifierInterface() = default;

    /// Has a slot called for every change, behind the slots that are connected already. One that is connected while a
    /// change is being announced is called from the next change on.
    virtual boost::signals2::connection connectAtBack(Slot const& slot) = 0;
};

} // namespace vantrix::sdk::integration
