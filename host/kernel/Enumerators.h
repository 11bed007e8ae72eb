#pragma once

#include "kernel/StyleVocabulary.h"

#include <optional>
#include <string>
#include <string_view>

/* Enumerators by name, as files and users write them, and by number. */
namespace vantrix::kernel {

/* By the name of its type ("PlotType_e"). Throws std::logic_error when the interface has none of that name. */
const StyleEnumeration& enumerationNamed(std::string_view name);

/* Null for a number that is none of its enumerators. */
const char* enumeratorName(const StyleEnumeration& enumeration, long value);

/* None for a name that is none of its enumerators. */
std::optional<long> enumeratorValue(const StyleEnumeration& enumeration, std::string_view name);

/* For an error: "it has to be one of 0 Solid, 1 Dashed". */
std::string enumeratorsText(const StyleEnumeration& enumeration);

} // namespace vantrix::kernel
