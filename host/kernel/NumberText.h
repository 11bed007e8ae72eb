#pragma once

#include <string>

namespace vantrix::kernel {

/* The shortest text that reads back as the number, in the C locale. */
std::string numberText(double number);

} // namespace vantrix::kernel
