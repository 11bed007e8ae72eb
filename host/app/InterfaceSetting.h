#pragma once

namespace vantrix::app {

/* Whether a flag of the style group "Interface" is set. */
bool isInterfaceFlagSet(const char* setting);

} // namespace vantrix::app
