#pragma once

#include "property/PropertyAbstract.h"

#include <boost/function.hpp>

namespace vantrix {

/// Presents a property of one type as a property of another. It has no value of its own: a set goes to the source,
/// whose validator decides, and every change of the source is signalled here too.
///
/// Both functions must not be empty: using an adapter with an empty one throws boost::bad_function_call.
template<typename Outer, typename Source>
class PropertyTypeAdapter : public PropertyAbstract<Outer>
{
public:
    using ToOuter = boost::function<Outer(Source const&)>;
    using ToSource = boost::function<Source(Outer const&)>;

    /// @param source  not null; shared with the adapter
    PropertyTypeAdapter(boost::shared_ptr<PropertyAbstract<Source>> source, ToOuter toOuter, ToSource toSource)
        : m_source(std::move(source))
        , m_toOuter(std::move(toOuter))
        , m_toSource(std::move(toSource))
    {
        init();
    }

    ~PropertyTypeAdapter() override = default;

    void storeValue(Outer const& value) override
    {
        boost::signals2::shared_connection_block const echo(m_sourceConnection);
        m_source->setValue(m_toSource(value));
    }

    Outer retrieveValue() const override { return m_toOuter(m_source->value()); }

private:
    /// Asks the source's validator. A conversion that throws an ExceptionBase makes the value invalid.
    class AdapterValidator : public virtual ValidatorInterface<Outer>
    {
    public:
        AdapterValidator(boost::shared_ptr<PropertyAbstract<Source>> source, ToSource toSource)
            : m_source(std::move(source))
            , m_toSource(std::move(toSource))
        {}

        ValidationResult validate(Outer const& value) const override
        {
            try {
                return m_source->validator()->validate(m_toSource(value));
            } catch (ExceptionBase const& exception) {
                ValidationResult result;
                result.setErrorString(exception.message());
                return result;
            }
        }

    private:
        boost::shared_ptr<PropertyAbstract<Source>> m_source;
        ToSource m_toSource;
    };

    void init()
    {
        this->setValidator(boost::make_shared<AdapterValidator>(m_source, m_toSource));
        m_sourceConnection = m_source->connectToValueChangedSignal(
            boost::bind(&PropertyTypeAdapter::sourceValueChanged, this, boost::placeholders::_1));
    }

    void sourceValueChanged(Source const& value) const { this->emitValueChangedSignal(m_toOuter(value)); }

    boost::shared_ptr<PropertyAbstract<Source>> m_source;
    ToOuter m_toOuter;
    ToSource m_toSource;
    boost::signals2::scoped_connection m_sourceConnection;
};

} // namespace vantrix
