#include "view/WorkArea.h"
#include "kernel/ApplicationLock.h"
#include "kernel/DataSet.h"
#include "kernel/Document.h"
#include "kernel/Kernel.h"
#include "kernel/MouseModes.h"
#include "kernel/ProbeService.h"
#include "kernel/StateChanges.h"
#include "kernel/UndoStack.h"
#include "support/UserInput.h"
#include "view/FramePlot.h"
#include "view/PageRenderer.h"
#include "view/ShownSample.h"

#include <QSignalSpy>
#include <QTest>
#include <QWheelEvent>
#include <gtest/gtest.h>

using namespace vantrix;

namespace {

/* A work area on the screen, painted. */
struct ShownWorkArea
{
    explicit ShownWorkArea(ShownSample& sample)
        : area(sample.kernel)
    {
        area.resize(700, 560);
        area.show();
        EXPECT_TRUE(QTest::qWaitForWindowExposed(&area));
        area.repaint();
    }

    QPoint place(double across, double down)
    {
        auto* page = vantrix::kernel::Kernel::instance().document().activePage();
        const QRectF rect = area.renderer().frameRect(*page->frames.back());
        return area.toWidget(rect.topLeft() + QPointF(across * rect.width(), down * rect.height())).toPoint();
    }

    void drag(QPoint from, QPoint to)
    {
        QTest::mousePress(&area, Qt::LeftButton, {}, from);
        for (int i = 1; i <= 4; ++i) {
            test::moveMouse(area, QPointF(from + (to - from) * i / 4), Qt::LeftButton);
        }
        QTest::mouseRelease(&area, Qt::LeftButton, {}, to);
    }

    view::WorkArea area;
};

} // namespace

TEST(WorkArea, RotatesByDraggingAsOneStepOfUndo)
{
    ShownSample sample("mixed", PlotType_Cartesian3D);
    ShownWorkArea shown(sample);
    ASSERT_TRUE(sample.kernel.mouseModes().set(MouseMode_Rotate));
    const double theta = sample.real("ThreeDView/ThetaAngle");
    const double psi = sample.real("ThreeDView/PsiAngle");
    const unsigned long revision = sample.kernel.undoStack().revision();
    shown.drag(shown.place(0.5, 0.5), shown.place(0.6, 0.4));
    EXPECT_NE(sample.real("ThreeDView/ThetaAngle"), theta);
    EXPECT_NE(sample.real("ThreeDView/PsiAngle"), psi);
    EXPECT_NE(sample.kernel.undoStack().revision(), revision);
    EXPECT_FALSE(sample.kernel.lock().isOn());
    EXPECT_EQ(sample.kernel.undoStack().undoName(), "Rotate");
    ASSERT_TRUE(sample.kernel.undoStack().undo());
    EXPECT_EQ(sample.real("ThreeDView/ThetaAngle"), theta);
    EXPECT_EQ(sample.real("ThreeDView/PsiAngle"), psi);
    EXPECT_EQ(sample.real("ThreeDView/ViewerPosition/X"), 0.0);
    EXPECT_EQ(sample.kernel.lock().violationCount(), 0);
}

TEST(WorkArea, ZoomsAFlatPlotByARubberBandAndFitsItAgain)
{
    ShownSample sample("fe2d", PlotType_Cartesian2D);
    sample.set("TwoDAxis/AxisMode", long{AxisMode_Independent});
    ShownWorkArea shown(sample);
    ASSERT_TRUE(sample.kernel.mouseModes().set(MouseMode_Zoom));
    const view::FramePlot* plot = shown.area.renderer().plot(sample.frame().id());
    ASSERT_TRUE(plot && plot->x);
    const double minimum = sample.real("TwoDAxis/XDetail/RangeMin");
    const double maximum = sample.real("TwoDAxis/XDetail/RangeMax");
    const QPointF corner = shown.area.renderer().frameRect(sample.frame()).topLeft();
    const QRectF area = plot->area.translated(corner);
    const auto at = [&](double x, double y) {
        return shown.area.toWidget(area.topLeft() + QPointF(x * area.width(), y * area.height())).toPoint();
    };
    shown.drag(at(0.25, 0.25), at(0.75, 0.75));
    const double tolerance = 0.01 * (maximum - minimum);
    EXPECT_NEAR(sample.real("TwoDAxis/XDetail/RangeMin"), minimum + 0.25 * (maximum - minimum), tolerance);
    EXPECT_NEAR(sample.real("TwoDAxis/XDetail/RangeMax"), minimum + 0.75 * (maximum - minimum), tolerance);
    shown.area.fitPlot();
    EXPECT_NEAR(sample.real("TwoDAxis/XDetail/RangeMin"), -4.0, 1e-6) << "where the plate begins";
    EXPECT_NEAR(sample.real("TwoDAxis/XDetail/RangeMax"), 9.0, 1e-6) << "where it ends";
}

