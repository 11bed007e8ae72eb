#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace vantrix::kernel {

/*
 * Writes numbers as times and dates: days since 1899-12-30, the fraction being the time of day. A format is parsed
 * once and used for many numbers; what its letters mean is documented at VtxUtilStringFormatTimeDate(). Every text is a
 * format. Names of months and days are English; times are rounded to the nearest second before they are written.
 */
class TimeDateFormat
{
public:
    explicit TimeDateFormat(std::string_view format);

    /* Nothing for a number that is no date of the years 1 to 9999. */
    std::optional<std::string> text(double days) const;

private:
    enum class Field
    {
        Literal,
        Year,
        Month,
        Day,
        Hour,
        Minute,
        Second,
        HalfDay
    };
    struct Part
    {
        Field field;
        std::size_t width; /* letters of a field */
        std::string literal;
    };

    bool isHere(std::string_view rest, Part& part) const;
    void tellMinutesFromMonths();

    std::vector<Part> m_parts;
    bool m_hasHalfDays = false;
};

} // namespace vantrix::kernel
