#include "api/VtxUtil.h"
#include "kernel/ApplicationLock.h"
#include "kernel/Kernel.h"
#include "kernel/MouseModes.h"
#include "kernel/interface/ArgumentList.h"
#include "kernel/streamtrace/StreamtracePaths.h"
#include "support/UserInput.h"
#include "view/FramePlot.h"
#include "view/PageRenderer.h"
#include "view/Pixels.h"
#include "view/ShownSample.h"
#include "view/WorkArea.h"

#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

#include <cmath>

using namespace vantrix;
using namespace colornumber;

namespace {

/* The flow past the tower with red streamtraces shown and nothing else. */
class Streamtraces : public testing::Test
{
protected:
    void show(PlotType_e type)
    {
        sample = std::make_unique<ShownSample>("flow3d", type);
        renderer = std::make_unique<view::PageRenderer>(sample->kernel);
        for (const char* layer : {"ShowMesh", "ShowContour", "ShowShade", "ShowVector", "ShowScatter", "ShowEdge"}) {
            sample->set(std::string("FieldLayers/") + layer, 0L);
        }
        sample->set("GlobalStream/UVar", 4L);
        sample->set("GlobalStream/VVar", 5L);
        sample->set("GlobalStream/WVar", 6L);
        sample->set("StreamtraceLayers/Show", 1L);
        sample->set("StreamAttributes/Color", red);
        sample->set("StreamAttributes/LineThickness", 0.4);
    }

    /* A rake across the flow, before the tower. */
    void addRake(long type)
    {
        VtxArgList list{{{"StreamType", type},
                         {"X1", -6.0},
                         {"Y1", -3.0},
                         {"Z1", 3.0},
                         {"X2", -6.0},
                         {"Y2", 3.0},
                         {"Z2", 3.0},
                         {"NumPts", 7L}}};
        const kernel::ActionLock lock(sample->kernel.lock());
        ASSERT_TRUE(VtxUtilStreamtraceAddX(&list)) << sample->kernel.lastError();
    }

    QImage image() { return renderer->frameImage(sample->frame(), 400); }
    long geometryCount() { return renderer->geometryCount(sample->frame().id()); }

    void TearDown() override
    {
        renderer.reset();
        sample.reset();
    }

    std::unique_ptr<ShownSample> sample;
    std::unique_ptr<view::PageRenderer> renderer;
};

/* A work area on the screen, and a hand on the mouse. */
class StreamtraceMouse : public Streamtraces
{
protected:
    void showArea(PlotType_e type)
    {
        show(type);
        sample->set("StreamtraceLayers/Show", 0L);
        area = std::make_unique<view::WorkArea>(sample->kernel);
        area->resize(900, 720);
        area->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(area.get()));
        area->repaint();
        ASSERT_TRUE(sample->kernel.mouseModes().set(MouseMode_Streamtrace));
    }

    void TearDown() override
    {
        EXPECT_EQ(sample->kernel.lock().violationCount(), 0);
        area.reset();
        Streamtraces::TearDown();
    }

    /* Where a point of the data is in the widget. */
    QPoint placeOf(const view::Point3& data) const
    {
        const auto place = area->renderer().plot(sample->frame().id())->placeOf(data);
        return area->toWidget(area->renderer().frameRect(sample->frame()).topLeft() + *place).toPoint();
    }

    void drag(QPoint from, QPoint to)
    {
        QTest::mousePress(area.get(), Qt::LeftButton, {}, from);
        for (int i = 1; i <= 4; ++i) {
            test::moveMouse(*area, from + (to - from) * i / 4.0, Qt::LeftButton);
        }
        QTest::mouseRelease(area.get(), Qt::LeftButton, {}, to);
        area->repaint();
    }

    std::unique_ptr<view::WorkArea> area;
};

} // namespace

TEST_F(Streamtraces, AreDrawnAsLinesAndAColourTracesAndMakesNothingAnew)
{
    show(PlotType_Cartesian2D);
    EXPECT_EQ(count(image(), Qt::red), 0);
    addRake(Streamtrace_TwoDLine);
    const int lines = count(image(), Qt::red);
    EXPECT_GT(lines, 500);
    const long traced = sample->kernel.streamtracePaths().tracedCount();
    const long made = geometryCount();
    sample->set("StreamAttributes/Color", blue);
    sample->set("StreamAttributes/LineThickness", 0.8);
    EXPECT_EQ(count(image(), Qt::red), 0);
    EXPECT_GT(count(image(), Qt::blue), lines);
    EXPECT_EQ(geometryCount(), made);
    EXPECT_EQ(sample->kernel.streamtracePaths().tracedCount(), traced);

    sample->set("StreamAttributes/Color", firstContourGroup);
    EXPECT_EQ(count(image(), Qt::blue), 0) << "coloured by the contour group";
    EXPECT_EQ(sample->kernel.streamtracePaths().tracedCount(), traced);
    sample->set("StreamtraceLayers/Show", 0L);
    sample->set("StreamAttributes/Color", red);
    EXPECT_EQ(count(image(), Qt::red), 0);
}

