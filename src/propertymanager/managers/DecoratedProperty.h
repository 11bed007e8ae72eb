#pragma once

#include "propertymanager/UIStylePropertyDecoratorAbstract.h"
#include "propertymanager/UIStylePropertyProxy.h"

#include <type_traits>

namespace vantrix::sdk::ui::propertymanager {

/// Puts a decorator in front of a property that is no UI style property itself, such as a member of a generated set.
///
/// @param property   not null; lives as long as the decorator
/// @param validator  decides what the decorator may store in the property; null where the property decides alone
/// @param arguments  what the decorator's constructor takes behind the property that it wraps
template<typename Decorator, typename Inner, typename... Arguments>
boost::shared_ptr<UIStylePropertyAbstract<typename Decorator::ValueType>>
newDecorated(boost::shared_ptr<PropertyAbstract<Inner>> property,
             std::type_identity_t<boost::shared_ptr<ValidatorInterface<Inner> const>> validator,
             Arguments&&... arguments)
{
    class ValidatedProxy : public UIStylePropertyProxy<Inner>
    {
    public:
        ValidatedProxy(PropertyAbstract<Inner>& target, boost::shared_ptr<ValidatorInterface<Inner> const> validator)
            : UIStylePropertyProxy<Inner>(target)
        {
            if (validator) {
                this->setValidator(std::move(validator));
            }
        }
    };
    struct Chain
    {
        Chain(boost::shared_ptr<PropertyAbstract<Inner>> innermost,
              boost::shared_ptr<ValidatorInterface<Inner> const> check, Arguments&&... rest)
            : property(std::move(innermost))
            , proxy(*property, std::move(check))
            , decorator(proxy, std::forward<Arguments>(rest)...)
        {}

        boost::shared_ptr<PropertyAbstract<Inner>> property;
        ValidatedProxy proxy;
        Decorator decorator;
    };
    boost::shared_ptr<Chain> const chain(
        new Chain(std::move(property), std::move(validator), std::forward<Arguments>(arguments)...));
    return {chain, &chain->decorator};
}

} // namespace vantrix::sdk::ui::propertymanager
