#pragma once

#include "propertymanager/PropertyDependentRelevanceAbstract.h"
#include "propertymanager/UIStylePropertyProxy.h"

#include <memory>
#include <set>

namespace vantrix::sdk::ui::propertymanager {

namespace detail {

/// Keeps a shared controlling property, and gives it the face of a UI style property where it has none.
template<typename T>
class SharedController
{
protected:
    SharedController() = default;
    explicit SharedController(boost::shared_ptr<PropertyAbstract<T>> property)
        : m_property(std::move(property))
    {
        if (dynamic_cast<UIStylePropertyAbstract<T>*>(m_property.get()) == nullptr) {
            m_face = std::make_unique<UIStylePropertyProxy<T>>(*m_property);
        }
    }

    UIStylePropertyAbstract<T>& controller() const
    {
        return m_face ? *m_face : dynamic_cast<UIStylePropertyAbstract<T>&>(*m_property);
    }

private:
    boost::shared_ptr<PropertyAbstract<T>> m_property;
    std::unique_ptr<UIStylePropertyProxy<T>> m_face;
};

} // namespace detail

/// Relevant while a property has one of a set of values, and is itself sensitive and visible.
template<typename T>
class PropertyDependentRelevance : private detail::SharedController<T>, public PropertyDependentRelevanceAbstract<T>
{
public:
    /// @param property  not owned; must outlive the relevance
    PropertyDependentRelevance(UIStylePropertyAbstract<T>& property, T const& relevantValue)
        : PropertyDependentRelevanceAbstract<T>(property, true)
        , m_relevantValues{relevantValue}
    {}

    /// @param property  not null; kept by the relevance
    PropertyDependentRelevance(boost::shared_ptr<PropertyAbstract<T>> property, T const& relevantValue)
        : detail::SharedController<T>(std::move(property))
        , PropertyDependentRelevanceAbstract<T>(this->controller(), true)
        , m_relevantValues{relevantValue}
    {}

    /// Makes one more value relevant.
    void addRelevantValue(T const& value)
    {
        m_relevantValues.insert(value);
        this->emitRelevanceChangedSignal();
    }

    bool isRelevantValue(T const& value) const override { return m_relevantValues.count(value) > 0; }

private:
    std::set<T> m_relevantValues;
};

} // namespace vantrix::sdk::ui::propertymanager
