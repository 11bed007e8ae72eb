#pragma once

#include "propertymanager/PropertyDependentRelevance.h"

#include <string>
#include <type_traits>
#include <utility>

namespace vantrix::sdk::ui::propertymanager {

/// Relevant while a property has a value. The reason is told by the tool tips of what is disabled meanwhile.
template<typename T>
boost::shared_ptr<RelevanceInterface const> whileEqual(boost::shared_ptr<PropertyAbstract<T>> const& property,
                                                       std::type_identity_t<T> value, std::string reason)
{
    auto relevance = boost::make_shared<PropertyDependentRelevance<T>>(property, value);
    relevance->setReason(std::move(reason));
    return relevance;
}

/// Relevant while a flag is set.
inline boost::shared_ptr<RelevanceInterface const> whileSet(boost::shared_ptr<PropertyAbstract<bool>> const& flag,
                                                            std::string reason)
{
    return whileEqual(flag, true, std::move(reason));
}

} // namespace vantrix::sdk::ui::propertymanager
