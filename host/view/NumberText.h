#pragma once

#include "api/VtxEnumerations.h"

#include <memory>
#include <string>

namespace vantrix::kernel {
class TimeDateFormat;
}

namespace vantrix::view {

/* How numbers at ticks are written; see NumberFormat_e. */
struct NumberStyle
{
    NumberFormat_e format = NumberFormat_RangeBestFloat;
    int precision = 3; /* decimals of fixed floats, exponentials and superscripts; 0 to 15 */
    std::string timeDate;

    bool operator==(const NumberStyle&) const = default;
};

/* A number as it is drawn: a text, and a raised exponent behind it where there is one ("2.5×10" and "-7"). UTF-8. */
struct NumberText
{
    std::string text;
    std::string exponent;

    bool isEmpty() const { return text.empty(); }
    bool operator==(const NumberText&) const = default;

    /* Of a number as std::from_chars reads it: "2.5e-7" gets an exponent, "0.25" does not. */
    static NumberText ofExact(std::string number);
};

/* Writes the numbers of one axis. */
class NumberWriter
{
public:
    explicit NumberWriter(const NumberStyle& style);
    ~NumberWriter();
    NumberWriter(const NumberWriter&) = delete;
    NumberWriter& operator=(const NumberWriter&) = delete;

    /*
     * `best` is the number with as many digits as its axis needs. A number that is no date is left away where dates are
     * asked for.
     */
    NumberText written(double value, const NumberText& best) const;

    /* The step below which neighbouring numbers would be written alike; 0 for any. */
    double smallestStep() const;

private:
    NumberStyle m_style;
    std::unique_ptr<kernel::TimeDateFormat> m_timeDate;
};

/* With that many decimals, C locale; a zero has no sign. */
std::string fixedText(double value, int decimals);

/* A number as it is shown to people: up to `digits` significant digits, C locale, no trailing zeros. */
std::string numberText(double value, int digits = 6);

} // namespace vantrix::view