TEST(WorkArea, TellsOfAnotherSpacingOfTicksOnceItIsDrawn)
{
    ShownSample sample("lines", PlotType_XYLine);
    ShownWorkArea shown(sample);
    QCoreApplication::processEvents();
    const auto drawn = [&] { return shown.area.renderer().plot(sample.frame().id())->hits.tickSpacing('X', 1); };
    const double before = drawn();
    EXPECT_GT(before, 0.0);
    EXPECT_EQ(shown.area.renderer().plot(sample.frame().id())->hits.tickSpacing('X', 2), 0.0) << "not shown";
    int told = 0;
    const auto count = [](VtxStateChangeHandle change, void* counter) {
        *static_cast<int*>(counter) += change->kind == StateChange_View;
    };
    sample.kernel.stateChanges().addListener(count, &told);
    sample.set("XYLineAxis/XDetail/RangeMax", 1000.0, 1);
    const int byRange = told;
    shown.area.repaint();
    QCoreApplication::processEvents();
    EXPECT_GT(drawn(), before);
    EXPECT_EQ(told, byRange + 1);
    shown.area.repaint();
    QCoreApplication::processEvents();
    EXPECT_EQ(told, byRange + 1) << "nothing new was drawn";
    sample.kernel.stateChanges().removeListener(count, &told);
}

