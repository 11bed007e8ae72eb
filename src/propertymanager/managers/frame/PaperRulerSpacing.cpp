#include "propertymanager/managers/frame/PaperRulerSpacing.h"

#include <array>

namespace vantrix::sdk::ui::propertymanager {

PaperRulerSpacing::PaperRulerSpacing()
    : m_code(toolbox::StyleValue("Paper", "RulerSpacing"))
{}

double PaperRulerSpacing::unitsPerInch(int code)
{
    constexpr std::array table{2.54, 2.54, 0.0, 0.0, 1.0, 0.0, 0.0, 0.0, 72.0, 72.0};
    return code >= 1 && code <= static_cast<int>(table.size()) ? table[static_cast<std::size_t>(code) - 1] : 0.0;
}

} // namespace vantrix::sdk::ui::propertymanager
