#pragma once

#include "toolbox/StateChangeEvent.h"

namespace vantrix::app {

/* Whether there may be other frames, or other objects in them, after a change. */
inline bool mayConcernFrames(const toolbox::StateChangeEventInterface& event)
{
    return event.kind() != StateChange_View && event.kind() != StateChange_Style;
}

} // namespace vantrix::app
