#pragma once

#include "property/PropertyAbstract.h"

#include <boost/shared_ptr.hpp>

namespace vantrix::sdk::common::property {

/// Stands in front of a property whose default depends on the state of the plot. A subclass decides when a set replaces
/// the default; here a set goes to the wrapped property as it is, with its checks and its signal.
template<typename T>
class SmartDefaultPropertyDecoratorAbstract : public PropertyAbstract<T>
{
public:
    /// @param wrapped  not null
    explicit SmartDefaultPropertyDecoratorAbstract(boost::shared_ptr<PropertyAbstract<T>> wrapped)
        : m_wrapped(std::move(wrapped))
    {}

    void storeValue(T const& value) override { m_wrapped->setValue(value); }
    T retrieveValue() const override { return m_wrapped->value(); }

protected:
    PropertyAbstract<T>& wrapped() const { return *m_wrapped; }

private:
    boost::shared_ptr<PropertyAbstract<T>> m_wrapped;
};

} // namespace vantrix::sdk::common::property
