#pragma once

#include "property/PropertyAbstract.h"
#include "propertymanager/UIPropertyInterface.h"
#include "propertymanager/UIPropertyTypes.h"

namespace vantrix::sdk::ui::propertymanager {

/// What a properties manager exposes to widgets: a typed, validated, observable value that also has a visible and a
/// sensitive state.
template<typename T>
class UIStylePropertyAbstract : public PropertyAbstract<T>, public UIPropertyInterface
{
public:
    /// @param validator  not null
    explicit UIStylePropertyAbstract(
        boost::shared_ptr<ValidatorInterface<T> const> validator = boost::make_shared<AllowAnyValueValidator<T>>())
        : PropertyAbstract<T>(std::move(validator))
    {}

    ~UIStylePropertyAbstract() override = default;
};

#define VX_EXTERN(T) extern template class UIStylePropertyAbstract<T>;
VX_UI_PROPERTY_TYPES(VX_EXTERN)
#undef VX_EXTERN

} // namespace vantrix::sdk::ui::propertymanager
