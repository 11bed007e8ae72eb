#include "property/BoundedValueValidator.h"
#include "property/Property.h"

namespace vantrix {

template class BoundedValueValidator<int>;
template class BoundedValueValidator<long>;
template class BoundedValueValidator<double>;

template class PropertyAbstract<bool>;
template class PropertyAbstract<int>;
template class PropertyAbstract<long>;
template class PropertyAbstract<double>;
template class PropertyAbstract<std::string>;
template class PropertyAbstract<std::set<int>>;

template class Property<bool>;
template class Property<int>;
template class Property<long>;
template class Property<double>;
template class Property<std::string>;
template class Property<std::set<int>>;

} // namespace vantrix
