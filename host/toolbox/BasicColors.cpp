#include "toolbox/BasicColors.h"

namespace vantrix::toolbox {

std::string basicColorName(long number)
{
    constexpr std::array basic{"Black", "Red", "Green", "Blue", "Cyan", "Yellow", "Purple", "White"};
    constexpr std::array rows{"Dark", "Strong", "Light", "Pale"};
    constexpr std::array<char const*, HUE_COUNT> hues{"red",  "orange", "yellow", "lime",   "green",  "sea green",
                                                      "cyan", "azure",  "blue",   "violet", "purple", "rose"};
    if (number < 0 || number >= BASIC_COLOR_COUNT) {
        return basic[0];
    }
    auto const index = static_cast<std::size_t>(number);
    if (index < basic.size()) {
        return basic[index];
    }
    if (number < FIRST_HUE) {
        return "Gray " + std::to_string(number - static_cast<long>(basic.size()) + 1);
    }
    std::size_t const hue = index - FIRST_HUE;
    return std::string(rows[hue / HUE_COUNT]) + ' ' + hues[hue % HUE_COUNT];
}

} // namespace vantrix::toolbox