TEST_F(Streamtraces, HaveALegendOfTheContourGroupTheyAreColouredBy)
{
    show(PlotType_Cartesian2D);
    sample->set("TwoDAxis/AxisMode", long(AxisMode_Independent)); /* else the area's width follows its height */
    const auto width = [this] {
        image();
        return renderer->plot(sample->frame().id())->area.width();
    };
    sample->set("StreamAttributes/Color", firstContourGroup);
    const double whole = width();
    addRake(Streamtrace_TwoDLine);
    EXPECT_LT(width(), whole) << "the legend takes room";
    sample->set("StreamAttributes/Color", red);
    EXPECT_EQ(width(), whole);
    sample->set("StreamAttributes/Color", firstContourGroup);
    sample->set("StreamtraceLayers/Show", 0L);
    EXPECT_EQ(width(), whole);
}

TEST_F(Streamtraces, HaveArrowheadsAndAreDashedByTime)
{
    show(PlotType_Cartesian2D);
    addRake(Streamtrace_TwoDLine);
    const int lines = count(image(), Qt::red);
    sample->set("StreamAttributes/AddArrows", 1L);
    sample->set("StreamAttributes/ArrowheadSize", 3.0);
    sample->set("StreamAttributes/ArrowheadSpacing", 20.0);
    const int wide = count(image(), Qt::red);
    EXPECT_GT(wide, lines * 5 / 4);
    sample->set("StreamAttributes/ArrowheadSpacing", 10.0);
    EXPECT_GT(count(image(), Qt::red), wide) << "twice as many";
    sample->set("StreamAttributes/AddArrows", 0L);

    sample->set("StreamAttributes/StreamTiming/ShowDashes", 1L);
    sample->set("StreamAttributes/StreamTiming/TimeStart", -100.0);
    sample->set("StreamAttributes/StreamTiming/TimeEnd", 100.0);
    const int dashed = count(image(), Qt::red);
    EXPECT_NEAR(dashed, 0.5 * lines, 0.125 * lines);
    sample->set("StreamAttributes/StreamTiming/TimeEnd", 0.0);
    EXPECT_LT(count(image(), Qt::red), dashed / 2) << "nothing is drawn behind the last time";
}

TEST_F(Streamtraces, AreRodsAndRibbonsWithMeshShadeAndContours)
{
    show(PlotType_Cartesian3D);
    const std::string looks = "StreamAttributes/RodRibbon/";
    sample->set(looks + "Mesh/Show", 0L);
    sample->set(looks + "Shade/Color", green);
    sample->set(looks + "Shade/UseLightingEffect", 0L);
    for (const long type : {long{Streamtrace_VolumeRibbon}, long{Streamtrace_VolumeRod}}) {
        sample->set(looks + "Width", 0.4);
        {
            const kernel::ActionLock lock(sample->kernel.lock());
            VtxUtilStreamtraceDeleteAll();
        }
        addRake(type);
        const int shaded = count(image(), Qt::green);
        EXPECT_GT(shaded, 1000) << type;
        EXPECT_EQ(count(image(), Qt::red), 0) << "not as lines";
        sample->set(looks + "Width", 0.8);
        EXPECT_GT(count(image(), Qt::green), shaded * 5 / 4) << type;
    }
    const long made = geometryCount();
    sample->set(looks + "Shade/Color", blue);
    EXPECT_GT(count(image(), Qt::blue), 1000);
    EXPECT_EQ(geometryCount(), made);
    sample->set(looks + "Mesh/Show", 1L);
    sample->set(looks + "Mesh/Color", red);
    EXPECT_GT(count(image(), Qt::red), 200);
    sample->set(looks + "Mesh/Show", 0L);
    sample->set(looks + "Contour/Show", 1L);
    EXPECT_EQ(count(image(), Qt::blue), 0) << "flooded";
    sample->set(looks + "Contour/Show", 0L);
    sample->set(looks + "Effects/UseTranslucency", 1L);
    sample->set(looks + "Effects/SurfaceTranslucency", 90L);
    EXPECT_LT(count(image(), Qt::blue), 200) << "paler";
}

