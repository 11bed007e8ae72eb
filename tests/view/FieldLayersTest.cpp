#include "api/VtxUtilData.h"
#include "api/VtxUtilFrame.h"
#include "kernel/ApplicationLock.h"
#include "kernel/FieldValues.h"
#include "kernel/Frame.h"
#include "kernel/Kernel.h"
#include "kernel/PickList.h"
#include "kernel/StyleStore.h"
#include "view/FramePlot.h"
#include "view/PageRenderer.h"
#include "view/Pixels.h"
#include "view/ShownSample.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>

using namespace vantrix;
using namespace colornumber;

namespace {

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
    sample->set("FieldMap/Scatter/FillColor", firstContourGroup, 1);
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

TEST_F(FieldLayers, MixColoursFromThreeVariables)
{
    show("flow3d", PlotType_Cartesian2D);
    sample->set("FieldLayers/ShowContour", 1L);
    sample->set("FieldMap/Contour/FloodColoring", long{ContourColoring_RGB}, 1);
    EXPECT_FALSE(VtxUtilContourOkToTurnOnRGBColoring());
    const auto counts = [this] {
        const QImage drawn = image();
        return std::array{count(drawn, Qt::red), count(drawn, Qt::green), count(drawn, Qt::yellow),
                          count(drawn, Qt::magenta)};
    };
    EXPECT_EQ(counts(), (std::array{0, 0, 0, 0})) << "no variables are chosen";
    sample->set("GlobalRGB/RedVar", 1L);   // X
    sample->set("GlobalRGB/GreenVar", 2L); // Y
    EXPECT_FALSE(VtxUtilContourOkToTurnOnRGBColoring());
    sample->set("GlobalRGB/BlueVar", 3L); // Z, which is 0 in the plane
    EXPECT_TRUE(VtxUtilContourOkToTurnOnRGBColoring());
    sample->set("GlobalRGB/RangeMax", 1e-3); // a step
    for (const ContourType_e type : {ContourType_Flood, ContourType_AverageCell}) {
        sample->set("FieldMap/Contour/ContourType", long{type}, 1);
        const auto [reds, greens, yellows, magentas] = counts();
        EXPECT_GT(reds, 5000) << "X is above 0";
        EXPECT_NEAR(greens, reds, 0.1 * reds);
        EXPECT_NEAR(yellows, reds, 0.1 * reds) << "X and Y are above 0";
        EXPECT_EQ(magentas, 0);
    }
    sample->set("FieldMap/Contour/FloodColoring", long{ContourColoring_Group1}, 1);
    EXPECT_LT(counts()[0], 500);
}

TEST_F(FieldLayers, ANewColourMakesNoGeometryAgain)
{
    show("flow3d", PlotType_Cartesian3D);
    for (const char* layer : {"ShowMesh", "ShowContour", "ShowShade", "ShowScatter", "ShowVector", "ShowEdge"}) {
        sample->set(std::string("FieldLayers/") + layer, 1L);
    }
    sample->set("FieldMap/Contour/ContourType", long{ContourType_LinesAndFlood}, 1);
    for (const char* skip : {"FieldMap/Points/ISkip", "FieldMap/Points/JSkip", "FieldMap/Points/KSkip"}) {
        sample->set(skip, 8L, 1);
    }
    image();
    const long id = sample->frame().id();
    const long made = renderer->geometryCount(id);
    EXPECT_GT(made, 5);
    const long painted = renderer->renderCount();
    for (const char* path : {"FieldMap/Mesh/Color", "FieldMap/Shade/Color", "FieldMap/Edge/Color",
                             "FieldMap/Scatter/Color", "FieldMap/Contour/Color"}) {
        sample->set(path, blue, 1);
        image();
    }
    sample->set("GlobalContour/ColorMap/Name", std::string("Heat"), 1);
    sample->set("FieldMap/Mesh/LineThickness", 0.3, 1);
    image();
    EXPECT_EQ(renderer->renderCount(), painted + 6);
    EXPECT_EQ(renderer->geometryCount(id), made);
    sample->set("FieldMap/Surfaces/SurfacesToPlot", long{SurfacesToPlot_IPlanes}, 1);
    image();
    EXPECT_GT(renderer->geometryCount(id), made) << "other surfaces are other geometry";
}

TEST_F(FieldLayers, MeshesContoursAndBoundariesHavePatterns)
{
    show("fe2d", PlotType_Cartesian2D);
    const auto drawn = [&](const std::string& layer, const char* onOff) {
        sample->set(onOff, 1L);
        sample->set(layer + "/Color", red, 1);
        const int solid = count(image(), Qt::red);
        sample->set(layer + "/LinePattern", long{LinePattern_Dashed}, 1);
        const int dashed = count(image(), Qt::red);
        sample->set(onOff, 0L);
        EXPECT_GT(solid, 100) << layer;
        return double(dashed) / solid;
    };
    sample->set("FieldMap/Contour/ContourType", long{ContourType_LinesAndFlood}, 1);
    sample->set("GlobalContour/ColorMap/Name", std::string("Grayscale"), 1);
    EXPECT_NEAR(drawn("FieldMap/Mesh", "FieldLayers/ShowMesh"), 0.6, 0.15);
    EXPECT_NEAR(drawn("FieldMap/Contour", "FieldLayers/ShowContour"), 0.6, 0.15);

    const auto range = kernel::valueRange(*sample->frame().dataSet()->field(1, 1)->values);
    ASSERT_TRUE(range);
    sample->set("Blanking/Value/Constraint/Include", 1L, 1);
    sample->set("Blanking/Value/Constraint/Show", 1L, 1);
    sample->set("Blanking/Value/Constraint/LineThickness", 1.0, 1);
    sample->set("Blanking/Value/Constraint/VarA", 1L, 1);
    sample->set("Blanking/Value/Constraint/ValueCutoff", std::lerp(range->minimum, range->maximum, 0.4), 1);
    EXPECT_NEAR(drawn("Blanking/Value/Constraint", "Blanking/Value/Include"), 0.6, 0.15);
}

TEST_F(FieldLayers, DrawCharactersAsSymbols)
{
    show("fe2d", PlotType_Cartesian2D);
    sample->set("FieldLayers/ShowScatter", 1L);
    sample->set("FieldMap/Scatter/Color", red, 1);
    sample->set("FieldMap/Scatter/FillColor", red, 1);
    sample->set("FieldMap/Scatter/FrameSize", 4.0, 1);
    sample->set("FieldMap/Points/ISkip", 40L, 1);
    sample->set("ActiveFieldMaps", 0L, 2);
    const int circles = count(image(), Qt::red);
    sample->set("FieldMap/Scatter/SymbolShape/IsASCII", 1L, 1);
    const auto characters = [&](const char* character) {
        sample->set("FieldMap/Scatter/SymbolShape/ASCIIShape/ASCIIChar", std::string(character), 1);
        return count(image(), Qt::red);
    };
    const int dots = characters(".");
    const int letters = characters("O");
    EXPECT_GT(dots, 0);
    EXPECT_GT(letters, 3 * dots);
    EXPECT_LT(letters, circles) << "a letter has a hole";
}

TEST_F(FieldLayers, NumberContourLines)
{
    for (const PlotType_e type : {PlotType_Cartesian2D, PlotType_Cartesian3D}) {
        show("fe2d", type);
        sample->set("FieldLayers/ShowContour", 1L);
        sample->set("FieldMap/Contour/ContourType", long{ContourType_Lines}, 1);
        sample->set("GlobalContour/ColorMap/Name", std::string("Grayscale"), 1);
        sample->set("GlobalContour/Labels/Color", red, 1);
        sample->set("GlobalContour/Labels/TextShape/Height", 5.0, 1);
        EXPECT_EQ(count(image(), Qt::red), 0);
        sample->set("GlobalContour/Labels/Show", 1L, 1);
        const int all = count(image(), Qt::red);
        EXPECT_GT(all, 50);
        sample->set("GlobalContour/Labels/Skip", 2L, 1);
        EXPECT_LT(count(image(), Qt::red), all) << "the level 1 has no label any more";
    }
}

TEST_F(FieldLayers, EdgesAreSeenWholeHoweverSteepTheFacesAre)
{
    show("flow3d", PlotType_Cartesian3D);
    constexpr std::array<double, 3> size{10.0, 4.0, 9.0};
    {
        const kernel::ActionLock lock(sample->kernel.lock());
        ASSERT_TRUE(VtxUtilCreateRectangularZone(9, 9, 9, 0, 0, 0, size[0], size[1], size[2], FieldDataType_Double));
    }
    const long box = VtxUtilDataSetGetNumZones();
    sample->set("ActiveFieldMaps", 0L, 1);
    sample->set("FieldLayers/ShowShade", 1L);
    sample->set("FieldLayers/ShowEdge", 1L);
    sample->set("FieldMap/Shade/Color", blue, box);
    sample->set("FieldMap/Edge/Color", red, box);
    sample->set("ThreeDView/DrawInPerspective", 0L);
    for (const double psi : {80.0, 85.0, 60.0}) {
        for (const double theta : {263.0, 240.0, 184.0}) {
            SCOPED_TRACE(std::to_string(psi) + ' ' + std::to_string(theta));
            sample->set("ThreeDView/PsiAngle", psi);
            sample->set("ThreeDView/ThetaAngle", theta);
            const QImage picture = renderer->frameImage(sample->frame(), 600);
            const view::FramePlot& plot = *renderer->plot(sample->frame().id());
            const double inch = picture.width() / plot.frameSize.width();
            const auto isRedNear = [&](QPointF place) {
                for (int y = -1; y <= 1; ++y) {
                    for (int x = -1; x <= 1; ++x) {
                        const QPoint at = place.toPoint() + QPoint(x, y);
                        const QColor color = picture.valid(at) ? picture.pixelColor(at) : QColor();
                        if (color.red() > color.green() + 30 && color.red() > color.blue()) {
                            return true;
                        }
                    }
                }
                return false;
            };
            /* Of the edge from one corner along an axis, the part that is seen. */
            const auto seenPart = [&](std::array<double, 3> from, std::size_t axis) {
                int seen = 0;
                constexpr int steps = 200;
                for (int i = 1; i < steps; ++i) {
                    from[axis] = size[axis] * i / steps;
                    const auto place = plot.placeOf(from);
                    seen += place && isRedNear(*place * inch) ? 1 : 0;
                }
                return double(seen) / (steps - 1);
            };
            int whole = 0;
            for (std::size_t axis = 0; axis < 3; ++axis) {
                for (unsigned corner = 0; corner < 4; ++corner) {
                    std::array<double, 3> from{};
                    from[(axis + 1) % 3] = corner & 1U ? size[(axis + 1) % 3] : 0.0;
                    from[(axis + 2) % 3] = corner & 2U ? size[(axis + 2) % 3] : 0.0;
                    whole += seenPart(from, axis) > 0.99 ? 1 : 0;
                }
            }
            EXPECT_EQ(whole, 9) << "three edges are hidden";
        }
    }
}

TEST_F(FieldLayers, LinesHaveNoGapsWhereTheirSegmentsMeet)
{
    show("polar", PlotType_Cartesian2D);
    sample->set("FieldLayers/ShowEdge", 1L);
    for (const long zone : {2L, 3L}) {
        sample->set("ActiveFieldMaps", 0L, zone);
    }
    for (const int width : {640, 700, 760}) {
        const QImage drawn = renderer->frameImage(sample->frame(), width);
        const view::FramePlot& plot = *renderer->plot(sample->frame().id());
        const double inch = width / plot.frameSize.width();
        const QRect area = QRectF(plot.area.topLeft() * inch, plot.area.size() * inch).toRect();
        // The field goes up and down twice, so that four lines cross each height.
        for (int y = area.top() + area.height() / 10; y < area.bottom() - area.height() / 10; ++y) {
            int lines = 0;
            bool isOnLine = false;
            for (int x = area.left() + 3; x < area.right() - 3; ++x) {
                const bool isDark = drawn.pixelColor(x, y).lightness() < 200;
                lines += isDark && !isOnLine;
                isOnLine = isDark;
            }
            ASSERT_EQ(lines, 4) << "row " << y << " of width " << width;
        }
    }
}

TEST_F(FieldLayers, LightLeavesAsMuchOfAColourAsItIsTold)
{
    show("fe2d", PlotType_Cartesian3D);
    sample->set("FieldLayers/ShowShade", 1L);
    sample->set("FieldMap/Shade/Color", green, 1);
    sample->set("FieldMap/Shade/Color", green, 2);
    const auto saturation = [&] { // of the strongest colour
        const QImage picture = image();
        int most = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                most = std::max(most, picture.pixelColor(x, y).hsvSaturation());
            }
        }
        return most;
    };
    sample->set("GlobalThreeD/LightSource/IncludeSpecularHighlights", 0L);
    const int whole = saturation();
    EXPECT_GT(whole, 240);
    sample->set("GlobalThreeD/LightSource/SurfaceColorContrast", 30.0);
    EXPECT_LT(saturation(), whole / 2);
    sample->set("FieldLayers/ShowContour", 1L);
    sample->set("GlobalContour/Legend/Show", 0L, 1); // whose colours are those without light
    const int paleFlood = saturation();
    sample->set("GlobalThreeD/LightSource/SurfaceColorContrast", 100.0);
    EXPECT_GT(saturation(), paleFlood);
    sample->set("GlobalThreeD/LightSource/SurfaceColorContrast", 30.0);
    sample->set("FieldLayers/UseLightingEffect", 0L);
    EXPECT_GT(saturation(), paleFlood) << "no light, no contrast of its own";
}

