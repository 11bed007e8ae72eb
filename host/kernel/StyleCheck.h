#pragma once

#include "kernel/StyleStore.h"
#include "kernel/StyleVocabulary.h"

#include <cstddef>
#include <string>
#include <utility>

namespace vantrix::kernel {

/* Why an access is refused; `Ok` and an empty text when it is not. */
struct StyleRefusal
{
    SetValueReturnCode_e code = SetValueReturnCode_Ok;
    std::string text;
};

/* Checks type and range of a value for an entry. */
StyleRefusal checkStyleValue(long entry, const StyleData& value);

/* "a flag", "a whole number", "a number", "a text": what values of an entry are. */
const char* styleTypeText(StyleType type);

/*
 * The place from 0 of the object that two offsets address, -1 when they address none. `zoneCount` is the highest zone
 * number allowed.
 */
long styleIndex(const StyleEntry& entry, long offset1, long offset2, long zoneCount);

/* The offsets of the object at a place; -1 where the entry has none. */
std::pair<long, long> styleOffsets(const StyleEntry& entry, std::size_t index);

/* Why styleIndex() answered -1. */
std::string badOffsetText(long entry, long offset1, long offset2, long zoneCount);

} // namespace vantrix::kernel