TEST_F(StreamtraceMouse, AClickPlacesOneAndADragARakeAndBothAreUndone)
{
    showArea(PlotType_Cartesian2D);
    QTest::mouseClick(area.get(), Qt::LeftButton, {}, placeOf({-5.0, 1.0, 0.0}));
    ASSERT_EQ(VtxUtilStreamtraceGetCount(), 1);
    double x = 0.0;
    double y = 0.0;
    VtxUtilStreamtraceGetPosition(1, &x, &y, nullptr);
    EXPECT_NEAR(x, -5.0, 0.05);
    EXPECT_NEAR(y, 1.0, 0.05);
    EXPECT_EQ(
        sample->kernel.style().integer(sample->frame().id(), sample->kernel.style().entry("StreamtraceLayers/Show")),
        1);
    area->repaint();
    EXPECT_GT(count(area->grab().toImage(), Qt::red), 200);

    sample->set("FrameSetup/NumStreamrakePoints", 4L);
    drag(placeOf({-5.0, -3.0, 0.0}), placeOf({-5.0, 3.0, 0.0}));
    EXPECT_EQ(VtxUtilStreamtraceGetCount(), 5);
    VtxUtilUndo();
    EXPECT_EQ(VtxUtilStreamtraceGetCount(), 1);
    VtxUtilUndo();
    VtxUtilUndo();
    EXPECT_EQ(VtxUtilStreamtraceGetCount(), 0);
    EXPECT_EQ(
        sample->kernel.style().integer(sample->frame().id(), sample->kernel.style().entry("StreamtraceLayers/Show")),
        0);

    QSignalSpy status(area.get(), &view::WorkArea::statusMessage);
    QTest::mouseClick(area.get(), Qt::LeftButton, {}, placeOf({0.0, 0.0, 0.0}));
    ASSERT_EQ(status.size(), 2);
    EXPECT_TRUE(status.at(0).at(0).toString().isEmpty()) << "what was said of the click before is gone";
    EXPECT_TRUE(status.at(1).at(0).toString().contains(QStringLiteral("outside of the data")));
    EXPECT_EQ(VtxUtilStreamtraceGetCount(), 0);
}

TEST_F(StreamtraceMouse, AClickOnASurfaceStartsThereOrBelowIt)
{
    showArea(PlotType_Cartesian3D);
    sample->set("FieldLayers/ShowShade", 1L);
    for (const long type : {long{Streamtrace_SurfaceLine}, long{Streamtrace_VolumeRod}}) {
        sample->set("FrameSetup/Default3DStreamtrace/StreamType", type);
        area->repaint();
        const long before = VtxUtilStreamtraceGetCount();
        QTest::mouseClick(area.get(), Qt::LeftButton, {}, placeOf({-4.5, -7.79, 3.0}));
        ASSERT_EQ(VtxUtilStreamtraceGetCount(), before + 1) << type << sample->kernel.lastError();
        area->repaint();
        const auto traced = sample->kernel.streamtracePaths().of(sample->frame());
        EXPECT_GT(traced->back().path->points.size(), 5U) << type;
    }
}

TEST_F(StreamtraceMouse, ARakeOfSurfaceLinesFollowsTheSurface)
{
    showArea(PlotType_Cartesian3D);
    sample->set("FieldLayers/ShowShade", 1L);
    area->repaint();
    sample->set("FrameSetup/NumStreamrakePoints", 5L);
    // The straight way from one end to the other would be deep below the round wall.
    drag(placeOf({-8.4, -3.2, 3.0}), placeOf({3.2, -8.4, 3.0}));
    ASSERT_EQ(VtxUtilStreamtraceGetCount(), 5) << sample->kernel.lastError();
    for (long i = 1; i <= 5; ++i) {
        double x = 0.0;
        double y = 0.0;
        VtxUtilStreamtraceGetPosition(i, &x, &y, nullptr);
        EXPECT_NEAR(std::hypot(x, y), 9.0, 0.05) << i;
    }
    VtxUtilUndo();
    EXPECT_EQ(VtxUtilStreamtraceGetCount(), 0) << "all are one step";
}

TEST_F(StreamtraceMouse, TheSelectorPicksThemAndDeletesThem)
{
    showArea(PlotType_Cartesian2D);
    QTest::mouseClick(area.get(), Qt::LeftButton, {}, placeOf({-5.0, 4.0, 0.0}));
    QTest::mouseClick(area.get(), Qt::LeftButton, {}, placeOf({-5.0, -4.0, 0.0}));
    ASSERT_EQ(VtxUtilStreamtraceGetCount(), 2);
    area->repaint();
    sample->kernel.mouseModes().set(MouseMode_Selector);
    QTest::mouseClick(area.get(), Qt::LeftButton, {}, placeOf({-5.0, -4.0, 0.0}));
    ASSERT_EQ(VtxUtilPickListGetType(1), PickObject_Streamtrace);
    EXPECT_EQ(VtxUtilPickListGetStreamtrace(1), 2);
    QTest::mouseClick(area.get(), Qt::LeftButton, {}, placeOf({-5.0, 0.0, 0.0}));
    EXPECT_NE(VtxUtilPickListGetType(1), PickObject_Streamtrace) << "too far away";
    QTest::mouseClick(area.get(), Qt::LeftButton, {}, placeOf({-5.0, -4.0, 0.0}));
    QTest::keyClick(area.get(), Qt::Key_Delete);
    EXPECT_EQ(VtxUtilStreamtraceGetCount(), 1);
}
