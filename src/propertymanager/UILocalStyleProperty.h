#pragma once

#include "propertymanager/UIStylePropertyWithRelevances.h"

namespace vantrix::sdk::ui::propertymanager {

/// A UI style property that holds its value itself, for dialog state that the host does not store.
template<typename T>
class UILocalStyleProperty : public UIStylePropertyWithRelevances<T>
{
public:
    explicit UILocalStyleProperty(T const& initial)
        : m_value(initial)
    {}

    /// @param validator  not null; the initial value is not held against it
    UILocalStyleProperty(boost::shared_ptr<ValidatorInterface<T> const> validator, T const& initial)
        : UIStylePropertyWithRelevances<T>(std::move(validator))
        , m_value(initial)
    {}

    void storeValue(T const& value) override { m_value = value; }
    T retrieveValue() const override { return m_value; }

private:
    T m_value;
};

#define VX_EXTERN(T) extern template class UILocalStyleProperty<T>;
VX_UI_PROPERTY_TYPES(VX_EXTERN)
#undef VX_EXTERN

} // namespace vantrix::sdk::ui::propertymanager