TEST_F(FieldLayers, LightFallsOnReversedAxesAsOnOthers)
{
    show("flow3d", PlotType_Cartesian3D);
    sample->set("FieldLayers/ShowShade", 1L);
    sample->set("FieldMap/Shade/Color", green, 1);
    // How bright the surface is where it is brightest.
    const auto brightest = [&] {
        const QImage picture = image();
        int green = 0;
        for (int y = 0; y < picture.height(); ++y) {
            for (int x = 0; x < picture.width(); ++x) {
                const QColor color = picture.pixelColor(x, y);
                green = color.saturation() > 200 ? std::max(green, color.green()) : green;
            }
        }
        return green;
    };
    const int before = brightest();
    EXPECT_GT(before, 150);
    sample->set("ThreeDAxis/ZDetail/IsReversed", 1L);
    EXPECT_NEAR(brightest(), before, 25);
    sample->set("ThreeDAxis/XDetail/IsReversed", 1L);
    EXPECT_NEAR(brightest(), before, 25);
    sample->set("ThreeDAxis/ZDetail/IsReversed", 0L);
    EXPECT_NEAR(brightest(), before, 25);
}

TEST_F(FieldLayers, LightForcesTheShadingOfFloods)
{
    show("flow3d", PlotType_Cartesian3D);
    sample->set("FieldLayers/ShowContour", 1L);
    sample->set("FieldMap/Effects/LightingEffect", long{LightingEffect_Gouraud}, 1);
    const QImage smooth = image();
    sample->set("FieldMap/Effects/LightingEffect", long{LightingEffect_Paneled}, 1);
    const QImage paneled = image();
    EXPECT_NE(smooth, paneled);
    sample->set("GlobalThreeD/LightSource/ForceGouraudShading", 1L);
    EXPECT_EQ(image(), smooth);
    sample->set("GlobalThreeD/LightSource/ForceGouraudShading", 0L);
    sample->set("FieldMap/Effects/LightingEffect", long{LightingEffect_Gouraud}, 1);
    sample->set("GlobalThreeD/LightSource/ForcePanelShading", 1L);
    EXPECT_EQ(image(), paneled);
}

