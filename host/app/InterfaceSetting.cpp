#include "app/InterfaceSetting.h"

#include "toolbox/StyleValue.h"

namespace vantrix::app {

bool isInterfaceFlagSet(const char* setting)
{
    bool value = true;
    toolbox::StyleValue("Interface", setting).getValue(&value);
    return value;
}

} // namespace vantrix::app
