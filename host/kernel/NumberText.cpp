#include "kernel/NumberText.h"

#include <array>
#include <charconv>

namespace vantrix::kernel {

std::string numberText(double number)
{
    std::array<char, 32> text{};
    const auto end = std::to_chars(text.data(), text.data() + text.size(), number).ptr;
    return {text.data(), end};
}

} // namespace vantrix::kernel
