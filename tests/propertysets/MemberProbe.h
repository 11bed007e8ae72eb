#pragma once

#include "property/InvalidPropertyValueException.h"
#include "property/PropertyAbstract.h"

#include <string>
#include <vector>

/// One member of a property set, whatever its type, so that a test can treat all alike.
class MemberProbe
{
public:
    virtual ~MemberProbe() = default;

    /// Sets one of the values that the host accepts in place of the present one; false when it accepts none.
    virtual bool change() = 0;
    /// Sets another value without asking the host whether it would accept it; only for a deferred member.
    virtual void edit() = 0;
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
        for (T const& value : otherValues()) {
            try {
                m_property->setValue(value);
                return m_property->value() == value;
            } catch (vantrix::InvalidPropertyValueException const&) {
                continue;
            }
        }
        return false;
    }

    void edit() override { m_property->setValue(otherValues().front()); }
    void restore() override { m_property->setValue(m_first); }
    bool isAsAtFirst() const override { return m_property->value() == m_first; }

    bool agreesWith(MemberProbe const& other) const override
    {
        auto const* same = dynamic_cast<MemberProbeOf const*>(&other);
        return same && same->m_property->value() == m_property->value();
    }

private:
    std::vector<T> otherValues() const
    {
        if constexpr (std::is_same_v<T, bool>) {
            return {!m_first};
        } else if constexpr (std::is_same_v<T, std::string>) {
            return {m_first + "x"};
        } else if constexpr (std::is_enum_v<T>) {
            std::vector<T> values;
            for (int number = 0; number <= 10; ++number) {
                if (number != m_first) {
                    values.push_back(static_cast<T>(number));
                }
            }
            return values;
        } else {
            return {static_cast<T>(m_first + 1), static_cast<T>(m_first - 1), static_cast<T>(m_first / 2)};
        }
    }

    boost::shared_ptr<vantrix::PropertyAbstract<T>> m_property;
    T m_first;
};