TEST_F(FieldLayers, CurvesKeepTheirColoursUnderTheirEdges)
{
    show("lines", PlotType_Cartesian2D);
    const QImage empty = image();
    sample->set("FieldLayers/ShowContour", 1L);
    sample->set("GlobalContour/Legend/Show", 0L, 1);
    const QImage flooded = image();
    EXPECT_NE(flooded, empty);
    sample->set("FieldLayers/ShowEdge", 1L);
    EXPECT_EQ(image(), flooded);
    sample->set("FieldLayers/ShowContour", 0L);
    EXPECT_NE(image(), empty) << "they are seen by their edges";
}

TEST_F(FieldLayers, HaveALegendOfSymbols)
{
    show("fe2d", PlotType_Cartesian2D);
    sample->set("FieldLayers/ShowScatter", 1L);
    for (long zone = 1; zone <= 2; ++zone) {
        sample->set("FieldMap/Scatter/Color", zone == 1 ? red : blue, zone);
        sample->set("FieldMap/Scatter/FillColor", zone == 1 ? red : blue, zone);
        sample->set("FieldMap/Points/ISkip", 1000000L, zone); // symbols in the legend alone, but for one
    }
    const int red0 = count(image(), Qt::red);
    const double alone = renderer->plot(sample->frame().id())->area.width();
    sample->set("GlobalScatter/Legend/Show", 1L);
    const QImage both = image();
    EXPECT_LT(renderer->plot(sample->frame().id())->area.width(), alone) << "it stands beside the plot";
    EXPECT_GT(count(both, Qt::red), red0);
    EXPECT_GT(count(both, Qt::blue), 0);
    sample->set("FieldMap/Scatter/Show", 0L, 2);
    EXPECT_EQ(count(image(), Qt::blue), 0) << "a zone without symbols has no row";
    sample->set("GlobalScatter/Legend/IsPlaced", 1L);
    sample->set("GlobalScatter/Legend/XYPos/X", 50.0);
    sample->set("GlobalScatter/Legend/XYPos/Y", 50.0);
    image();
    EXPECT_EQ(renderer->plot(sample->frame().id())->area.width(), alone);
}

