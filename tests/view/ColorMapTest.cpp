#include "view/ColorMap.h"
#include "view/ContourColors.h"

#include <gtest/gtest.h>

#include <cmath>

using namespace vantrix::view;

namespace {

double lightness(const QColor& color)
{
    return 0.2126 * color.redF() + 0.7152 * color.greenF() + 0.0722 * color.blueF();
}

} // namespace

TEST(ColorMap, SequentialMapsOnlyGetLighter)
{
    for (const char* name : {"Sequential", "Heat", "Grayscale"}) {
        double previous = -1.0;
        for (int i = 0; i <= 100; ++i) {
            const double now = lightness(ColorMap::byName(name).at(i / 100.0));
            EXPECT_GT(now, previous - 0.004) << name << " at " << i;
            previous = now;
        }
    }
    const ColorMap& diverging = ColorMap::byName("Diverging");
    EXPECT_GT(lightness(diverging.at(0.5)), lightness(diverging.at(0.0)) + 0.4);
    EXPECT_GT(lightness(diverging.at(0.5)), lightness(diverging.at(1.0)) + 0.4);
}

TEST(ContourColors, ChangeAtLevelsWhenBandedAndBetweenThemWhenContinuous)
{
    ContourGroupStyle group;
    group.levels = {1.0, 2.0, 3.0};
    EXPECT_EQ(contourColor(group, 1.1), contourColor(group, 1.9));
    EXPECT_NE(contourColor(group, 1.9), contourColor(group, 2.1));
    EXPECT_NE(contourColor(group, 0.9), contourColor(group, 1.1));
    EXPECT_NE(contourColor(group, 2.9), contourColor(group, 3.1));
    group.isContinuous = true;
    EXPECT_NE(contourColor(group, 1.1), contourColor(group, 1.9));
    EXPECT_EQ(contourColor(group, -5.0), contourColor(group, 1.0));
    const QColor first = contourColor(group, 1.0);
    group.isReversed = true;
    EXPECT_EQ(contourColor(group, 3.0), first);
}
