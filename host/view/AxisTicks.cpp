#include "view/AxisTicks.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <limits>
#include <utility>

namespace vantrix::view {
namespace {

/* Beyond this, a range or a step of an axis would overflow. */
constexpr double largest = 1e300;
constexpr int mostTicks = 60;

double parsed(const std::string& text)
{
    double value = 0.0;
    std::from_chars(text.data(), text.data() + text.size(), value);
    return value;
}

/* A step of 1, 2 or 5 times ten to a power, kept in whole numbers so that its multiples have exact digits. */
struct Step
{
    int mantissa = 1;
    int exponent = 0;

    static Step atLeast(double value)
    {
        Step step;
        step.exponent = static_cast<int>(std::floor(std::log10(value)));
        for (;; ++step.exponent) {
            for (const int mantissa : {1, 2, 5}) {
                step.mantissa = mantissa;
                if (step.value() >= value * (1.0 - 1e-9)) {
                    return step;
                }
            }
        }
    }

    double value() const { return parsed(std::to_string(mantissa) + "e" + std::to_string(exponent)); }

    Step next() const
    {
        switch (mantissa) {
        case 1:
            return {2, exponent};
        case 2:
            return {5, exponent};
        default:
            return {1, exponent + 1};
        }
    }

    /* The number of minor ticks, at most `most`, that divides the step at round values. */
    int minorCount(int most) const
    {
        for (const int count : mantissa == 2 ? std::array{19, 9, 3, 1} : std::array{19, 9, 4, 1}) {
            if (count <= most) {
                return count;
            }
        }
        return 0;
    }
};

/* `digits` times ten to the power `exponent`, written with `decimals` decimals. */
std::string decimalText(std::int64_t digits, int exponent, int decimals)
{
    std::string text = std::to_string(std::abs(digits));
    if (exponent > 0 && digits != 0) {
        text.append(static_cast<std::size_t>(exponent), '0');
    }
    const int fraction = std::max(0, -exponent);
    if (static_cast<int>(text.size()) <= fraction) {
        text.insert(0, static_cast<std::size_t>(fraction + 1) - text.size(), '0');
    }
    std::string whole = text.substr(0, text.size() - static_cast<std::size_t>(fraction));
    std::string rest = text.substr(whole.size());
    rest.resize(static_cast<std::size_t>(decimals), '0');
    return (digits < 0 ? "-" : "") + whole + (decimals > 0 ? "." + rest : "");
}

/* The same with a power of ten of its own: "-2.5e-7". */
std::string scientificText(std::int64_t digits, int exponent, int significant)
{
    if (digits == 0) {
        return "0";
    }
    std::string text = std::to_string(std::abs(digits));
    const int power = exponent + static_cast<int>(text.size()) - 1;
    text.resize(static_cast<std::size_t>(std::max(1, significant)), '0');
    while (text.size() > 1 && text.back() == '0') {
        text.pop_back();
    }
    if (text.size() > 1) {
        text.insert(1, ".");
    }
    return (digits < 0 ? "-" : "") + text + "e" + std::to_string(power);
}

std::vector<std::string> labelTexts(const std::vector<std::int64_t>& multiples, const Step& step)
{
    std::vector<std::string> fixed;
    std::vector<std::string> scientific;
    std::size_t fixedLength = 0;
    std::size_t scientificLength = 0;
    for (const std::int64_t multiple : multiples) {
        const std::int64_t digits = multiple * step.mantissa;
        fixed.push_back(decimalText(digits, step.exponent, std::max(0, -step.exponent)));
        scientific.push_back(
            scientificText(digits, step.exponent, static_cast<int>(std::to_string(std::abs(digits)).size())));
        fixedLength = std::max(fixedLength, fixed.back().size());
        scientificLength = std::max(scientificLength, scientific.back().size());
    }
    return fixedLength <= std::max<std::size_t>(7, scientificLength) ? fixed : scientific;
}

/* A tick at the value of a text. */
Tick labelledTick(const AxisScale& scale, std::string text)
{
    const double value = parsed(text);
    return {value, scale.fraction(value), NumberText::ofExact(std::move(text))};
}

/* Writes the labels in the style asked for; those skipped are empty. */
void writeLabels(std::vector<Tick>& ticks, const TickRequest& request)
{
    const NumberWriter writer(request.number);
    long number = 0;
    for (Tick& tick : ticks) {
        const bool isSkipped = number++ % std::max(1, request.skip) != 0;
        tick.label = isSkipped ? NumberText() : writer.written(tick.value, tick.label);
    }
}

std::vector<Tick> multiplesOf(const Step& step, const AxisScale& scale)
{
    const double size = step.value();
    const double slack = 1e-9;
    const double first = std::ceil(scale.minimum() / size - slack);
    const double last = std::floor(scale.maximum() / size + slack);
    std::vector<std::int64_t> multiples;
    for (double multiple = first; multiple <= last && multiples.size() <= mostTicks; multiple += 1.0) {
        multiples.push_back(static_cast<std::int64_t>(multiple));
    }
    std::vector<Tick> ticks;
    for (std::string& label : labelTexts(multiples, step)) {
        Tick tick = labelledTick(scale, std::move(label));
        if (tick.value >= scale.minimum() && tick.value <= scale.maximum()) {
            ticks.push_back(std::move(tick));
        }
    }
    return ticks;
}

bool labelsFit(const std::vector<Tick>& ticks, const TickRequest& request)
{
    const Tick* previous = nullptr;
    for (const Tick& tick : ticks) {
        if (tick.label.isEmpty()) {
            continue;
        }
        if (previous) {
            const double distance = std::abs(tick.fraction - previous->fraction) * request.length;
            double needed = request.minimumDistance;
            if (request.labelExtent) {
                needed =
                    std::max(needed, 0.5 * (request.labelExtent(tick.label) + request.labelExtent(previous->label)));
            }
            if (distance < needed * (1.0 - 1e-9)) {
                return false;
            }
        }
        previous = &tick;
    }
    return true;
}

void addMinorTicks(AxisTicks& ticks, const AxisScale& scale, double spacing, int count)
{
    if (ticks.major.empty() || count <= 0 || spacing <= 0.0) {
        return;
    }
    const double minor = spacing / (count + 1);
    const double reach = minor * 1e-6;
    double previous = scale.minimum() - spacing;
    const auto add = [&](double value) {
        if (value >= scale.minimum() && value <= scale.maximum() && value > previous + reach) {
            ticks.minor.push_back({value, scale.fraction(value), {}});
            previous = value;
        }
    };
    const double before = ticks.major.front().value - spacing;
    for (int i = 1; i <= count; ++i) {
        add(before + i * minor);
    }
    for (const Tick& tick : ticks.major) {
        for (int i = 1; i <= count; ++i) {
            add(tick.value + i * minor);
        }
    }
}

/* The numbers with as few decimals as write them to a hundredth of their distance; see NumberText::ofExact(). */
std::vector<std::string> textsApart(const std::vector<double>& values, double spacing)
{
    std::vector<std::string> texts;
    for (int digits = 0; digits <= 12; ++digits) {
        texts.clear();
        bool isClose = true;
        for (const double value : values) {
            texts.push_back(fixedText(value, digits));
            isClose = isClose && std::abs(parsed(texts.back()) - value) <= 0.01 * spacing;
        }
        if (isClose && std::none_of(texts.begin(), texts.end(), [](auto& text) { return text.size() > 9; })) {
            return texts;
        }
    }
    texts.clear();
    for (const double value : values) {
        texts.push_back(numberText(value, 12));
    }
    return texts;
}

/* The smallest difference that numbers of the range's size can still show. */
double resolution(const AxisScale& scale)
{
    const double size = std::max(std::abs(scale.minimum()), std::abs(scale.maximum()));
    return size * 4.0 * std::numeric_limits<double>::epsilon();
}

AxisTicks linearTicks(const AxisScale& scale, const TickRequest& request)
{
    const double range = scale.maximum() - scale.minimum();
    const double room = request.length * std::max(1, request.skip);
    const double most = std::clamp(room / std::max(request.minimumDistance, 1e-12), 1.0, double(mostTicks));
    const double least =
        std::max({range / most, resolution(scale), NumberWriter(request.number).smallestStep(), 1e-300});
    AxisTicks ticks;
    for (Step step = Step::atLeast(least);; step = step.next()) {
        ticks.major = multiplesOf(step, scale);
        writeLabels(ticks.major, request);
        ticks.spacing = step.value();
        if (ticks.major.size() <= mostTicks && labelsFit(ticks.major, request)) {
            addMinorTicks(ticks, scale, ticks.spacing,
                          step.minorCount(request.minorCount >= 0 ? request.minorCount : 4));
            return ticks;
        }
    }
}

/* Ticks at a spacing from an anchor; none where they would crowd the axis. */
AxisTicks spacedTicks(const AxisScale& scale, const TickRequest& request)
{
    AxisTicks ticks;
    const double from = (scale.minimum() - request.anchor) / request.spacing;
    const double to = (scale.maximum() - request.anchor) / request.spacing;
    const double slack = 1e-9 + 4.0 * std::numeric_limits<double>::epsilon() * std::max(std::abs(from), std::abs(to));
    const double first = std::ceil(from - slack);
    const double last = std::floor(to + slack);
    if (!(last - first < mostTicks)) {
        return ticks;
    }
    const auto count = last < first ? 0 : static_cast<std::size_t>(last - first) + 1;
    std::vector<double> values;
    values.reserve(count);
    for (std::size_t i = 0; i < count; ++i) {
        const double value = request.anchor + (first + static_cast<double>(i)) * request.spacing;
        values.push_back(std::abs(value) < request.spacing * 1e-9 ? 0.0 : value);
    }
    const std::vector<std::string> texts = textsApart(values, request.spacing);
    for (std::size_t i = 0; i < values.size(); ++i) {
        const double value =
            std::clamp(values[i], scale.minimum(), scale.maximum()); // but for rounding they are inside
        ticks.major.push_back({value, scale.fraction(value), NumberText::ofExact(texts[i])});
    }
    ticks.spacing = request.spacing;
    writeLabels(ticks.major, request);
    if (!labelsFit(ticks.major, request)) {
        return {};
    }
    addMinorTicks(ticks, scale, ticks.spacing, request.minorCount >= 0 ? request.minorCount : 4);
    return ticks;
}

/* Ticks at whole seconds, minutes and hours; nothing where the range asks for days. */
AxisTicks clockTicks(const AxisScale& scale, TickRequest request)
{
    struct ClockStep
    {
        int seconds;
        int minorCount;
    };
    constexpr std::array<ClockStep, 18> steps{{{1, 0},
                                               {2, 1},
                                               {5, 4},
                                               {10, 4},
                                               {15, 2},
                                               {30, 2},
                                               {60, 3},
                                               {120, 1},
                                               {300, 4},
                                               {600, 4},
                                               {900, 2},
                                               {1800, 2},
                                               {3600, 3},
                                               {7200, 1},
                                               {10800, 2},
                                               {21600, 5},
                                               {43200, 3},
                                               {86400, 3}}};
    request.anchor = 0.0;
    const auto asked = request.minorCount >= 0 ? request.minorCount : 4;
    for (const ClockStep& step : steps) {
        request.spacing = step.seconds / 86400.0;
        request.minorCount = std::min(asked, step.minorCount);
        AxisTicks ticks = spacedTicks(scale, request);
        if (!ticks.major.empty()) {
            return ticks;
        }
    }
    return {};
}

std::string decadeText(int mantissa, int exponent, bool plain)
{
    return plain ? decimalText(mantissa, exponent, std::max(0, -exponent))
                 : std::to_string(mantissa) + "e" + std::to_string(exponent);
}

AxisTicks decadeTicks(const AxisScale& scale, const TickRequest& request, const std::vector<int>& mantissas, int stride)
{
    AxisTicks ticks;
    const int first = static_cast<int>(std::floor(std::log10(scale.minimum())));
    const int last = static_cast<int>(std::ceil(std::log10(scale.maximum())));
    const bool plain = first >= -3 && last <= 5;
    const auto isInside = [&](double value) { return value >= scale.minimum() && value <= scale.maximum(); };
    for (int exponent = first; exponent <= last; ++exponent) {
        const bool isLabelled = exponent % stride == 0;
        for (int mantissa = 1; mantissa <= 9; ++mantissa) {
            Tick tick = labelledTick(scale, decadeText(mantissa, exponent, plain));
            if (!isInside(tick.value)) {
                continue;
            }
            if (isLabelled && std::find(mantissas.begin(), mantissas.end(), mantissa) != mantissas.end()) {
                ticks.major.push_back(std::move(tick));
            } else if (stride == 1 || mantissa == 1) {
                tick.label = {};
                ticks.minor.push_back(std::move(tick));
            }
        }
    }
    if (request.minorCount == 0) {
        ticks.minor.clear();
    }
    writeLabels(ticks.major, request);
    return ticks;
}

AxisTicks logarithmicTicks(const AxisScale& scale, const TickRequest& request)
{
    const double decades = std::log10(scale.maximum() / scale.minimum());
    if (decades < 3.0) {
        AxisTicks ticks = decadeTicks(scale, request, {1, 2, 5}, 1);
        if (ticks.major.size() >= 3 && labelsFit(ticks.major, request)) {
            return ticks;
        }
    }
    if (decades < 1.5) {
        const AxisTicks ticks = decadeTicks(scale, request, {1}, 1);
        return ticks.major.size() >= 2 && labelsFit(ticks.major, request) ? ticks : linearTicks(scale, request);
    }
    for (int stride = 1;; ++stride) {
        AxisTicks ticks = decadeTicks(scale, request, {1}, stride);
        if (ticks.major.size() <= mostTicks && labelsFit(ticks.major, request)) {
            return ticks;
        }
    }
}

double finite(double value)
{
    return std::isfinite(value) ? std::clamp(value, -largest, largest) : 0.0;
}

} // namespace

AxisScale::AxisScale(double minimum, double maximum, bool logarithmic, bool reversed)
    : m_minimum(std::min(finite(minimum), finite(maximum)))
    , m_maximum(std::max(finite(minimum), finite(maximum)))
    , m_logarithmic(logarithmic)
    , m_reversed(reversed)
{
    constexpr double smallest = 1e-290;
    if (m_logarithmic) {
        if (m_maximum < smallest) {
            m_minimum = 1.0;
            m_maximum = 10.0;
        }
        m_minimum = m_minimum > 0.0 ? std::max(m_minimum, smallest) : m_maximum * 1e-10;
        if (m_maximum / m_minimum < 1.0 + 1e-9) {
            m_minimum /= 2.0;
            m_maximum *= 2.0;
        }
        return;
    }
    const double size = std::max(std::abs(m_minimum), std::abs(m_maximum));
    if (m_maximum - m_minimum <= size * 64.0 * std::numeric_limits<double>::epsilon()) {
        const double half = size > smallest ? size * 0.05 : 0.5;
        m_minimum -= half;
        m_maximum += half;
    } else if (m_maximum - m_minimum < smallest) {
        m_minimum -= smallest;
        m_maximum += smallest;
    }
}

double AxisScale::fraction(double value) const
{
    const double along = m_logarithmic ? std::log(value / m_minimum) / std::log(m_maximum / m_minimum)
                                       : (value - m_minimum) / (m_maximum - m_minimum);
    return m_reversed ? 1.0 - along : along;
}

double AxisScale::value(double fraction) const
{
    const double along = m_reversed ? 1.0 - fraction : fraction;
    return m_logarithmic ? m_minimum * std::pow(m_maximum / m_minimum, along)
                         : m_minimum + along * (m_maximum - m_minimum);
}

AxisTicks AxisTicks::make(const AxisScale& scale, const TickRequest& request)
{
    if (scale.isLogarithmic()) {
        return logarithmicTicks(scale, request);
    }
    if (request.number.format == NumberFormat_TimeDate && request.spacing <= 0.0) {
        AxisTicks ticks = clockTicks(scale, request);
        if (ticks.major.size() > 1) {
            return ticks;
        }
    }
    if (request.spacing > 0.0) {
        AxisTicks ticks = spacedTicks(scale, request);
        if (!ticks.major.empty()) {
            return ticks;
        }
    }
    return linearTicks(scale, request);
}

} // namespace vantrix::view
