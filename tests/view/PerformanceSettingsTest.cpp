#include "api/VtxUtilData.h"
#include "kernel/ApplicationLock.h"
#include "kernel/Document.h"
#include "kernel/FrameObjects.h"
#include "kernel/Kernel.h"
#include "view/FramePlot.h"
#include "view/PageRenderer.h"
#include "view/ShownSample.h"
#include "view/WorkArea.h"

#include <QPainter>
#include <QTest>
#include <gtest/gtest.h>

using namespace vantrix;

namespace {

/* A sample, and a renderer that paints it as on a screen. */
class PerformanceSettings : public testing::Test
{
protected:
    explicit PerformanceSettings(const char* name = "flow3d", PlotType_e type = PlotType_Cartesian3D)
        : sample(name, type)
        , renderer(sample.kernel)
    {}

    void set(const char* path, const kernel::StyleData& value)
    {
        sample.kernel.lock().start(true);
        kernel::StyleStore& style = sample.kernel.style();
        EXPECT_EQ(style.set(style.entry(path), -1, -1, value), SetValueReturnCode_Ok) << style.lastError();
        sample.kernel.lock().finish();
    }

    const kernel::Page& page() const { return *sample.kernel.document().activePage(); }
    long id() const { return sample.frame().id(); }

    QImage screen()
    {
        QImage image(660, 510, QImage::Format_ARGB32_Premultiplied);
        image.fill(Qt::white);
        QPainter painter(&image);
        renderer.paintFrames(painter, page(), 60.0);
        return image;
    }

    ShownSample sample;
    view::PageRenderer renderer;
};

class PerformanceSettingsFlat : public PerformanceSettings
{
protected:
    PerformanceSettingsFlat()
        : PerformanceSettings("fe2d", PlotType_Cartesian2D)
    {}
};

int differences(const QImage& one, const QImage& other)
{
    int count = 0;
    for (int y = 0; y < one.height(); ++y) {
        for (int x = 0; x < one.width(); ++x) {
            count += one.pixel(x, y) != other.pixel(x, y);
        }
    }
    return count;
}

int saturated(const QImage& image)
{
    int count = 0;
    for (int y = 0; y < image.height(); ++y) {
        for (int x = 0; x < image.width(); ++x) {
            count += image.pixelColor(x, y).saturation() > 100;
        }
    }
    return count;
}

} // namespace

TEST_F(PerformanceSettings, AllFramesAlwaysApproximatedKeepThePartOfThePointsThatIsAskedFor)
{
    const QImage full = screen();
    const auto points = static_cast<double>(renderer.surfacePointCount(id()));
    ASSERT_GT(points, 1000.0);
    set("Interface/PlotApproximationMode", long{PlotApproximationMode_AllAlwaysApproximated});
    for (const double percent : {50.0, 10.0}) {
        set("Interface/PercentageOfPointsToKeep", percent);
        const QImage approximate = screen();
        EXPECT_NE(approximate, full);
        EXPECT_TRUE(renderer.isApproximate(id()));
        EXPECT_NEAR(saturated(approximate), saturated(full), 0.2 * saturated(full))
            << "contours are not what they were";
        const double kept = static_cast<double>(renderer.surfacePointCount(id())) / points;
        EXPECT_NEAR(kept, percent / 100.0, 0.3 * percent / 100.0);
    }
    renderer.frameImage(sample.frame(), 400);
    EXPECT_FALSE(renderer.isApproximate(id())) << "an exported picture is full";
    EXPECT_EQ(static_cast<double>(renderer.surfacePointCount(id())), points);
    set("Interface/UseApproximatePlots", 0L);
    EXPECT_EQ(screen(), full);
}

TEST_F(PerformanceSettings, TextsAndGeometriesOfAnApproximatePlotAreDrawnAsIsAskedFor)
{
    kernel::Text words;
    words.text = "Approximately";
    words.x = 5.0;
    words.y = 90.0;
    kernel::Geometry shape;
    shape.type = GeomType_Square;
    shape.x = 5.0;
    shape.y = 5.0;
    sample.kernel.lock().start(true);
    sample.kernel.texts().add(sample.frame(), words);
    sample.kernel.geometries().add(sample.frame(), shape);
    sample.kernel.lock().finish();
    const QImage full = screen();
    set("Interface/PlotApproximationMode", long{PlotApproximationMode_AllAlwaysApproximated});
    const QImage with = screen();
    set("Interface/ShowTextGeomsInApproxViews", 0L);
    const QImage without = screen();
    EXPECT_TRUE(renderer.isApproximate(id()));
    const QRectF frame = renderer.frameRect(sample.frame());
    const QRect text = QRectF(60.0 * frame.left(), 60.0 * frame.top() + 2, 200, 60).toRect();
    const QRect square = QRectF(60.0 * frame.left(), 60.0 * frame.bottom() - 100, 150, 90).toRect();
    for (const QRect& place : {text, square}) {
        EXPECT_EQ(differences(full.copy(place), with.copy(place)), 0);
        EXPECT_GT(differences(with.copy(place), without.copy(place)), 20);
    }
    set("Interface/UseApproximatePlots", 0L);
    EXPECT_EQ(screen(), full) << "a full plot always has them";
}

