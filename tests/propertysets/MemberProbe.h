#pragma once

#include "property/InvalidPropertyValueException.h"
#include "property/PropertyAbstract.h"

#include <numeric>
#include <string>
#include <type_traits>
#include <vector>

/// One member of a property set, whatever its type, so that a test can treat all alike.
class MemberProbe
{
public:
    virtual ~MemberProbe() = default;

    /// Sets one of the values that the host accepts in place of the present one; false when it accepts none.
    virtual bool change() = 0;
    /// Sets another value without asking the host whether it would accept it; for a deferred member, or one that is to
    /// refuse any.
    virtual void edit() = 0;
    /// Sets the value of a probe of the same type.
    virtual void take(MemberProbe const& other) = 0;
    virtual void restore() = 0;
    virtual bool isAsAtFirst() const = 0;
    /// Whether the other probe is of the same type and value.
    virtual bool agreesWith(MemberProbe const& other) const = 0;
};

template<typename T>
class MemberProbeOf : public MemberProbe
{
public:
    explicit MemberProbeOf(boost::shared_ptr<vantrix::PropertyAbstract<T>> property)
        : m_property(std::move(property))
        , m_first(m_property->value())
    {}

    bool change() override
    {
        for (auto const& value : otherValues()) {
            if (static_cast<T>(value) == m_first) {
                continue;
            }
            try {
                m_property->setValue(static_cast<T>(value));
                return m_property->value() == static_cast<T>(value);
            } catch (vantrix::InvalidPropertyValueException const&) {
                continue;
            }
        }
        return false;
    }

    void edit() override { m_property->setValue(static_cast<T>(otherValues().front())); }
    void take(MemberProbe const& other) override
    {
        m_property->setValue(dynamic_cast<MemberProbeOf const&>(other).m_property->value());
    }
    void restore() override { m_property->setValue(m_first); }
    bool isAsAtFirst() const override { return m_property->value() == m_first; }

    bool agreesWith(MemberProbe const& other) const override
    {
        auto const* same = dynamic_cast<MemberProbeOf const*>(&other);
        return same && same->m_property->value() == m_property->value();
    }

private:
    /// A number is made an enumerator only when it is tried: one too large for the enumeration must not exist.
    using Candidate = std::conditional_t<std::is_enum_v<T>, int, T>;

    std::vector<Candidate> otherValues() const
    {
        if constexpr (std::is_same_v<T, bool>) {
            return {!m_first};
        } else if constexpr (std::is_same_v<T, std::string>) {
            return {m_first + "x"};
        } else if constexpr (std::is_enum_v<T>) {
            std::vector<int> values(4);
            std::iota(values.begin(), values.end(), 0);
            std::erase(values, static_cast<int>(m_first));
            return values;
        } else {
            return {static_cast<T>(m_first + 1), static_cast<T>(m_first - 1), static_cast<T>(m_first / 2)};
        }
    }

    boost::shared_ptr<vantrix::PropertyAbstract<T>> m_property;
    T m_first;
};
