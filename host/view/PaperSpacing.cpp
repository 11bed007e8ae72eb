#include "view/PaperSpacing.h"

namespace vantrix::view {

PaperSpacing PaperSpacing::of(PaperUnitSpacing_e spacing)
{
    const auto centimetres = [](double length) { return PaperSpacing{length / 2.54, 2.54, "cm"}; };
    const auto inches = [](double length) { return PaperSpacing{length, 1.0, "in"}; };
    const auto points = [](double length) { return PaperSpacing{length / 72.0, 72.0, "pt"}; };
    switch (spacing) {
    case PaperUnitSpacing_HalfCentimeter:
        return centimetres(0.5);
    case PaperUnitSpacing_OneCentimeter:
        return centimetres(1.0);
    case PaperUnitSpacing_TenthInch:
        return inches(0.1);
    case PaperUnitSpacing_QuarterInch:
        return inches(0.25);
    case PaperUnitSpacing_OneInch:
        return inches(1.0);
    case PaperUnitSpacing_HalfInch:
        return inches(0.5);
    case PaperUnitSpacing_EighthInch:
        return inches(0.125);
    case PaperUnitSpacing_SixteenthInch:
        return inches(0.0625);
    case PaperUnitSpacing_TenPoints:
        return points(10.0);
    case PaperUnitSpacing_TwentyFourPoints:
        return points(24.0);
    }
    return inches(1.0);
}

int PaperSpacing::stepsFor(double pixels, double pixelsPerInch) const
{
    const double needed = pixels / (inches * pixelsPerInch);
    for (int decade = 1; decade < 1'000'000; decade *= 10) {
        for (const int factor : {1, 2, 5}) {
            if (decade * factor >= needed) {
                return decade * factor;
            }
        }
    }
    return 1'000'000;
}

} // namespace vantrix::view
