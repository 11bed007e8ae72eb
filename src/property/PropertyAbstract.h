#pragma once

#include "property/AllowAnyValueValidator.h"
#include "property/InvalidPropertyValueException.h"
#include "property/PropertyItemInterface.h"
#include "property/ValidatorInterface.h"
#include "property/ValueSignal.h"

#include <boost/bind/bind.hpp>
#include <boost/make_shared.hpp>
#include <boost/shared_ptr.hpp>

#include <cstddef>
#include <set>
#include <string>

namespace vantrix {

/// A typed, validated, observable value. Where the value lives is up to the subclass: it supplies storeValue() and
/// retrieveValue(), and everything else builds on them.
///
/// Properties are used on the thread of the user interface. A slot may read and set the property, connect and
/// disconnect; a set from within a slot is signalled at once, so slots behind it hear the newer value first. A slot
/// that throws ends the notification and the exception leaves setValue(); the value stays stored.
template<typename T>
class PropertyAbstract : public PropertyItemInterface
{
public:
    using ValueType = T;
    using Validator = ValidatorInterface<T>;
    using ValueChangedSignal = ValueSignal<T>;

    /// Accepts every value.
    PropertyAbstract();

    /// @param validator  not null
    explicit PropertyAbstract(boost::shared_ptr<Validator const> validator);

    ~PropertyAbstract() override;

    /// Called right after a listener was connected to the value-changed signal. Subclasses whose value lives elsewhere
    /// start to watch their source here; does nothing in this class.
    virtual void signalValueChangedConnected() const;

    /// Writes into the storage, without validation; a signal is sent only where the storage is another property, which
    /// sends its own. Use setValue().
    virtual void storeValue(T const& value) = 0;

    /// Exact comparison with the current value: no tolerance, and NaN equals nothing.
    virtual bool isEqual(T const& value) const;

    /// @throws InvalidPropertyValueException with the validator's text when the value is not accepted
    virtual void validate(T const& value) const;

    /// Reads from the storage.
    virtual T retrieveValue() const = 0;

    /// Tells all listeners the given value.
    virtual void emitValueChangedSignal(T const& value) const;

    /// Validates, and unless the property has that value already, stores it and signals once with what the storage
    /// then holds (which may differ from what it was given). A storage that signals for itself, such as one that relays
    /// another property, has signalled.
    /// @throws InvalidPropertyValueException; nothing was stored and nothing is signalled
    void setValue(T const& value);

    T value() const { return retrieveValue(); }

    /// Connects a slot `void(T const&)` behind the present ones. An equal slot that is connected already is
    /// disconnected first, so connecting a function pointer or the same boost::bind twice leaves one connection. (Slots
    /// that cannot be compared, such as lambdas, are never taken as equal.)
    template<typename Slot>
    boost::signals2::connection connectToValueChangedSignal(Slot const& slot) const;

    /// Passes a change on to the property-changed signal.
    void callBaseClassSignalIfThereAreListeners() const;

    /// For a relay into this property; listeners use connectToValueChangedSignal().
    ValueChangedSignal& valueChangedSignal() const { return m_valueChanged; }

    /// How many listeners a property's value-changed signal has, its own link to the property-changed signal left out.
    static std::size_t listenerCount(ValueChangedSignal const& signal) { return signal.slotCount() - 1; }
    std::size_t valueChangedListenerCount() const { return listenerCount(m_valueChanged); }

    boost::shared_ptr<Validator const> validator() const { return m_validator; }

protected:
    /// @param validator  not null
    void setValidator(boost::shared_ptr<Validator const> validator);

private:
    mutable ValueChangedSignal m_valueChanged;
    boost::shared_ptr<Validator const> m_validator;
    boost::signals2::scoped_connection m_linkToPropertyChanged;
};

template<typename T>
PropertyAbstract<T>::PropertyAbstract()
    : PropertyAbstract(boost::make_shared<AllowAnyValueValidator<T>>())
{}

template<typename T>
PropertyAbstract<T>::PropertyAbstract(boost::shared_ptr<Validator const> validator)
    : m_validator(std::move(validator))
    , m_linkToPropertyChanged(m_valueChanged.connectInFront([this] { callBaseClassSignalIfThereAreListeners(); }))
{}

template<typename T>
PropertyAbstract<T>::~PropertyAbstract() = default;

template<typename T>
void PropertyAbstract<T>::signalValueChangedConnected() const
{}

template<typename T>
bool PropertyAbstract<T>::isEqual(T const& value) const
{
    return value == retrieveValue();
}

template<typename T>
void PropertyAbstract<T>::validate(T const& value) const
{
    ValidationResult const result = m_validator->validate(value);
    if (!result.isValid()) {
        throw InvalidPropertyValueException(result.errorString());
    }
}

template<typename T>
void PropertyAbstract<T>::emitValueChangedSignal(T const& value) const
{
    m_valueChanged(value);
}

template<typename T>
void PropertyAbstract<T>::setValue(T const& value)
{
    validate(value);
    if (isEqual(value)) {
        return;
    }
    unsigned long const emissions = m_valueChanged.emissionCount();
    storeValue(value);
    T const stored = retrieveValue();
    if (m_valueChanged.emissionCount() == emissions) {
        emitValueChangedSignal(stored);
    }
}

template<typename T>
template<typename Slot>
boost::signals2::connection PropertyAbstract<T>::connectToValueChangedSignal(Slot const& slot) const
{
    boost::signals2::connection connection = m_valueChanged.connectOnce(slot);
    signalValueChangedConnected();
    return connection;
}

template<typename T>
void PropertyAbstract<T>::callBaseClassSignalIfThereAreListeners() const
{
    if (!m_propertyChanged.empty()) {
        m_propertyChanged();
    }
}

template<typename T>
void PropertyAbstract<T>::setValidator(boost::shared_ptr<Validator const> validator)
{
    m_validator = std::move(validator);
}

extern template class PropertyAbstract<bool>;
extern template class PropertyAbstract<int>;
extern template class PropertyAbstract<long>;
extern template class PropertyAbstract<double>;
extern template class PropertyAbstract<std::string>;
extern template class PropertyAbstract<std::set<int>>;

} // namespace vantrix