TEST(WorkArea, ZoomsAndFitsTheRadiusOfAPolarPlot)
{
    ShownSample sample("polar", PlotType_PolarLine);
    ShownWorkArea shown(sample);
    shown.area.fitPlot();
    shown.area.repaint();
    const double from = sample.real("PolarAxis/RDetail/RangeMin");
    const double fitted = sample.real("PolarAxis/RDetail/RangeMax");
    const double paper = shown.area.zoom();
    ASSERT_TRUE(sample.kernel.mouseModes().set(MouseMode_Zoom));
    shown.drag(shown.place(0.5, 0.5), shown.place(0.5, 0.4));
    const double dragged = sample.real("PolarAxis/RDetail/RangeMax");
    EXPECT_LT(dragged, fitted) << "upwards enlarges";
    EXPECT_EQ(sample.real("PolarAxis/RDetail/RangeMin"), from);
    EXPECT_EQ(sample.kernel.undoStack().undoName(), "Zoom");

    const QPointF place = shown.place(0.5, 0.5);
    QWheelEvent wheel(place, shown.area.mapToGlobal(place), {}, {0, -120}, Qt::NoButton, {}, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(&shown.area, &wheel);
    EXPECT_NEAR(sample.real("PolarAxis/RDetail/RangeMax") - from, 1.2 * (dragged - from), 1e-9);
    EXPECT_EQ(shown.area.zoom(), paper) << "the paper stays";

    shown.area.fitPlot();
    EXPECT_EQ(sample.real("PolarAxis/RDetail/RangeMax"), fitted);
    EXPECT_EQ(sample.kernel.lock().violationCount(), 0);
}

TEST(WorkArea, TellsWhereThePointerIs)
{
    ShownSample sample("fe2d", PlotType_Cartesian2D);
    ShownWorkArea shown(sample);
    QSignalSpy spy(&shown.area, &view::WorkArea::coordinatesChanged);
    test::moveMouse(shown.area, shown.place(0.45, 0.5));
    ASSERT_FALSE(spy.isEmpty());
    EXPECT_TRUE(spy.last().at(0).toString().startsWith(QStringLiteral("X = ")))
        << spy.last().at(0).toString().toStdString();
    test::moveMouse(shown.area, QPointF(3, 3));
    const QPointF onPaper = shown.area.toPaper(QPointF(3, 3));
    const auto text = [&](double unitsPerInch, const char* unit) {
        return QStringLiteral("Paper: %1, %2 %3")
            .arg(QString::number(onPaper.x() * unitsPerInch, 'f', 2),
                 QString::number(onPaper.y() * unitsPerInch, 'f', 2), QString::fromLatin1(unit));
    };
    EXPECT_EQ(spy.last().at(0).toString(), text(1.0, "in"));
    kernel::StyleStore& style = sample.kernel.style();
    sample.kernel.lock().start(true);
    style.set(style.entry("Paper/RulerSpacing"), -1, -1, long{PaperUnitSpacing_OneCentimeter});
    sample.kernel.lock().finish();
    test::moveMouse(shown.area, QPointF(4, 4));
    test::moveMouse(shown.area, QPointF(3, 3));
    EXPECT_EQ(spy.last().at(0).toString(), text(2.54, "cm")) << "as the rulers count";
}

TEST(WorkArea, MakesTheFrameThatIsClickedActiveAndTellsThePlaceOfATextInIt)
{
    ShownSample sample("fe2d", PlotType_Cartesian2D);
    const long first = sample.frame().id();
    ShownWorkArea shown(sample);
    QSignalSpy spy(&shown.area, &view::WorkArea::textPlaceClicked);
    ASSERT_TRUE(sample.kernel.mouseModes().set(MouseMode_Text));
    QTest::mouseClick(&shown.area, Qt::LeftButton, Qt::AltModifier, shown.place(0.45, 0.3));
    ASSERT_EQ(spy.size(), 1);
    EXPECT_NEAR(spy.at(0).at(0).toDouble(), 45.0, 0.2);
    EXPECT_NEAR(spy.at(0).at(1).toDouble(), 70.0, 0.2) << "upwards";
    QTest::mouseClick(&shown.area, Qt::LeftButton, {}, QPoint(2, 2));
    EXPECT_EQ(spy.size(), 1) << "beside the frames";

    sample.kernel.lock().start(true);
    const vantrix::kernel::Frame* second = sample.kernel.document().addFrame();
    sample.kernel.lock().finish();
    sample.set("FrameLayout/Width", 2.0);
    ASSERT_TRUE(second);
    sample.kernel.mouseModes().set(MouseMode_Selector);
    shown.area.repaint();
    const QRectF rect = shown.area.renderer().frameRect(*sample.kernel.document().frameById(first));
    QTest::mouseClick(&shown.area, Qt::LeftButton, {},
                      shown.area.toWidget(rect.bottomRight() - QPointF(0.5, 0.5)).toPoint());
    EXPECT_EQ(sample.kernel.document().activeFrame()->id(), first);
}

TEST(WorkArea, ProbesWhereItIsClickedAndMarksThePlace)
{
    ShownSample sample("fe2d", PlotType_Cartesian2D);
    ShownWorkArea shown(sample);
    ASSERT_TRUE(sample.kernel.mouseModes().set(MouseMode_Probe));
    const view::FramePlot& plot = *shown.area.renderer().plot(sample.frame().id());
    const QPoint click = shown.place(0.45, 0.3);
    const QPointF frameCorner = shown.area.renderer().frameRect(sample.frame()).topLeft();
    const auto data = plot.dataAt(shown.area.toPaper(click) - frameCorner);
    ASSERT_TRUE(data);
    const QImage before = shown.area.grab().toImage();
    QTest::mouseClick(&shown.area, Qt::LeftButton, {}, click);
    const kernel::FieldProbeResult* result = sample.kernel.probes().fieldResult();
    ASSERT_TRUE(result);
    EXPECT_EQ(result->position[0], data->x());
    EXPECT_EQ(result->position[1], data->y());
    EXPECT_EQ(result->point, 0);
    const QPointF marked = frameCorner + *plot.placeOf(result->position);
    EXPECT_LT((shown.area.toWidget(marked) - click).manhattanLength(), 0.01);
    EXPECT_NE(shown.area.grab(QRect(click - QPoint(5, 5), QSize(11, 11))).toImage(),
              before.copy(QRect(click - QPoint(5, 5), QSize(11, 11))));

    QTest::mouseClick(&shown.area, Qt::LeftButton, Qt::ControlModifier, click);
    ASSERT_TRUE(sample.kernel.probes().fieldResult());
    EXPECT_NE(sample.kernel.probes().fieldResult()->point, 0);
    QTest::mouseClick(&shown.area, Qt::LeftButton, {}, shown.place(0.02, 0.5));
    EXPECT_NE(sample.kernel.probes().fieldResult()->point, 0) << "beside the plot nothing is probed";
}

TEST(WorkArea, ProbesTheSurfaceThatIsSeenInThreeD)
{
    ShownSample sample("mixed", PlotType_Cartesian3D);
    ShownWorkArea shown(sample);
    ASSERT_TRUE(sample.kernel.mouseModes().set(MouseMode_Probe));
    const QPoint click = shown.place(0.5, 0.5);
    QTest::mouseClick(&shown.area, Qt::LeftButton, {}, click);
    const kernel::FieldProbeResult* result = sample.kernel.probes().fieldResult();
    ASSERT_TRUE(result);
    const view::FramePlot& plot = *shown.area.renderer().plot(sample.frame().id());
    const QPointF marked = shown.area.renderer().frameRect(sample.frame()).topLeft() + *plot.placeOf(result->position);
    EXPECT_LT((shown.area.toWidget(marked) - click).manhattanLength(), 3.0);
}

TEST(WorkArea, ProbesLinesAlongXOrTakesTheNearestPoint)
{
    ShownSample sample("lines", PlotType_XYLine);
    ShownWorkArea shown(sample);
    ASSERT_TRUE(sample.kernel.mouseModes().set(MouseMode_Probe));
    QTest::mouseClick(&shown.area, Qt::LeftButton, {}, shown.place(0.4, 0.5));
    ASSERT_TRUE(sample.kernel.probes().lineResult());
    EXPECT_GT(sample.kernel.probes().lineResult()->values.size(), 1U);
    QTest::mouseClick(&shown.area, Qt::LeftButton, Qt::ControlModifier, shown.place(0.4, 0.5));
    ASSERT_TRUE(sample.kernel.probes().lineResult());
    EXPECT_GT(sample.kernel.probes().lineResult()->point, 0);
}

TEST(WorkArea, ALineOverASecondAxisIsProbedAndMarkedWhereItIsDrawn)
{
    ShownSample sample("lines", PlotType_XYLine);
    sample.set("LineMap/Assignment/YAxis", 2L, 2);
    sample.set("XYLineAxis/YDetail/RangeMin", -100.0, 2);
    sample.set("XYLineAxis/YDetail/RangeMax", 40.0, 2);
    ShownWorkArea shown(sample);
    ASSERT_TRUE(sample.kernel.mouseModes().set(MouseMode_Probe));
    const kernel::DataSet& data = *sample.frame().dataSet();
    const view::FramePlot& plot = *shown.area.renderer().plot(sample.frame().id());
    const view::LineMapStyle& map = plot.style.lineMaps[1];
    ASSERT_EQ(map.yAxis, 2);
    const QPointF values(data.field(map.zone, map.xVariable)->values->GetComponent(6, 0),
                         data.field(map.zone, map.yVariable)->values->GetComponent(6, 0));
    const QPointF frameCorner = shown.area.renderer().frameRect(sample.frame()).topLeft();
    const QPointF drawn = frameCorner + *plot.placeOf(values, 1, 2);
    EXPECT_GT((drawn - frameCorner - *plot.placeOf(values, 1, 1)).manhattanLength(), 0.5);
    const QPoint click = shown.area.toWidget(drawn).toPoint();
    const QRect around(click - QPoint(5, 5), QSize(11, 11));
    const QImage before = shown.area.grab(around).toImage();
    QTest::mouseClick(&shown.area, Qt::LeftButton, Qt::ControlModifier, click);
    ASSERT_TRUE(sample.kernel.probes().lineResult());
    EXPECT_EQ(sample.kernel.probes().lineResult()->pickedMap, 2);
    EXPECT_NEAR(static_cast<double>(sample.kernel.probes().lineResult()->point), 7.0, 1.0) << "a click is a pixel wide";
    EXPECT_NE(shown.area.grab(around).toImage(), before) << "marked there";
}
