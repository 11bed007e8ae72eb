#include "kernel/FieldValues.h"
#include "kernel/Frame.h"
#include "kernel/Kernel.h"
#include "kernel/StyleStore.h"
#include "view/PageRenderer.h"
#include "view/ShownSample.h"

#include <gtest/gtest.h>

#include <array>
#include <cmath>

using namespace vantrix;

namespace {

constexpr long red = 1;
constexpr long green = 2;
constexpr long blue = 3;
constexpr long firstContourColor = 64;

/* How many pixels of a picture are about of a colour. */
int count(const QImage& image, const QColor& color)
{
    int pixels = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            const QColor pixel = image.pixelColor(x, y);
            pixels += std::abs(pixel.red() - color.red()) < 40 && std::abs(pixel.green() - color.green()) < 40 &&
                      std::abs(pixel.blue() - color.blue()) < 40;
        }
    }
    return pixels;
}

/* A sample with every layer off, to turn on one at a time. */
class FieldLayers : public testing::Test
{
protected:
    void show(const std::string& name, PlotType_e type)
    {
        TearDown();
        sample = std::make_unique<ShownSample>(name, type);
        renderer = std::make_unique<view::PageRenderer>(sample->kernel);
        for (const char* layer : {"ShowMesh", "ShowContour", "ShowShade", "ShowVector", "ShowScatter", "ShowEdge"}) {
            sample->set(std::string("FieldLayers/") + layer, 0L);
        }
    }

    QImage image() { return renderer->frameImage(sample->frame(), 400); }

    void TearDown() override
    {
        renderer.reset();
        sample.reset();
    }

    std::unique_ptr<ShownSample> sample;
    std::unique_ptr<view::PageRenderer> renderer;
};

} // namespace

TEST_F(FieldLayers, FillsSymbolsAndSizesThem)
{
    show("fe2d", PlotType_Cartesian2D);
    EXPECT_EQ(count(image(), Qt::red), 0);
    sample->set("FieldLayers/ShowScatter", 1L);
    sample->set("FieldMap/Scatter/Color", red, 1);
    sample->set("FieldMap/Scatter/FillColor", red, 1);
    sample->set("FieldMap/Points/ISkip", 10L, 1);
    const int filled = count(image(), Qt::red);
    EXPECT_GT(filled, 500);
    sample->set("FieldMap/Scatter/IsFilled", 0L, 1);
    const int outlined = count(image(), Qt::red);
    EXPECT_LT(outlined, filled);
    EXPECT_GT(outlined, 50);
    sample->set("FieldMap/Scatter/FrameSize", 4.0, 1);
    EXPECT_GT(count(image(), Qt::red), outlined);
    sample->set("FieldMap/Scatter/IsFilled", 1L, 1);
    sample->set("FieldMap/Scatter/FillColor", firstContourColor, 1);
    sample->set("FieldMap/Scatter/Color", 0L, 1);
    EXPECT_LT(count(image(), Qt::red), filled) << "coloured by the contour group now";
}

TEST_F(FieldLayers, DrawsVectorsAlongTheFlow)
{
    show("flow3d", PlotType_Cartesian2D);
    sample->set("FieldLayers/ShowVector", 1L);
    sample->set("FieldMap/Vector/Color", blue, 1);
    const int relative = count(image(), Qt::blue);
    EXPECT_GT(relative, 200);
    sample->set("GlobalVector/UseRelative", 0L);
    sample->set("GlobalVector/UniformLength", 0.5);
    EXPECT_LT(count(image(), Qt::blue), relative);
    sample->set("GlobalStream/UVar", 0L);
    sample->set("GlobalStream/VVar", 0L);
    sample->set("GlobalStream/WVar", 0L);
    EXPECT_EQ(count(image(), Qt::blue), 0) << "without vector variables there is nothing to draw";
}

