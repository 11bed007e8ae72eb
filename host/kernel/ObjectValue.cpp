#include "kernel/ObjectValue.h"

#include "kernel/DataError.h"

#include <cmath>
#include <locale>
#include <sstream>

namespace vantrix::kernel {

namespace {

std::string rangeText(const ObjectValueRange& range)
{
    std::ostringstream text;
    text.imbue(std::locale::classic());
    if (range.isMinimumExcluded) {
        text << "a number above " << range.minimum;
    } else if (std::isfinite(range.maximum)) {
        text << "a number from " << range.minimum << " to " << range.maximum;
    } else {
        text << "a finite number";
    }
    return text.str();
}

const char* typeText(const ObjectData& data)
{
    if (std::holds_alternative<double>(data)) {
        return "a number";
    }
    return std::holds_alternative<long>(data) ? "a whole number" : "a string";
}

bool isInside(const ObjectValueRange& range, double number)
{
    return std::isfinite(number) && number <= range.maximum &&
           (range.isMinimumExcluded ? number > range.minimum : number >= range.minimum);
}

} // namespace

ObjectData checkedObjectData(std::string_view name, const char* noun, const ObjectValueRange& range,
                             const ObjectData& present, const ObjectData& given)
{
    const std::string what = '"' + std::string(name) + "\" of a " + noun;
    const bool isReal = std::holds_alternative<double>(present);
    ObjectData data = given;
    if (const long* whole = std::get_if<long>(&given); whole && isReal) {
        data = static_cast<double>(*whole);
    }
    if (data.index() != present.index()) {
        throw DataError(what + " is " + typeText(present) + '.');
    }
    if (!std::holds_alternative<std::string>(data)) {
        const double number = isReal ? std::get<double>(data) : static_cast<double>(std::get<long>(data));
        if (!isInside(range, number)) {
            throw DataError(what + " has to be " + rangeText(range) + '.');
        }
    }
    return data;
}

} // namespace vantrix::kernel
