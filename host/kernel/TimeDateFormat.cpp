#include "kernel/TimeDateFormat.h"

#include <algorithm>
#include <array>
#include <chrono>
#include <cmath>

namespace vantrix::kernel {

namespace {

using namespace std::chrono;

constexpr double secondsOfDay = 86400.0;
constexpr sys_days firstDay{year{1} / January / 1};
constexpr sys_days lastDay{year{9999} / December / 31};
constexpr sys_days dayZero{year{1899} / December / 30};

constexpr std::array<std::string_view, 12> monthNames{"January",   "February", "March",    "April",
                                                      "May",       "June",     "July",     "August",
                                                      "September", "October",  "November", "December"};
constexpr std::array<std::string_view, 7> dayNames{"Sunday",   "Monday", "Tuesday", "Wednesday",
                                                   "Thursday", "Friday", "Saturday"};

std::string number(unsigned value, std::size_t width)
{
    std::string digits = std::to_string(value);
    return digits.size() < width ? std::string(width - digits.size(), '0') + digits : digits;
}

/* A name in full, or its first three letters. */
std::string name(std::string_view full, std::size_t width)
{
    return std::string(width == 3 ? full.substr(0, 3) : full);
}

} // namespace

TimeDateFormat::TimeDateFormat(std::string_view format)
{
    for (std::size_t at = 0; at < format.size();) {
        Part part{Field::Literal, 1, {}};
        if (!isHere(format.substr(at), part)) {
            const bool isEscape = format[at] == '\\' && at + 1 < format.size();
            at += isEscape;
            part.literal = format[at];
        }
        m_hasHalfDays = m_hasHalfDays || part.field == Field::HalfDay;
        at += part.width;
        m_parts.push_back(std::move(part));
    }
    tellMinutesFromMonths();
}

bool TimeDateFormat::isHere(std::string_view rest, Part& part) const
{
    constexpr std::string_view halfDay = "AM/PM";
    if (rest.starts_with(halfDay)) {
        part = {Field::HalfDay, halfDay.size(), {}};
        return true;
    }
    struct Letter
    {
        char letter;
        Field field;
        std::size_t most;
    };
    for (const Letter& one : {Letter{'y', Field::Year, 4}, Letter{'m', Field::Month, 4}, Letter{'d', Field::Day, 4},
                              Letter{'h', Field::Hour, 2}, Letter{'s', Field::Second, 2}}) {
        if (rest.front() != one.letter) {
            continue;
        }
        std::size_t width = std::min(rest.find_first_not_of(one.letter), rest.size());
        width = std::min(width, one.most);
        if (one.field == Field::Year) {
            width = width >= 4 ? 4 : width >= 2 ? 2 : 0; // a year has two letters or four
        }
        if (width > 0) {
            part = {one.field, width, {}};
        }
        return width > 0;
    }
    return false;
}

void TimeDateFormat::tellMinutesFromMonths()
{
    const auto isField = [](const Part& part) { return part.field != Field::Literal && part.field != Field::HalfDay; };
    for (auto part = m_parts.begin(); part != m_parts.end(); ++part) {
        if (part->field != Field::Month || part->width > 2) {
            continue;
        }
        const auto before = std::find_if(std::make_reverse_iterator(part), m_parts.rend(), isField);
        const auto behind = std::find_if(part + 1, m_parts.end(), isField);
        if ((before != m_parts.rend() && before->field == Field::Hour) ||
            (behind != m_parts.end() && behind->field == Field::Second)) {
            part->field = Field::Minute;
        }
    }
}

std::optional<std::string> TimeDateFormat::text(double days) const
{
    // Compared as a number first: a far one would overflow the clock.
    if (!(std::abs(days) < 4e6)) {
        return std::nullopt;
    }
    const seconds since{std::llround(days * secondsOfDay)};
    const sys_days day = floor<std::chrono::days>(dayZero + since);
    if (day < firstDay || day > lastDay) {
        return std::nullopt;
    }
    const year_month_day date{day};
    const hh_mm_ss time{dayZero + since - day};
    const auto hour = static_cast<unsigned>(time.hours().count());
    std::string text;
    for (const Part& part : m_parts) {
        switch (part.field) {
        case Field::Literal:
            text += part.literal;
            break;
        case Field::Year: {
            const auto year = static_cast<unsigned>(static_cast<int>(date.year()));
            text += part.width == 2 ? number(year % 100, 2) : number(year, 4);
            break;
        }
        case Field::Month: {
            const auto month = static_cast<unsigned>(date.month());
            text += part.width > 2 ? name(monthNames[month - 1], part.width) : number(month, part.width);
            break;
        }
        case Field::Day:
            text += part.width > 2 ? name(dayNames[weekday(day).c_encoding()], part.width)
                                   : number(static_cast<unsigned>(date.day()), part.width);
            break;
        case Field::Hour:
            text += number(m_hasHalfDays ? (hour + 11) % 12 + 1 : hour, part.width);
            break;
        case Field::Minute:
            text += number(static_cast<unsigned>(time.minutes().count()), part.width);
            break;
        case Field::Second:
            text += number(static_cast<unsigned>(time.seconds().count()), part.width);
            break;
        case Field::HalfDay:
            text += hour < 12 ? "AM" : "PM";
            break;
        }
    }
    return text;
}

} // namespace vantrix::kernel
