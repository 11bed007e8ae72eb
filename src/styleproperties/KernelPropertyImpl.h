#pragma once

#include "sdk/AppLock.h"
#include "sdk/StateChangeEventObservable.h"
#include "styleproperties/KernelProperty.h"

#include <optional>

namespace vantrix::sdk::styleproperties {

template<typename T>
KernelProperty<T>::KernelProperty(toolbox::StyleValue const& styleValue, long first, long second)
    : m_styleValue(styleValue)
    , m_first(first)
    , m_second(second)
{
    prepareRead();
    readFromHost(m_cached);
}

template<typename T>
KernelProperty<T>::~KernelProperty() = default;

template<typename T>
void KernelProperty<T>::prepareRead()
{
    m_stampOfCached = 0;
    toolbox::StyleValue::setupGetValueArgList(m_styleValue.macroIDs(), m_first, m_second, m_getArguments);
    Transport::appendPlace(m_getArguments, m_raw);
}

template<typename T>
void KernelProperty<T>::setOffsets(long first, long second)
{
    m_first = first;
    m_second = second;
    prepareRead();
    retrieveValue();
}

template<typename T>
bool KernelProperty<T>::readFromHost(T& value) const
{
    // Taken before the read: a change that comes between the two is then read once more rather than missed.
    unsigned long const stamp = VtxUtilStyleGetChangeStamp(m_styleValue.entry());
    if (stamp != 0 && stamp == m_stampOfCached) {
        value = m_cached;
        return true;
    }
    m_stampOfCached = 0;
    if (!toolbox::StyleValue::returnCodeOk(m_styleValue.styleGetLowLevel(m_getArguments))) {
        return false;
    }
    value = Transport::fromRaw(m_raw);
    m_stampOfCached = stamp;
    return true;
}

template<typename T>
T KernelProperty<T>::retrieveValue() const
{
    T value{};
    if (!readFromHost(value) || value == m_cached) {
        return m_cached;
    }
    m_cached = value;
    if (m_emitOnRefresh) {
        this->emitValueChangedSignal(value);
    }
    return value;
}

template<typename T>
void KernelProperty<T>::storeValue(T const& value)
{
    // Released at once: the refresh that the write causes is what tells the other listeners.
    SignalConnectionCollection::ConnectionBlocker{m_connections}; // NOLINT(bugprone-unused-raii)

    // The host may keep another value than it is given, so neither the stamp from before the write nor one taken by a
    // refresh during the write vouches for the value cached below.
    m_stampOfCached = 0;
    SetValueReturnCode_e code = SetValueReturnCode_Ok;
    {
        AppLock const lock;
        toolbox::ArgList arguments;
        toolbox::StyleValue::setupSetValueArgList(m_styleValue.macroIDs(), nullptr, m_first, m_second, AssignOp_Default,
                                                  arguments);
        code = Transport::write(m_styleValue, arguments, value);
    }
    m_stampOfCached = 0;
    m_forceWrite = code == SetValueReturnCode_Adjusted;
    if (!toolbox::StyleValue::returnCodeOk(code)) {
        std::string const error = toolbox::takeHostString(VtxUtilStyleGetLastErrorString());
        throw InvalidPropertyValueException(error.empty() ? "Unknown error" : error);
    }
    m_cached = value;
}

template<typename T>
bool KernelProperty<T>::isEqual(T const& value) const
{
    return !m_forceWrite && value == retrieveValue();
}

template<typename T>
void KernelProperty<T>::signalValueChangedConnected() const
{
    if (this->valueChangedListenerCount() == 1) {
        struct Silence
        {
            explicit Silence(bool& flag)
                : emitOnRefresh(flag)
            {
                emitOnRefresh = false;
            }
            ~Silence() { emitOnRefresh = true; }
            Silence(Silence const&) = delete;
            Silence& operator=(Silence const&) = delete;
            bool& emitOnRefresh;
        };
        Silence const silence(m_emitOnRefresh);
        retrieveValue();
    }
    m_connections.clear();
    m_connections.add(integration::StateChangeEventObservable::getInstance().connectToStyleEntry(
        m_styleValue.entry(), [this](toolbox::StateChangeEventInterface const& event) { stateChanged(event); }));
}

template<typename T>
void KernelProperty<T>::stateChanged(toolbox::StateChangeEventInterface const& event) const
{
    if (this->valueChangedListenerCount() == 0 || event.kind() == StateChange_Quit) {
        m_connections.clear();
        return;
    }
    retrieveValue();
}

} // namespace vantrix::sdk::styleproperties