TEST_F(FieldLayers, ShowsPlanesInsideAVolumeAndWhatLiesBehind)
{
    show("flow3d", PlotType_Cartesian3D);
    sample->set("FieldLayers/ShowShade", 1L);
    sample->set("FieldLayers/UseLightingEffect", 0L);
    sample->set("FieldMap/Shade/Color", green, 1);
    const int whole = count(image(), Qt::green);
    ASSERT_GT(whole, 5000);
    sample->set("FieldMap/Surfaces/SurfacesToPlot", long{SurfacesToPlot_IPlanes}, 1);
    sample->set("FieldMap/Surfaces/IRange/Max", 1L, 1);
    const int plane = count(image(), Qt::green);
    EXPECT_LT(plane, whole / 2);
    EXPECT_GT(plane, 100);
    sample->set("FieldMap/Effects/UseTranslucency", 1L, 1);
    sample->set("FieldMap/Effects/SurfaceTranslucency", 70L, 1);
    EXPECT_LT(count(image(), Qt::green), plane / 2) << "the white behind shines through";
}

TEST_F(FieldLayers, LeaveAwayWhatIsBlanked)
{
    for (const PlotType_e type : {PlotType_Cartesian2D, PlotType_Cartesian3D}) {
        show("fe2d", type);
        for (const char* layer : {"ShowShade", "ShowMesh"}) {
            sample->set(std::string("FieldLayers/") + layer, 1L);
        }
        sample->set("FieldLayers/UseLightingEffect", 0L);
        sample->set("FieldMap/Shade/Color", green, 1);
        sample->set("FieldMap/Mesh/Color", green, 1);
        const int whole = count(image(), Qt::green);
        ASSERT_GT(whole, 5000);
        const auto range = kernel::valueRange(*sample->frame().dataSet()->field(1, 1)->values);
        ASSERT_TRUE(range);
        sample->set("Blanking/Value/Include", 1L);
        sample->set("Blanking/Value/Constraint/Include", 1L, 1);
        sample->set("Blanking/Value/Constraint/VarA", 1L, 1);
        sample->set("Blanking/Value/Constraint/ValueCutoff", std::lerp(range->minimum, range->maximum, 0.4), 1);
        sample->set("Blanking/Value/BlankEntireCell", 0L); // cells on the boundary are in neither part, or in both
        const auto parts = [&] {
            std::array<int, 2> pixels{};
            for (const auto relation : {RelOp_LessThanOrEqual, RelOp_GreaterThanOrEqual}) {
                sample->set("Blanking/Value/Constraint/RelOp", long{relation}, 1);
                pixels[relation] = count(image(), Qt::green);
                EXPECT_GT(pixels[relation], whole / 10);
            }
            return pixels[0] + pixels[1];
        };
        const bool isFlat = type == PlotType_Cartesian2D;
        EXPECT_NEAR(parts(), whole, (isFlat ? 0.02 : 0.15) * whole);
        sample->set("Blanking/Value/BlankEntireCell", 1L);
        EXPECT_GT(parts(), whole) << "cells with one corner left are drawn";
        sample->set("Blanking/Value/ValueBlankCellMode", long{ValueBlankCellMode_AnyCorner});
        EXPECT_LT(parts(), whole) << "cells with one corner blanked are not";
        sample->set("Blanking/Value/Include", 0L);
        EXPECT_EQ(count(image(), Qt::green), whole);
    }
}

TEST_F(FieldLayers, LeavesAwayWhatACutoffExcludes)
{
    show("fe2d", PlotType_Cartesian2D);
    sample->set("FieldLayers/ShowContour", 1L);
    const int before = count(image(), Qt::white);
    const double low = sample->real("GlobalContour/Levels/Min", 1);
    const double high = sample->real("GlobalContour/Levels/Max", 1);
    sample->set("GlobalContour/ColorCutoff/UseMin", 1L, 1);
    sample->set("GlobalContour/ColorCutoff/Min", 0.5 * (low + high), 1);
    EXPECT_GT(count(image(), Qt::white), before + 1000);
}
