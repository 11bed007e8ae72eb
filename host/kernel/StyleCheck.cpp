#include "kernel/StyleCheck.h"

#include "kernel/Enumerators.h"
#include "kernel/NumberText.h"
#include "kernel/StylePath.h"

#include <algorithm>
#include <cmath>

namespace vantrix::kernel {

namespace {

std::string rangeText(const StyleEntry& entry)
{
    const bool isWhole = entry.type != StyleType::Double;
    const bool hasMinimum = entry.minimum > (isWhole ? -2147483648.0 : -1e300);
    const bool hasMaximum = entry.maximum < (isWhole ? 2147483647.0 : 1e300);
    std::string text = isWhole ? "it has to be a whole number" : "it has to be";
    if (hasMinimum) {
        text += (entry.aboveMinimum ? " above " : " at least ") + numberText(entry.minimum);
    }
    if (hasMaximum) {
        text += (hasMinimum ? " and at most " : " at most ") + numberText(entry.maximum);
    }
    if (!isWhole && !hasMinimum && !hasMaximum) {
        text += " a finite number";
    }
    return entry.unit[0] != '\0' ? text + ' ' + entry.unit : text;
}

StyleRefusal outOfRange(long entry, const std::string& value, const std::string& right)
{
    return {SetValueReturnCode_OutOfRange, stylePathText(entry) + " cannot be " + value + ": " + right + '.'};
}

StyleRefusal checkInteger(long entry, const StyleEntry& about, long value)
{
    switch (about.type) {
    case StyleType::Flag:
        if (value != 0 && value != 1) {
            return outOfRange(entry, std::to_string(value), "it has to be 0 or 1");
        }
        break;
    case StyleType::Enumeration: {
        const StyleEnumeration& enumeration = styleEnumeration(about.enumeration);
        if (!enumeratorName(enumeration, value)) {
            return outOfRange(entry, std::to_string(value), enumeratorsText(enumeration));
        }
        break;
    }
    default:
        if (const auto number = static_cast<double>(value); number < about.minimum || number > about.maximum) {
            return outOfRange(entry, std::to_string(value), rangeText(about));
        }
    }
    return {};
}

} // namespace

const char* styleTypeText(StyleType type)
{
    switch (type) {
    case StyleType::Flag:
        return "a flag";
    case StyleType::Integer:
        return "a whole number";
    case StyleType::Enumeration:
        return "an enumeration";
    case StyleType::Double:
        return "a number";
    case StyleType::String:
        return "a text";
    }
    return "";
}

StyleRefusal checkStyleValue(long entry, const StyleData& value)
{
    const StyleEntry& about = styleDescription(entry);
    const bool fits = about.type == StyleType::String   ? std::holds_alternative<std::string>(value)
                      : about.type == StyleType::Double ? std::holds_alternative<double>(value)
                                                        : std::holds_alternative<long>(value);
    if (!fits) {
        const char* argument = about.type == StyleType::String   ? "\"StrValue\""
                               : about.type == StyleType::Double ? "\"DValue\""
                                                                 : "\"IValue\"";
        return {SetValueReturnCode_WrongType,
                stylePathText(entry) + " is " + styleTypeText(about.type) + "; it goes by " + argument + '.'};
    }
    if (about.type == StyleType::String) {
        return {};
    }
    if (about.type != StyleType::Double) {
        return checkInteger(entry, about, std::get<long>(value));
    }
    const double number = std::get<double>(value);
    const bool isInRange =
        (about.aboveMinimum ? number > about.minimum : number >= about.minimum) && number <= about.maximum;
    return std::isfinite(number) && isInRange ? StyleRefusal{}
                                              : outOfRange(entry, numberText(number), rangeText(about));
}

long styleIndex(const StyleEntry& entry, long offset1, long offset2, long zoneCount)
{
    long index = 0;
    const std::array<long, 2> given{offset1, offset2};
    for (std::size_t i = 0; i < given.size(); ++i) {
        const StyleOffset& offset = styleOffset(entry.offsets[i]);
        if (offset.kind == StyleOffset::Kind::None) {
            if (given[i] != -1) {
                return -1;
            }
            continue;
        }
        const long limit = offset.kind == StyleOffset::Kind::Zone ? zoneCount : offset.limit;
        if (given[i] < 1 || given[i] > limit) {
            return -1;
        }
        index = index * limit + given[i] - 1;
    }
    return index;
}

std::pair<long, long> styleOffsets(const StyleEntry& entry, std::size_t index)
{
    const auto place = static_cast<long>(index);
    if (entry.offsets[0] == 0) {
        return {-1, -1};
    }
    if (entry.offsets[1] == 0) {
        return {place + 1, -1};
    }
    const long stride = styleOffset(entry.offsets[1]).limit;
    return {place / stride + 1, place % stride + 1};
}

std::string badOffsetText(long entry, long offset1, long offset2, long zoneCount)
{
    const StyleEntry& about = styleDescription(entry);
    const std::array<long, 2> given{offset1, offset2};
    for (std::size_t i = 0; i < given.size(); ++i) {
        const StyleOffset& offset = styleOffset(about.offsets[i]);
        const std::string start =
            stylePathText(entry) + ": offset " + std::to_string(i + 1) + " is " + std::to_string(given[i]);
        if (offset.kind == StyleOffset::Kind::None) {
            if (given[i] != -1) {
                return start + ", but the value has none; leave it out.";
            }
            continue;
        }
        const long limit = offset.kind == StyleOffset::Kind::Zone ? zoneCount : offset.limit;
        if (given[i] < 1 || given[i] > limit) {
            return start + "; it counts the " + offset.name + " and goes from 1 to " + std::to_string(limit) + '.';
        }
    }
    return {};
}

} // namespace vantrix::kernel
