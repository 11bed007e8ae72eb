#pragma once

#include "view/NumberText.h"

#include <functional>
#include <string>
#include <vector>

namespace vantrix::view {

/* Where the values of an axis lie along it: 0 at its beginning (left, bottom), 1 at its end. */
class AxisScale
{
public:
    /*
     * Any two numbers make a usable scale: they are put in order, an empty range is widened around its value, and what
     * is not positive is cut off a logarithmic one (which then spans at most ten decades below its maximum).
     */
    AxisScale(double minimum, double maximum, bool logarithmic = false, bool reversed = false);

    double minimum() const { return m_minimum; }
    double maximum() const { return m_maximum; }
    bool isLogarithmic() const { return m_logarithmic; }
    bool isReversed() const { return m_reversed; }

    double fraction(double value) const;
    double value(double fraction) const;

private:
    double m_minimum;
    double m_maximum;
    bool m_logarithmic;
    bool m_reversed;
};

struct TickRequest
{
    double length = 100.0;         /* of the axis, in any unit */
    double minimumDistance = 20.0; /* between two labelled ticks, in the same unit */

    /* The room a label takes along the axis, its gap to the next included; no labelled ticks are set closer than that.
     */
    std::function<double(const NumberText& label)> labelExtent;

    double spacing = 0.0; /* of labelled ticks, from the anchor; 0 chooses. Ignored where it would crowd the axis. */
    double anchor = 0.0;
    int minorCount = -1; /* minor ticks between two labelled ones; -1 chooses. Where the spacing is chosen, at most so
                            many: as many as divide it at round values. */
    NumberStyle number;  /* how labels are written */
    int skip = 1;        /* every how many ticks have a label; the others have none and need no room for it */
};

struct Tick
{
    double value;
    double fraction;  /* see AxisScale */
    NumberText label; /* empty for a minor tick and one whose label is skipped */
};

/*
 * The ticks of an axis: major ones at round values (1, 2 or 5 times a power of ten apart; decades of a logarithmic
 * axis; whole seconds, minutes and hours where labels are times) and minor ones between them. Values increase strictly
 * and lie inside the scale's range. Labels of `NumberFormat_BestFloat` and `NumberFormat_RangeBestFloat` have just as
 * many digits as tell neighbours apart and read back as the tick's value where that is a round one.
 */
struct AxisTicks
{
    std::vector<Tick> major;
    std::vector<Tick> minor;
    double spacing = 0.0; /* between labelled ticks; 0 when they are not evenly spaced */

    static AxisTicks make(const AxisScale& scale, const TickRequest& request);
};

} // namespace vantrix::view
