#pragma once

#include "kernel/StyleStore.h"

#include <optional>
#include <string>
#include <vector>

namespace vantrix::kernel {

class Document;

/*
 * What holds for the range of every axis at any time: its minimum is below its maximum and, where the axis is
 * logarithmic, above 0. (An axis runs the other way by `IsReversed`, not by its range.)
 */
class AxisRangeRules
{
public:
    /*
     * From now on the store refuses an end of a range that breaks the rules, with a text for the user. An axis that
     * becomes logarithmic keeps the part of its range above 0: a minimum that is not moves to the power of ten below
     * the smallest value above 0 that is shown over the axis.
     */
    static void install(StyleStore& style, const Document& document);

    /* What is wrong with values that are to fill the scope of a frame (see StyleStore::fillScope()). */
    struct Violation
    {
        std::size_t value; /* which of them */
        std::string text;
    };
    static std::optional<Violation> find(const StyleStore& style, const std::vector<StyleStore::Stored>& values);
};

/*
 * Writes both ends of a range in the order in which the minimum stays below the maximum in between: calls
 * `write("RangeMin", minimum)` and `write("RangeMax", maximum)`.
 */
template<class Write>
void writeAxisRange(double presentMaximum, double minimum, double maximum, Write&& write)
{
    const bool isMinimumFirst = minimum < presentMaximum;
    if (!isMinimumFirst) {
        write("RangeMax", maximum);
    }
    write("RangeMin", minimum);
    if (isMinimumFirst) {
        write("RangeMax", maximum);
    }
}

} // namespace vantrix::kernel