TEST_F(PerformanceSettings, ExtraSortingShowsInExportedPicturesWhatLiesBehindManyTranslucentSurfaces)
{
    sample.set("FieldMap/Surfaces/SurfacesToPlot", long{SurfacesToPlot_IPlanes}, 1);
    sample.set("FieldMap/Surfaces/IRange/Skip", 2L, 1);
    sample.set("FieldMap/Effects/UseTranslucency", 1L, 1);
    sample.set("FieldMap/Effects/SurfaceTranslucency", 95L, 1);
    const QImage onScreen = screen();
    const QImage nearest = renderer.pageImage(page(), 330);
    set("Print/ForceExtra3DSorting", 1L);
    EXPECT_GT(differences(renderer.pageImage(page(), 330), nearest), 150);
    EXPECT_EQ(screen(), onScreen) << "the screen stays quick";
    set("Print/ForceExtra3DSorting", 0L);
    EXPECT_EQ(renderer.pageImage(page(), 330), nearest);
}

TEST_F(PerformanceSettings, OnlyAPlotThatMovesAndTakesLongIsApproximatedOnItsOwn)
{
    set("Interface/MaxRenderTimeBeforeApprox", 0.0);
    screen();
    renderer.setMoving(true);
    screen();
    EXPECT_TRUE(renderer.isApproximate(id()));
    renderer.setMoving(false);
    screen();
    EXPECT_FALSE(renderer.isApproximate(id())) << "at rest it is full";
    set("Interface/MaxRenderTimeBeforeApprox", 3600.0);
    renderer.setMoving(true);
    screen();
    EXPECT_FALSE(renderer.isApproximate(id())) << "it is quick enough";

    set("Interface/PlotApproximationMode", long{PlotApproximationMode_NonActiveAlwaysApproximated});
    renderer.setMoving(false);
    screen();
    EXPECT_FALSE(renderer.isApproximate(id()));
    const long first = id();
    sample.kernel.lock().start(true);
    sample.kernel.document().addFrame();
    sample.kernel.lock().finish();
    screen();
    EXPECT_TRUE(renderer.isApproximate(first)) << "another frame is active";
}

TEST_F(PerformanceSettings, GraphicsObjectsAreKeptAsTheCacheIsSet)
{
    screen();
    const long zones = renderer.keptZoneCount();
    EXPECT_GT(zones, 0);
    const view::FramePlot* plot = renderer.plot(id());
    const auto point = renderer.pick(id(), plot->area.center());
    ASSERT_TRUE(point);
    const kernel::PickedObject object = renderer.objectAt(id(), plot->area.center(), 0.01);
    EXPECT_EQ(object.type, PickObject_Zone);
    set("Interface/UseDisplayLists", 0L);
    sample.set("FrameLayout/BorderThickness", 0.2);
    const QImage uncached = screen();
    EXPECT_EQ(renderer.keptZoneCount(), 0);
    const auto again = renderer.pick(id(), plot->area.center());
    ASSERT_TRUE(again) << "picking needs what was not kept";
    EXPECT_EQ(*again, *point);
    EXPECT_EQ(renderer.objectAt(id(), plot->area.center(), 0.01), object);
    EXPECT_EQ(renderer.keptZoneCount(), 0);
    set("Interface/UseDisplayLists", 1L);
    sample.set("FrameLayout/BorderThickness", 0.1);
    screen();
    sample.set("FrameLayout/BorderThickness", 0.2);
    EXPECT_EQ(screen(), uncached);
    EXPECT_EQ(renderer.keptZoneCount(), zones);
}

TEST_F(PerformanceSettingsFlat, LightObjectsAreKeptWhereOnlyTheyAre)
{
    screen();
    const long light = renderer.keptZoneCount();
    EXPECT_GT(light, 0);
    sample.kernel.lock().start(true);
    ASSERT_TRUE(VtxUtilCreateRectangularZone(200, 100, 1, 0, 0, 0, 1, 1, 0, FieldDataType_Float));
    sample.kernel.lock().finish();
    screen();
    EXPECT_EQ(renderer.keptZoneCount(), light + 1);
    set("Interface/CacheLightDisplayListsOnly", 1L);
    screen();
    EXPECT_EQ(renderer.keptZoneCount(), light) << "the new zone takes much memory";
}

