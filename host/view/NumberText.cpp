#include "view/NumberText.h"

#include "kernel/TimeDateFormat.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>

namespace vantrix::view {
namespace {

constexpr const char* timesTen = "\u00d7"
                                 "10";

template<class... Format>
std::string charsOf(double value, Format... format)
{
    std::array<char, 400> buffer{};
    const auto result = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value, format...);
    return {buffer.data(), result.ptr};
}

/* "1.50e-07" as mantissa "1.50" and exponent -7. */
std::pair<std::string, int> scientific(double value, int decimals)
{
    const std::string text = charsOf(value, std::chars_format::scientific, decimals);
    const std::size_t at = text.find('e');
    return {text.substr(0, at), std::stoi(text.substr(at + 1))};
}

std::string withoutTrailingZeros(std::string text)
{
    if (text.find('.') != std::string::npos) {
        text.erase(text.find_last_not_of('0') + 1);
        if (text.back() == '.') {
            text.pop_back();
        }
    }
    return text;
}

std::string exponentialText(double value, int decimals)
{
    const auto [mantissa, exponent] = scientific(value, decimals);
    const std::string digits = std::to_string(std::abs(exponent));
    return mantissa + (exponent < 0 ? "E-" : "E+") + (digits.size() < 2 ? "0" : "") + digits;
}

NumberText superscriptText(double value, int decimals)
{
    if (value == 0.0) {
        return {"0", {}};
    }
    const auto [mantissa, exponent] = scientific(value, decimals);
    return {withoutTrailingZeros(mantissa) + timesTen, std::to_string(exponent)};
}

} // namespace

NumberText NumberText::ofExact(std::string number)
{
    const std::size_t at = number.find('e');
    if (at == std::string::npos) {
        return {std::move(number), {}};
    }
    const std::string mantissa = number.substr(0, at);
    const bool hasSign = number[at + 1] == '+';
    const std::string exponent = number.substr(at + (hasSign ? 2 : 1));
    return {mantissa == "1" ? "10" : mantissa == "-1" ? "-10" : mantissa + timesTen, exponent};
}

NumberWriter::NumberWriter(const NumberStyle& style)
    : m_style(style)
{
    if (style.format == NumberFormat_TimeDate) {
        m_timeDate = std::make_unique<kernel::TimeDateFormat>(style.timeDate);
    }
}

NumberWriter::~NumberWriter() = default;

NumberText NumberWriter::written(double value, const NumberText& best) const
{
    switch (m_style.format) {
    case NumberFormat_Integer:
        return {fixedText(value, 0), {}};
    case NumberFormat_FixedFloat:
        return {fixedText(value, m_style.precision), {}};
    case NumberFormat_Exponential:
        return {exponentialText(value, m_style.precision), {}};
    case NumberFormat_SuperScript:
        return superscriptText(value, m_style.precision);
    case NumberFormat_TimeDate:
        return {m_timeDate->text(value).value_or(std::string()), {}};
    case NumberFormat_BestFloat:
        return best.exponent.empty() ? NumberText{withoutTrailingZeros(best.text), {}} : best;
    case NumberFormat_RangeBestFloat:
        break;
    }
    return best;
}

double NumberWriter::smallestStep() const
{
    switch (m_style.format) {
    case NumberFormat_Integer:
        return 1.0;
    case NumberFormat_FixedFloat:
        return std::pow(10.0, -m_style.precision);
    default:
        return 0.0;
    }
}

std::string fixedText(double value, int decimals)
{
    std::string text = charsOf(value, std::chars_format::fixed, decimals);
    const bool isZero = text.find_first_of("123456789") == std::string::npos;
    return isZero && text.front() == '-' ? text.substr(1) : text;
}

std::string numberText(double value, int digits)
{
    return value == 0.0 ? "0" : charsOf(value, std::chars_format::general, digits);
}

} // namespace vantrix::view
