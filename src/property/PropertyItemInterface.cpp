#include "property/PropertyItemInterface.h"

namespace vantrix {

PropertyItemInterface::PropertyItemInterface() = default;

void PropertyItemInterface::signalPropertyChangedConnected() const {}

PropertyItemInterface::~PropertyItemInterface() = default;

} // namespace vantrix
