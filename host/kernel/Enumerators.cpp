#include "kernel/Enumerators.h"

#include <algorithm>
#include <stdexcept>

namespace vantrix::kernel {

const StyleEnumeration& enumerationNamed(std::string_view name)
{
    const auto all = interfaceEnumerations();
    const auto found = std::ranges::find_if(all, [&](const StyleEnumeration& each) { return each.name == name; });
    if (found == all.end()) {
        throw std::logic_error("The interface has no enumeration " + std::string(name) + '.');
    }
    return *found;
}

const char* enumeratorName(const StyleEnumeration& enumeration, long value)
{
    const auto found = std::ranges::find(enumeration.enumerators, value, &StyleEnumerator::value);
    return found != enumeration.enumerators.end() ? found->name : nullptr;
}

std::optional<long> enumeratorValue(const StyleEnumeration& enumeration, std::string_view name)
{
    const auto found = std::ranges::find(enumeration.enumerators, name, &StyleEnumerator::name);
    return found != enumeration.enumerators.end() ? std::optional(found->value) : std::nullopt;
}

std::string enumeratorsText(const StyleEnumeration& enumeration)
{
    std::string text = "it has to be one of ";
    const char* separator = "";
    for (const StyleEnumerator& enumerator : enumeration.enumerators) {
        text += separator + std::to_string(enumerator.value) + ' ' + enumerator.name;
        separator = ", ";
    }
    return text;
}

} // namespace vantrix::kernel