TEST_F(PerformanceSettings, AFastExportTakesThePictureOfTheScreen)
{
    set("Interface/UseOffScreenBitMap", 0L);
    renderer.pageImage(page(), 900);
    const long before = renderer.renderCount();
    EXPECT_EQ(before, 1) << "there was nothing on the screen yet";
    screen();
    const long count = renderer.renderCount();
    const QImage fast = renderer.pageImage(page(), 1100);
    EXPECT_EQ(renderer.renderCount(), count);
    set("Interface/UseOffScreenBitMap", 1L);
    const QImage safe = renderer.pageImage(page(), 1100);
    EXPECT_EQ(renderer.renderCount(), count + 1);
    EXPECT_NE(fast, safe) << "the one is finer";
    set("Interface/UseOffScreenBitMap", 0L);
    set("Interface/PlotApproximationMode", long{PlotApproximationMode_AllAlwaysApproximated});
    screen();
    EXPECT_EQ(renderer.pageImage(page(), 1100), safe) << "an approximate plot is no picture to export";
    set("Interface/PlotApproximationMode", long{PlotApproximationMode_Automatic});
    screen();
    sample.set("GlobalContour/ColorMap/Name", std::string("Heat"), 1);
    EXPECT_GT(differences(renderer.pageImage(page(), 1100), fast), 1000) << "what the screen shows is out of date";
}

TEST_F(PerformanceSettingsFlat, PlainTextsHaveNoSmoothEdges)
{
    /* The numbers of the X axis: what is neither as dark as letters nor paper is an edge. */
    const auto edges = [this](const QImage& image) {
        const view::FramePlot* plot = renderer.plot(id());
        const QRectF frame = renderer.frameRect(sample.frame());
        const double top = frame.top() + plot->area.bottom() + 0.12;
        int count = 0;
        for (int y = qRound(60.0 * top); y < qRound(60.0 * (top + 0.2)); ++y) {
            for (int x = qRound(60.0 * frame.left()); x < qRound(60.0 * frame.right()); ++x) {
                const int value = image.pixelColor(x, y).value();
                count += value > 20 && value < 235;
            }
        }
        return count;
    };
    const int smooth = edges(screen());
    set("Interface/UseStrokeFontsForSmallText", 1L);
    EXPECT_LT(edges(screen()), smooth / 2) << "numbers are small";
    set("Interface/UseStrokeFontsForSmallText", 0L);
    set("Interface/UseStrokeFontsOnScreen", 1L);
    EXPECT_LT(edges(screen()), smooth / 2);
    EXPECT_GT(edges(renderer.pageImage(page(), 660)), smooth / 2) << "exported texts are smooth";
}

TEST_F(PerformanceSettingsFlat, TheHeaderHasItsFont)
{
    sample.set("FrameLayout/ShowHeader", 1L);
    sample.set("FrameName", std::string("A plate"));
    const QImage bold = screen();
    sample.set("FrameLayout/HeaderFont", long{Font_TimesItalic});
    const QImage italic = screen();
    EXPECT_GT(differences(bold, italic), 20);
    EXPECT_EQ(differences(bold.copy(0, 60, 660, 450), italic.copy(0, 60, 660, 450)), 0) << "the header alone changes";
}

TEST_F(PerformanceSettingsFlat, WithoutAutoRedrawThePlotWaitsForARequest)
{
    view::WorkArea area(sample.kernel);
    area.resize(700, 560);
    area.show();
    ASSERT_TRUE(QTest::qWaitForWindowExposed(&area));
    set("Interface/AutoRedrawIsActive", 0L);
    const QImage before = area.grab().toImage();
    sample.set("FieldLayers/ShowContour", 0L);
    EXPECT_EQ(area.grab().toImage(), before);
    area.redraw();
    const QImage after = area.grab().toImage();
    EXPECT_NE(after, before);
    sample.set("FieldLayers/ShowContour", 1L);
    EXPECT_EQ(area.grab().toImage(), after);
    area.fitPlot();
    const QImage fitted = area.grab().toImage();
    EXPECT_NE(fitted, after) << "a change of view draws";
    sample.set("FieldLayers/ShowContour", 0L);
    EXPECT_EQ(area.grab().toImage(), fitted);
    set("Interface/AutoRedrawIsActive", 1L);
    EXPECT_NE(area.grab().toImage(), fitted);
}
