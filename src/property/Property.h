#pragma once

#include "property/PropertyAbstract.h"

namespace vantrix {

/// A property that holds its value itself.
template<typename T>
class Property : public PropertyAbstract<T>
{
public:
    /// @throws InvalidPropertyValueException when the validator rejects the initial value
    explicit Property(T const& initial, boost::shared_ptr<ValidatorInterface<T> const> validator =
                                            boost::make_shared<AllowAnyValueValidator<T>>())
        : PropertyAbstract<T>(std::move(validator))
        , m_value(initial)
    {
        this->PropertyAbstract<T>::validate(initial);
    }

    ~Property() override = default;

    void storeValue(T const& value) override { m_value = value; }
    T retrieveValue() const override { return m_value; }

private:
    T m_value;
};

extern template class Property<bool>;
extern template class Property<int>;
extern template class Property<long>;
extern template class Property<double>;
extern template class Property<std::string>;
extern template class Property<std::set<int>>;

} // namespace vantrix
