#include "view/PlotStyle.h"

#include "kernel/Frame.h"
#include "kernel/Kernel.h"
#include "view/ShownSample.h"

#include <gtest/gtest.h>

using namespace vantrix;
using namespace vantrix::view;

namespace {

PlotStyle read(const ShownSample& sample)
{
    return PlotStyle::read(sample.kernel.style(), sample.frame());
}

} // namespace

/* A path that the vocabulary does not have, or has with another type, throws. */
TEST(PlotStyleTest, ReadsNothingThatTheVocabularyDoesNotHave)
{
    for (const char* name : {"flow3d", "lines", "polar"}) {
        for (const PlotType_e type :
             {PlotType_Cartesian3D, PlotType_Cartesian2D, PlotType_XYLine, PlotType_Sketch, PlotType_PolarLine}) {
            const ShownSample sample(name, type);
            EXPECT_NO_THROW(read(sample)) << name << " as plot type " << type;
        }
    }
}

TEST(PlotStyleTest, OfAnXYPlotHasTheAxesThatLineMapsUse)
{
    ShownSample sample("lines", PlotType_XYLine);
    EXPECT_TRUE(read(sample).moreAxes.empty());
    sample.set("LineMap/Assignment/YAxisVar", 4L, 2);
    sample.set("LineMap/Assignment/YAxis", 3L, 2);
    const PlotStyle plot = read(sample);
    ASSERT_EQ(plot.moreAxes.size(), 1U);
    EXPECT_EQ(plot.moreAxes[0].kind, 1U);
    EXPECT_EQ(plot.moreAxes[0].number, 3);
    EXPECT_EQ(plot.moreAxes[0].style.title.words, "Energy");
    EXPECT_EQ(plot.axes[1].title.words, "Displacement");

    for (const long map : {1L, 2L, 3L, 4L}) {
        sample.set("LineMap/Assignment/YAxis", 2L, map);
    }
    EXPECT_FALSE(read(sample).axes[1].isShown) << "nothing is drawn over Y1";
    EXPECT_EQ(read(sample).moreAxes[0].style.title.words, "Displacement, Energy");
}

TEST(PlotStyleTest, OfASketchNeedsNoData)
{
    ShownSample sample("lines", PlotType_Sketch);
    EXPECT_FALSE(read(sample).axes[0].isShown) << "off until somebody wants them";
    sample.set("SketchAxis/XDetail/ShowAxis", 1L);
    EXPECT_TRUE(read(sample).axes[0].isShown);
}
