#pragma once

#include "toolbox/CheckedStyleValue.h"
#include "toolbox/HostString.h"

#include <string>
#include <utility>

namespace vantrix::sdk::styleproperties {

/// How a value of type T crosses the function interface.
///
/// `Raw` is what the host writes to on a read: appendPlace() puts it into a get list, once, and fromRaw() turns it into
/// a T after each read. write() puts a T into a set list and performs the set. This is the form for integers and
/// enumerations, which hand over the number also as a double.
template<typename T>
struct StyleValueTransport
{
    using Raw = long;

    static void appendPlace(toolbox::ArgList& arguments, Raw& raw) { arguments.appendArbParamPtr("IValue", &raw); }
    static T fromRaw(Raw& raw) { return static_cast<T>(raw); }

    static SetValueReturnCode_e write(toolbox::CheckedStyleValue const& style, toolbox::ArgList& arguments,
                                      T const& value)
    {
        arguments.appendArbParam("IValue", static_cast<long>(value));
        arguments.appendDouble("DValue", static_cast<double>(value));
        return style.styleSetLowLevel(arguments);
    }
};

template<>
struct StyleValueTransport<bool>
{
    using Raw = long;

    static void appendPlace(toolbox::ArgList& arguments, Raw& raw) { arguments.appendArbParamPtr("IValue", &raw); }
    static bool fromRaw(Raw& raw) { return raw != 0; }

    static SetValueReturnCode_e write(toolbox::CheckedStyleValue const&, toolbox::ArgList& arguments, bool value)
    {
        return toolbox::StyleValue::setFinalValue(value, arguments);
    }
};

template<>
struct StyleValueTransport<double>
{
    using Raw = double;

    static void appendPlace(toolbox::ArgList& arguments, Raw& raw) { arguments.appendDoublePtr("DValue", &raw); }
    static double fromRaw(Raw& raw) { return raw; }

    static SetValueReturnCode_e write(toolbox::CheckedStyleValue const&, toolbox::ArgList& arguments, double value)
    {
        return toolbox::StyleValue::setFinalValue(value, arguments);
    }
};

template<>
struct StyleValueTransport<std::string>
{
    using Raw = char*;

    static void appendPlace(toolbox::ArgList& arguments, Raw& raw) { arguments.appendStringPtr("StrValue", &raw); }
    static std::string fromRaw(Raw& raw) { return toolbox::takeHostString(std::exchange(raw, nullptr)); }

    static SetValueReturnCode_e write(toolbox::CheckedStyleValue const&, toolbox::ArgList& arguments,
                                      std::string const& value)
    {
        return toolbox::StyleValue::setFinalValue(value, arguments);
    }
};

} // namespace vantrix::sdk::styleproperties
