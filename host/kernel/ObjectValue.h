#pragma once

#include <limits>
#include <span>
#include <string>
#include <string_view>
#include <type_traits>
#include <variant>

namespace vantrix::kernel {

/* A value of an object of a frame. Flags and enumerators are whole numbers. */
using ObjectData = std::variant<long, double, std::string>;

/* What values a number may have. */
struct ObjectValueRange
{
    double minimum = -std::numeric_limits<double>::infinity();
    double maximum = std::numeric_limits<double>::infinity();
    bool isMinimumExcluded = false;
};

/*
 * The value as the type that `present` has; a whole number serves as a real one. Throws DataError, which names the
 * value ("Height" of a text) and what would be right, for another type or one out of range.
 */
ObjectData checkedObjectData(std::string_view name, const char* noun, const ObjectValueRange& range,
                             const ObjectData& present, const ObjectData& given);

/* What tells one kind of objects of a frame from another: noun, names, values. Specialised for each. */
template<class Object>
struct ObjectTraits;

/* One named value of a text or a geometry, as the interface and files know it. */
template<class Object>
struct ObjectValue
{
    std::string_view name;
    ObjectData (*get)(const Object& object);
    void (*set)(Object& object, const ObjectData& value);
    ObjectValueRange range = {};
    const char* enumeration = nullptr; /* "TextAnchor_e" */

    /* The same as a value of an enumeration. */
    constexpr ObjectValue of(const char* type) const { return {name, get, set, range, type}; }

    /* Sets a value of the right type within range. Throws DataError, and changes nothing, otherwise. */
    void assign(Object& object, const ObjectData& value) const
    {
        set(object, checkedObjectData(name, ObjectTraits<Object>::noun, range, get(object), value));
    }
};

/* Null for an unknown name. */
template<class Object>
const ObjectValue<Object>* findObjectValue(std::string_view name)
{
    for (const ObjectValue<Object>& each : ObjectTraits<Object>::values()) {
        if (each.name == name) {
            return &each;
        }
    }
    return nullptr;
}

/* Makes the entries of tables of values, of the members of an object. */
template<class Object>
struct ObjectValues
{
    template<auto member>
    static constexpr ObjectValue<Object> any(std::string_view name)
    {
        return {name, &get<member>, &set<member>};
    }
    template<auto member>
    static constexpr ObjectValue<Object> between(std::string_view name, double minimum, double maximum)
    {
        return {name, &get<member>, &set<member>, {minimum, maximum}};
    }
    template<auto member>
    static constexpr ObjectValue<Object> positive(std::string_view name)
    {
        return {name, &get<member>, &set<member>, {0.0, std::numeric_limits<double>::infinity(), true}};
    }
    template<auto member>
    static constexpr ObjectValue<Object> color(std::string_view name)
    {
        return between<member>(name, 0.0, 63.0);
    }
    template<auto member>
    static constexpr ObjectValue<Object> flag(std::string_view name)
    {
        return between<member>(name, 0.0, 1.0);
    }

private:
    template<auto member>
    using Type = std::remove_cvref_t<decltype(std::declval<Object>().*member)>;
    template<auto member>
    static constexpr bool isKept = std::is_same_v<Type<member>, std::string> || std::is_same_v<Type<member>, double>;

    template<auto member>
    static ObjectData get(const Object& object)
    {
        if constexpr (isKept<member>) {
            return object.*member;
        } else {
            return static_cast<long>(object.*member);
        }
    }
    template<auto member>
    static void set(Object& object, const ObjectData& value)
    {
        if constexpr (isKept<member>) {
            object.*member = std::get<Type<member>>(value);
        } else {
            object.*member = static_cast<Type<member>>(std::get<long>(value));
        }
    }
};

} // namespace vantrix::kernel