TEST_F(FieldLayers, HaveALegendForEachGroupInUse)
{
    show("fe2d", PlotType_Cartesian2D);
    const long id = sample->frame().id();
    const auto legendAt = [&](double across, double down) {
        image();
        const QSizeF size = renderer->plot(id)->frameSize;
        return renderer->objectAt(id, {across * size.width(), down * size.height()}, 0.02).type ==
               PickObject_ContourLegend;
    };
    EXPECT_FALSE(legendAt(0.9, 0.4));
    sample->set("FieldLayers/ShowContour", 1L);
    EXPECT_TRUE(legendAt(0.9, 0.4));
    const double alone = renderer->plot(id)->area.width();
    sample->set("GlobalContour/Legend/IsPlaced", 1L, 1);
    sample->set("GlobalContour/Legend/XYPos/X", 10.0, 1);
    sample->set("GlobalContour/Legend/XYPos/Y", 90.0, 1);
    sample->set("GlobalContour/Legend/AnchorAlignment", long{AnchorAlignment_TopLeft}, 1);
    EXPECT_FALSE(legendAt(0.9, 0.4));
    EXPECT_TRUE(legendAt(0.12, 0.3));
    EXPECT_GT(renderer->plot(id)->area.width(), alone);
    sample->set("GlobalContour/Legend/IsVertical", 0L, 1);
    EXPECT_TRUE(legendAt(0.4, 0.12));
    EXPECT_FALSE(legendAt(0.12, 0.5));
    // The mesh takes its colours from another group, which has a legend of its
    // own beside the plot.
    sample->set("FieldLayers/ShowMesh", 1L);
    sample->set("FieldMap/Mesh/Color", firstContourGroup + 1, 1);
    EXPECT_TRUE(legendAt(0.9, 0.4));
    EXPECT_TRUE(legendAt(0.4, 0.12));
}
