#include "view/PageRenderer.h"
#include "kernel/Document.h"
#include "kernel/Kernel.h"
#include "kernel/UndoStack.h"
#include "view/FramePlot.h"
#include "view/ShownSample.h"

#include <QLineF>
#include <gtest/gtest.h>

#include <map>

using namespace vantrix;

namespace {

/* Colours of the picture that are neither grey nor white, each with how often it comes. */
std::map<QRgb, int> colors(const QImage& image)
{
    std::map<QRgb, int> counts;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor color = image.pixelColor(x, y);
            if (color.saturation() > 40) {
                ++counts[color.rgb()];
            }
        }
    }
    return counts;
}

int colored(const QImage& image)
{
    int count = 0;
    for (const auto& [color, times] : colors(image)) {
        count += times;
    }
    return count;
}

} // namespace

TEST(PageRenderer, ShowsTheSamplesInColour)
{
    for (const auto& [name, type] :
         {std::pair("flow3d", PlotType_Cartesian3D), std::pair("fe2d", PlotType_Cartesian2D),
          std::pair("polyhedra", PlotType_Cartesian3D), std::pair("mixed", PlotType_Cartesian3D)}) {
        ShownSample sample(name, type);
        view::PageRenderer renderer(sample.kernel);
        const QImage image = renderer.frameImage(sample.frame(), 450);
        EXPECT_EQ(image.size(), QSize(450, 400));
        EXPECT_GT(colored(image), image.width() * image.height() / 10) << name;
        EXPECT_GT(colors(image).size(), 8U) << name;
        EXPECT_EQ(image.pixelColor(10, 10), QColor(Qt::white)) << name;
        EXPECT_GT(colored(renderer.pageImage(*sample.kernel.document().activePage(), 550)), 5000) << name;
    }
}

TEST(PageRenderer, RendersAgainOnlyWhatChanged)
{
    ShownSample sample("mixed", PlotType_Cartesian3D);
    view::PageRenderer renderer(sample.kernel);
    const QImage first = renderer.frameImage(sample.frame(), 300);
    EXPECT_EQ(renderer.renderCount(), 1);
    EXPECT_EQ(renderer.frameImage(sample.frame(), 300), first);
    sample.set("FrameLayout/XYPos/X", 1.5);
    EXPECT_EQ(renderer.frameImage(sample.frame(), 300), first);
    EXPECT_EQ(renderer.renderCount(), 1) << "nothing of the plot changed";

    sample.set("ActiveFieldMaps", 0L, 1);
    const QImage without = renderer.frameImage(sample.frame(), 300);
    EXPECT_EQ(renderer.renderCount(), 2);
    EXPECT_NE(without, first);
    sample.set("GlobalContour/ColorMap/Name", std::string("Heat"), 1);
    EXPECT_NE(renderer.frameImage(sample.frame(), 300), without);
    EXPECT_TRUE(sample.kernel.undoStack().undo());
    EXPECT_EQ(renderer.frameImage(sample.frame(), 300), without);
    EXPECT_TRUE(sample.kernel.undoStack().undo());
    EXPECT_EQ(renderer.frameImage(sample.frame(), 300), first);
}

TEST(PageRenderer, DrawsEveryLayer)
{
    ShownSample sample("fe2d", PlotType_Cartesian2D);
    view::PageRenderer renderer(sample.kernel);
    QImage previous = renderer.frameImage(sample.frame(), 300);
    for (const char* layer : {"FieldLayers/ShowMesh", "FieldLayers/ShowContour", "FieldLayers/ShowShade"}) {
        sample.set(layer,
                   sample.kernel.style().flag(sample.frame().id(), sample.kernel.style().entry(layer)) ? 0L : 1L);
        const QImage image = renderer.frameImage(sample.frame(), 300);
        EXPECT_NE(image, previous) << layer;
        previous = image;
    }
}

TEST(PageRenderer, KeepsTheHeaderInsideOfTheBorder)
{
    ShownSample sample("lines", PlotType_XYLine);
    view::PageRenderer renderer(sample.kernel);
    for (long map = 1; map <= 4; ++map) {
        sample.set("LineMap/Lines/Color", colornumber::blue, map);
    }
    sample.set("FrameLayout/ShowHeader", 1L);
    const auto headerHeight = [&] {
        const QImage image = renderer.frameImage(sample.frame(), 450);
        int rows = 0;
        for (int y = 0; y < image.height(); ++y) {
            rows += image.pixelColor(225, y) == QColor(Qt::red);
        }
        return rows;
    };
    const int thin = headerHeight();
    EXPECT_GT(thin, 5);
    sample.set("FrameLayout/BorderThickness", 10.0);
    EXPECT_NEAR(headerHeight(), thin, 1);
}

TEST(PageRenderer, FindsTheSurfaceUnderAPlaceOfA3DPlot)
{
    ShownSample sample("mixed", PlotType_Cartesian3D);
    view::PageRenderer renderer(sample.kernel);
    renderer.frameImage(sample.frame(), 600);
    const view::FramePlot& plot = *renderer.plot(sample.frame().id());
    const auto hit = renderer.pick(sample.frame().id(), plot.area.center());
    ASSERT_TRUE(hit);
    const QPointF place = plot.camera->project(*hit);
    EXPECT_NEAR(place.x(), 0.0, 0.005);
    EXPECT_NEAR(place.y(), 0.0, 0.005);
    EXPECT_FALSE(renderer.pick(sample.frame().id(), plot.area.topLeft() + QPointF(0.05, 0.05)));
}

TEST(PageRenderer, TurnsReversedAxesOfA3DPlotRound)
{
    ShownSample sample("mixed", PlotType_Cartesian3D);
    view::PageRenderer renderer(sample.kernel);
    const QImage before = renderer.frameImage(sample.frame(), 600);
    const view::FramePlot& plot = *renderer.plot(sample.frame().id());
    const double first = plot.style.axes[0].minimum;
    const double last = plot.style.axes[0].maximum;
    const std::optional<QPointF> firstPlace = plot.placeOf({first, 0.0, 0.0});
    const std::optional<QPointF> lastPlace = plot.placeOf({last, 0.0, 0.0});
    ASSERT_TRUE(firstPlace && lastPlace);
    sample.set("ThreeDAxis/XDetail/IsReversed", 1L);
    EXPECT_NE(renderer.frameImage(sample.frame(), 600), before);
    EXPECT_NEAR(QLineF(*plot.placeOf({first, 0.0, 0.0}), *lastPlace).length(), 0.0, 0.15);
    EXPECT_NEAR(QLineF(*plot.placeOf({last, 0.0, 0.0}), *firstPlace).length(), 0.0, 0.15);
    const auto hit = renderer.pick(sample.frame().id(), plot.area.center());
    ASSERT_TRUE(hit) << "the data lie where they did";
    const QPointF seen = *plot.placeOf(*hit) - plot.area.center();
    EXPECT_NEAR(seen.x(), 0.0, 0.01);
    EXPECT_NEAR(seen.y(), 0.0, 0.01);
}
