#pragma once

#include "kernel/ObjectValue.h"
#include "kernel/Text.h"

namespace vantrix::kernel {

template<>
struct ObjectTraits<Text>
{
    static constexpr const char* noun = "text";
    static constexpr const char* handleArgument = "TextID";
    static constexpr StateChange_e stateChange = StateChange_Text;

    /* All of them, in the order in which they are written. */
    static std::span<const ObjectValue<Text>> values();

    /* Throws DataError for a text that says nothing. */
    static void check(const Text& text);
};

} // namespace vantrix::kernel
