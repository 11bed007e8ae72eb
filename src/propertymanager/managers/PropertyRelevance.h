#pragma once

#include "propertymanager/PropertyDependentRelevance.h"

#include <type_traits>

namespace vantrix::sdk::ui::propertymanager {

/// Relevant while a property has a value.
template<typename T>
boost::shared_ptr<RelevanceInterface const> whileEqual(boost::shared_ptr<PropertyAbstract<T>> const& property,
                                                       std::type_identity_t<T> value)
{
    return boost::make_shared<PropertyDependentRelevance<T>>(property, value);
}

/// Relevant while a flag is set.
inline boost::shared_ptr<RelevanceInterface const> whileSet(boost::shared_ptr<PropertyAbstract<bool>> const& flag)
{
    return whileEqual(flag, true);
}

} // namespace vantrix::sdk::ui::propertymanager
