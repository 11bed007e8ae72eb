#pragma once

#include "kernel/ObjectValue.h"
#include "kernel/Streamtrace.h"

namespace vantrix::kernel {

template<>
struct ObjectTraits<Streamtrace>
{
    static constexpr const char* noun = "streamtrace";
    static constexpr StateChange_e stateChange = StateChange_Streamtrace;

    /* All of them, in the order in which they are written. */
    static std::span<const ObjectValue<Streamtrace>> values();

    static void check(const Streamtrace& /*streamtrace*/) {}
};

} // namespace vantrix::kernel
