#include "api/VtxUtil.h"
#include "kernel/ApplicationLock.h"
#include "kernel/Document.h"
#include "kernel/FrameObjects.h"
#include "kernel/Kernel.h"
#include "kernel/MouseModes.h"
#include "kernel/PickList.h"
#include "kernel/UndoStack.h"
#include "kernel/interface/ArgumentList.h"
#include "support/UserInput.h"
#include "view/FramePlot.h"
#include "view/PageRenderer.h"
#include "view/ShownSample.h"
#include "view/WorkArea.h"

#include <QSignalSpy>
#include <QTest>
#include <gtest/gtest.h>

#include <cmath>

using namespace vantrix;

namespace {

/* A work area on the screen in selector mode, and a hand on the mouse. Places are in inches of the paper. */
class SelectorTest : public testing::Test
{
protected:
    void show(const char* name, PlotType_e type)
    {
        m_sample = std::make_unique<ShownSample>(name, type);
        m_area = std::make_unique<view::WorkArea>(m_sample->kernel);
        m_area->resize(900, 720);
        m_area->show();
        ASSERT_TRUE(QTest::qWaitForWindowExposed(m_area.get()));
        m_area->repaint();
    }

    void TearDown() override
    {
        EXPECT_EQ(m_sample->kernel.lock().violationCount(), 0);
        EXPECT_FALSE(m_sample->kernel.lock().isOn());
    }

    const view::FramePlot& plot() const { return *m_area->renderer().plot(m_sample->frame().id()); }
    QPointF corner() const { return m_area->renderer().frameRect(m_sample->frame()).topLeft(); }
    QPoint widgetPlace(QPointF paper) const { return m_area->toWidget(paper).toPoint(); }

    /* A place in the plot area, 0 to 1 across and down. */
    QPointF inPlot(double across, double down) const
    {
        const QRectF area = plot().area;
        return corner() + area.topLeft() + QPointF(across * area.width(), down * area.height());
    }

    void click(QPointF paper, Qt::KeyboardModifiers keys = {})
    {
        QTest::mouseClick(m_area.get(), Qt::LeftButton, keys, widgetPlace(paper));
        m_area->repaint();
    }

    void drag(QPointF from, QPointF to, Qt::KeyboardModifiers keys = {})
    {
        QTest::mousePress(m_area.get(), Qt::LeftButton, keys, widgetPlace(from));
        for (int i = 1; i <= 4; ++i) {
            test::moveMouse(*m_area, m_area->toWidget(from + (to - from) * i / 4.0), Qt::LeftButton, keys);
        }
        QTest::mouseRelease(m_area.get(), Qt::LeftButton, keys, widgetPlace(to));
        m_area->repaint();
    }

    long createText(const char* text)
    {
        long handle = 0;
        VtxArgList list{
            {{"Text", std::string(text)}, {"XPos", 30.0}, {"YPos", 30.0}, {"Height", 8.0}, {"Result", &handle}}};
        const kernel::ActionLock lock(kernel().lock());
        EXPECT_TRUE(VtxUtilTextSetX(&list)) << kernel().lastError();
        return handle;
    }

    QRectF activeRect() const { return m_area->renderer().frameRect(m_sample->frame()); }
    kernel::Kernel& kernel() const { return m_sample->kernel; }

    std::unique_ptr<ShownSample> m_sample;
    std::unique_ptr<view::WorkArea> m_area;
};

} // namespace

TEST_F(SelectorTest, PicksWhatIsClickedInAFlatPlot)
{
    show("fe2d", PlotType_Cartesian2D);
    const double below = 0.02; /* inches under the axis line */
    click(inPlot(0.5, 1.0) + QPointF(0.0, below));
    ASSERT_EQ(VtxUtilPickListGetType(1), PickObject_Axis);
    EXPECT_EQ(VtxUtilPickListGetAxisKind(1), 'X');
    EXPECT_EQ(VtxUtilPickListGetAxisSubObject(1), AxisSubObject_AxisLine);

    click(inPlot(0.0, 0.6), Qt::ControlModifier);
    ASSERT_EQ(VtxUtilPickListGetCount(), 2);
    EXPECT_EQ(VtxUtilPickListGetAxisKind(2), 'Y');

    click(inPlot(0.8, 0.5));
    EXPECT_EQ(VtxUtilPickListGetCount(), 1);
    EXPECT_EQ(VtxUtilPickListGetType(1), PickObject_Zone);
    EXPECT_GE(VtxUtilPickListGetZoneNumber(1), 1);

    click(corner() + QPointF(0.03, 0.03));
    EXPECT_EQ(VtxUtilPickListGetType(1), PickObject_Frame);
    EXPECT_EQ(VtxUtilPickListGetFrame(1), m_sample->frame().id());

    click(QPointF(-0.4, 1.0));
    EXPECT_EQ(VtxUtilPickListGetCount(), 0) << "beside the paper";

    // A title lies below the numbers of its axis, in the middle.
    bool hasTitle = false;
    for (double y = 0.0; y < 1.0 && !hasTitle; y += 0.02) {
        click(inPlot(0.5, 1.0) + QPointF(0.0, y));
        hasTitle =
            VtxUtilPickListGetType(1) == PickObject_Axis && VtxUtilPickListGetAxisSubObject(1) == AxisSubObject_Title;
    }
    EXPECT_TRUE(hasTitle);
    EXPECT_EQ(VtxUtilUndoGetStepName() != nullptr && kernel().undoStack().undoName() == "Move Frame", false)
        << "a click moves nothing";
}

TEST_F(SelectorTest, PicksZonesAndAxesOfASpatialPlot)
{
    show("flow3d", PlotType_Cartesian3D);
    click(inPlot(0.5, 0.5));
    EXPECT_EQ(VtxUtilPickListGetType(1), PickObject_Zone);
    EXPECT_EQ(VtxUtilPickListGetZoneNumber(1), 1);
    const QPolygonF handles = m_area->renderer().handles(kernel().pickList().objects().front());
    ASSERT_EQ(handles.size(), 8) << "the corners of the box around the zone";
    EXPECT_TRUE(handles.boundingRect().contains(inPlot(0.5, 0.5) - corner()));
    bool hasAxis = false;
    for (double x = 0.02; x < 1.0; x += 0.05) {
        for (double y = 0.02; y < 1.0; y += 0.02) {
            const auto object = m_area->renderer().objectAt(m_sample->frame().id(), inPlot(x, y) - corner(), 0.05);
            hasAxis = hasAxis || (object.type == PickObject_Axis && object.part == AxisSubObject_AxisLine);
        }
    }
    EXPECT_TRUE(hasAxis);
}

TEST_F(SelectorTest, PicksLineMapsAndTheirLegend)
{
    show("lines", PlotType_XYLine);
    for (const bool hasLines : {true, false}) { // else symbols
        m_sample->set("LinePlotLayers/ShowLines", long{hasLines});
        m_sample->set("LinePlotLayers/ShowSymbols", long{!hasLines});
        m_area->repaint();
        std::set<int> types;
        std::set<long> maps;
        for (double x = 0.05; x < 1.2; x += 0.05) {
            for (double y = 0.02; y < 1.0; y += 0.01) {
                const auto object = m_area->renderer().objectAt(m_sample->frame().id(), inPlot(x, y) - corner(), 0.02);
                types.insert(object.type);
                if (object.type == PickObject_LineMap) {
                    maps.insert(object.number);
                }
            }
        }
        EXPECT_TRUE(types.contains(PickObject_LineLegend));
        EXPECT_TRUE(types.contains(PickObject_Axis));
        EXPECT_GE(maps.size(), 2U);
    }
}

TEST_F(SelectorTest, MovesAFrameByTheGridAsOneStep)
{
    show("fe2d", PlotType_Cartesian2D);
    const QRectF before = activeRect();
    const QPointF grip = before.topLeft() + QPointF(0.2, 0.2); // beside the handle of the corner
    drag(grip, grip + QPointF(0.63, 0.41));
    const QRectF after = activeRect();
    EXPECT_EQ(after.size(), before.size());
    EXPECT_NEAR(after.left(), 1.5, 1e-9) << "the grid has half an inch";
    EXPECT_NEAR(after.top(), 0.5, 1e-9);
    EXPECT_EQ(kernel().undoStack().undoName(), "Move Frame");
    ASSERT_TRUE(VtxUtilUndo());
    EXPECT_EQ(activeRect(), before);

    drag(grip, grip + QPointF(0.63, 0.41), Qt::AltModifier);
    EXPECT_NEAR(activeRect().left(), before.left() + 0.63, 0.03) << "freely with Alt";
}

TEST_F(SelectorTest, ResizesAFrameByItsHandles)
{
    show("fe2d", PlotType_Cartesian2D);
    const QRectF before = activeRect();
    click(before.topLeft() + QPointF(0.05, 0.05));
    drag(before.bottomRight(), before.bottomRight() - QPointF(4.1, 3.1));
    const QRectF after = activeRect();
    EXPECT_EQ(after.topLeft(), before.topLeft());
    EXPECT_NEAR(after.right(), 6.0, 1e-9);
    EXPECT_NEAR(after.bottom(), 5.0, 1e-9);
    EXPECT_EQ(kernel().undoStack().undoName(), "Resize Frame");
    drag(after.bottomRight(), after.topLeft() - QPointF(1.0, 1.0), Qt::AltModifier);
    EXPECT_NEAR(activeRect().width(), 0.25, 1e-9) << "not smaller";
    EXPECT_EQ(activeRect().topLeft(), before.topLeft());
}

TEST_F(SelectorTest, CreatesAndDeletesAFrame)
{
    show("fe2d", PlotType_Cartesian2D);
    const long first = m_sample->frame().id();
    ASSERT_TRUE(kernel().mouseModes().set(MouseMode_CreateFrame));
    drag(QPointF(2.04, 1.96), QPointF(5.1, 4.4));
    ASSERT_EQ(VtxUtilFrameGetCount(), 2);
    EXPECT_EQ(m_area->renderer().frameRect(*kernel().document().activeFrame()), QRectF(2.0, 2.0, 3.0, 2.5));
    EXPECT_EQ(VtxUtilMouseGetCurrentMode(), MouseMode_Selector);
    EXPECT_EQ(VtxUtilPickListGetFrame(1), VtxUtilFrameGetUniqueID());
    const long renders = m_area->renderer().renderCount();
    QTest::keyClick(m_area.get(), Qt::Key_Delete);
    EXPECT_EQ(VtxUtilFrameGetCount(), 1);
    EXPECT_EQ(VtxUtilFrameGetUniqueID(), first);
    m_area->repaint();
    EXPECT_EQ(m_area->renderer().renderCount(), renders) << "the other frame did not change";
}

TEST_F(SelectorTest, ADoubleClickAsksForTheDialog)
{
    show("fe2d", PlotType_Cartesian2D);
    QSignalSpy spy(m_area.get(), &view::WorkArea::objectActivated);
    const QPoint place = widgetPlace(inPlot(0.5, 1.0));
    QTest::mouseClick(m_area.get(), Qt::LeftButton, {}, place);
    QTest::mouseDClick(m_area.get(), Qt::LeftButton, {}, place);
    ASSERT_EQ(spy.size(), 1);
    EXPECT_EQ(spy.at(0).at(0).value<PickObject_e>(), PickObject_Axis);
}

TEST_F(SelectorTest, MovesTextsAndGeometriesAsOneStep)
{
    show("fe2d", PlotType_Cartesian2D);
    const long text = createText("MMMM");
    m_area->repaint();
    const QRectF frame = activeRect();
    const QPointF inText = frame.bottomLeft() + QPointF(0.31 * frame.width(), -0.33 * frame.height());
    click(inText);
    ASSERT_EQ(VtxUtilPickListGetText(1), text);
    drag(inText, inText + QPointF(0.1 * frame.width(), -0.2 * frame.height()), Qt::AltModifier);
    const kernel::Text* moved = kernel().texts().find(text);
    EXPECT_NEAR(moved->x, 40.0, 0.5);
    EXPECT_NEAR(moved->y, 50.0, 0.5);
    EXPECT_EQ(kernel().undoStack().undoName(), "Move Text");
    ASSERT_TRUE(VtxUtilUndo());
    EXPECT_EQ(kernel().texts().find(text)->x, 30.0);
    EXPECT_EQ(kernel().undoStack().undoName(), "Insert Text");
}

TEST_F(SelectorTest, KeysEndADragAndEscapeTakesItBack)
{
    show("fe2d", PlotType_Cartesian2D);
    const long text = createText("MMMM");
    m_area->repaint();
    const QRectF frame = activeRect();
    const QPointF inText = frame.bottomLeft() + QPointF(0.31 * frame.width(), -0.33 * frame.height());
    const QPointF other = inText + QPointF(0.1 * frame.width(), 0.0);
    const auto press = [&] { QTest::mousePress(m_area.get(), Qt::LeftButton, {}, widgetPlace(inText)); };
    const auto move = [&](QPointF to) {
        test::moveMouse(*m_area, m_area->toWidget(to), Qt::LeftButton, Qt::AltModifier);
    };
    click(inText);

    press();
    move(other);
    EXPECT_GT(kernel().texts().find(text)->x, 35.0);
    QTest::keyPress(m_area.get(), Qt::Key_Alt);
    move(other + QPointF(0.1 * frame.width(), 0.0));
    EXPECT_GT(kernel().texts().find(text)->x, 45.0) << "Alt is part of the drag";
    QTest::keyClick(m_area.get(), Qt::Key_Escape);
    EXPECT_EQ(kernel().texts().find(text)->x, 30.0);
    move(other);
    EXPECT_EQ(kernel().texts().find(text)->x, 30.0);
    EXPECT_EQ(kernel().undoStack().undoName(), "Insert Text");

    press();
    move(other);
    QTest::keyClick(m_area.get(), Qt::Key_Delete);
    move(inText);
    EXPECT_EQ(kernel().texts().find(text), nullptr);
    ASSERT_TRUE(VtxUtilUndo());
    ASSERT_TRUE(VtxUtilUndo()) << "the drag until then is a step";
    EXPECT_EQ(kernel().texts().find(text)->x, 30.0);
    m_area->repaint();
    click(inText);
    press();
    ASSERT_TRUE(VtxUtilUndo());
    move(other);
    EXPECT_EQ(kernel().texts().find(text), nullptr);
}

TEST_F(SelectorTest, MovesATextIn3DParallelToTheScreen)
{
    show("flow3d", PlotType_Cartesian3D);
    for (const long isPerspective : {0L, 1L}) {
        m_sample->set("ThreeDView/DrawInPerspective", isPerspective);
        const long text = createText("in space");
        const view::Point3 start{2.0, -3.0, 5.0};
        {
            VtxArgList list{{{"TextID", text},
                             {"PositionCoordSys", long(CoordSys_Grid3D)},
                             {"XPos", start[0]},
                             {"YPos", start[1]},
                             {"ZPos", start[2]}}};
            const kernel::ActionLock lock(kernel().lock());
            ASSERT_TRUE(VtxUtilTextSetX(&list)) << kernel().lastError();
        }
        m_area->repaint();
        const QPointF inside(0.15, -0.1);
        const QPointF from = corner() + *plot().placeOf(start) + inside;
        const QPointF by(-0.75, 0.5);
        click(from);
        ASSERT_EQ(VtxUtilPickListGetType(1), PickObject_Text);
        drag(from, from + by, Qt::AltModifier);
        EXPECT_EQ(kernel().undoStack().undoName(), "Move Text");
        const auto moved = kernel().texts().find(text);
        const view::Point3 end{moved->x, moved->y, moved->z};
        const QPointF way = corner() + *plot().placeOf(end) - (from - inside);
        EXPECT_NEAR(way.x(), by.x(), 0.02);
        EXPECT_NEAR(way.y(), by.y(), 0.02);
        EXPECT_NEAR(plot().camera->nearness(end), plot().camera->nearness(start), 1e-6);
        const kernel::ActionLock lock(kernel().lock());
        VtxUtilTextDelete(text);
    }
}

TEST_F(SelectorTest, GeometriesAreDrawnByDragging)
{
    show("fe2d", PlotType_Cartesian2D);
    const QRectF frame = activeRect();
    const auto at = [&](double across, double up) {
        return frame.bottomLeft() + QPointF(across / 100.0 * frame.width(), -up / 100.0 * frame.height());
    };
    m_area->beginInsert(GeomType_Ellipse);
    drag(at(20, 20), at(40, 60), Qt::AltModifier);
    const long ellipse = VtxUtilGeometryGetFirst();
    ASSERT_NE(ellipse, 0);
    EXPECT_EQ(VtxUtilPickListGetGeometry(1), ellipse) << "it is picked";
    const kernel::Geometry drawn = *kernel().geometries().find(ellipse);
    EXPECT_EQ(drawn.type, GeomType_Ellipse);
    EXPECT_NEAR(drawn.x, 30.0, 0.5);
    EXPECT_NEAR(drawn.y, 40.0, 0.5);
    EXPECT_NEAR(drawn.width, 20.0, 0.5);
    EXPECT_NEAR(drawn.height, 40.0, 0.5);

    const double diagonal = std::sqrt(0.5); // the outline, between two handles
    const QPointF onOutline = at(30 + 10 * diagonal, 40 + 20 * diagonal);
    drag(onOutline, onOutline + at(20, 0) - at(0, 0), Qt::AltModifier); // the selector is back
    EXPECT_NEAR(kernel().geometries().find(ellipse)->x, 50.0, 0.5);
    EXPECT_EQ(kernel().undoStack().undoName(), "Move Geometry");

    m_area->beginInsert(GeomType_Line, true);
    drag(at(10, 10), at(30, 11), Qt::AltModifier | Qt::ShiftModifier);
    const long arrow = VtxUtilGeometryGetNext(ellipse);
    ASSERT_NE(arrow, 0);
    const auto lines = kernel::parseGeometryPoints(kernel().geometries().find(arrow)->points);
    EXPECT_NEAR(lines[0][1][0], 20.0, 0.5);
    EXPECT_NEAR(lines[0][1][1], 0.0, 1e-6) << "straight with Shift";
    EXPECT_EQ(kernel().geometries().find(arrow)->arrowheadAttachment, ArrowheadAttachment_End);
    QTest::keyClick(m_area.get(), Qt::Key_Delete);
    EXPECT_FALSE(VtxUtilGeometryIsValid(arrow));

    m_area->beginInsert(GeomType_Rectangle);
    QTest::keyClick(m_area.get(), Qt::Key_Escape);
    drag(at(60, 80), at(70, 90));
    EXPECT_EQ(VtxUtilGeometryGetNext(ellipse), 0) << "Escape ended it";
}

TEST_F(SelectorTest, GeometriesAreResizedByTheirHandles)
{
    show("fe2d", PlotType_Cartesian2D);
    const auto create = [&](std::vector<VtxArgList::Argument> values) {
        long handle = 0;
        VtxArgList list{std::move(values)};
        list.arguments.push_back({"Result", &handle});
        const kernel::ActionLock lock(kernel().lock());
        EXPECT_TRUE(VtxUtilGeometrySetX(&list)) << kernel().lastError();
        VtxUtilPickClear();
        VtxUtilPickGeometry(handle);
        m_area->repaint();
        return handle;
    };
    const auto shown = [&](long handle) { return *kernel().geometries().find(handle); };
    const auto at = [&](double across, double up) {
        const QRectF frame = activeRect();
        return frame.bottomLeft() + QPointF(across / 100.0 * frame.width(), -up / 100.0 * frame.height());
    };
    const long ellipse = create({{"GeomType", long{GeomType_Ellipse}}, {"XPos", 30.0}, {"YPos", 40.0}});
    drag(at(35, 40), at(45, 60), Qt::AltModifier); // the middle of the right side
    EXPECT_NEAR(shown(ellipse).x, 35.0, 0.5);
    EXPECT_NEAR(shown(ellipse).width, 20.0, 0.5);
    EXPECT_NEAR(shown(ellipse).height, 10.0, 1e-9);
    EXPECT_EQ(kernel().undoStack().undoName(), "Resize Geometry");
    drag(at(25, 45), at(15, 55), Qt::AltModifier); // the upper left corner
    EXPECT_NEAR(shown(ellipse).x, 30.0, 0.5);
    EXPECT_NEAR(shown(ellipse).width, 30.0, 0.5);
    EXPECT_NEAR(shown(ellipse).y, 45.0, 0.5);
    EXPECT_NEAR(shown(ellipse).height, 20.0, 0.5);
    drag(at(45, 45), at(0, 45), Qt::AltModifier);
    EXPECT_GT(shown(ellipse).width, 0.0) << "it does not turn over";
    for (int i = 0; i < 3; ++i) {
        ASSERT_TRUE(VtxUtilUndo());
    }
    EXPECT_EQ(shown(ellipse).width, 10.0) << "each drag is one step";

    const double aspect = activeRect().width() / activeRect().height();
    const long square = create({{"GeomType", long{GeomType_Square}}, {"XPos", 50.0}, {"YPos", 50.0}, {"Width", 20.0}});
    drag(at(50, 50), at(40, 50), Qt::AltModifier); // the lower left corner
    EXPECT_NEAR(shown(square).x, 40.0, 0.5);
    EXPECT_NEAR(shown(square).width, 30.0, 0.5);
    EXPECT_NEAR(shown(square).y, 50.0 - 10.0 * aspect, 0.7) << "the upper right corner stays";

    const long line =
        create({{"GeomType", long{GeomType_Line}}, {"XPos", 10.0}, {"YPos", 20.0}, {"Points", "0 0; 10 0; 10 10"}});
    drag(at(20, 20), at(30, 15), Qt::AltModifier);
    const auto points = kernel::parseGeometryPoints(shown(line).points).front();
    EXPECT_EQ(points[0], (kernel::GeometryPoint{0.0, 0.0, 0.0}));
    EXPECT_NEAR(points[1][0], 20.0, 0.5);
    EXPECT_NEAR(points[1][1], -5.0, 0.5);
    EXPECT_EQ(points[2], (kernel::GeometryPoint{10.0, 10.0, 0.0}));
    EXPECT_EQ(kernel().undoStack().undoName(), "Move Point");
}

TEST_F(SelectorTest, CtrlRunsTheMacroFunctionOfAText)
{
    show("fe2d", PlotType_Cartesian2D);
    const long text = createText("MMMM");
    const auto setFunction = [&](const char* commands) {
        VtxArgList list{{{"TextID", text}, {"MacroFunctionCommand", std::string(commands)}}};
        const kernel::ActionLock lock(kernel().lock());
        ASSERT_TRUE(VtxUtilTextSetX(&list)) << kernel().lastError();
    };
    setFunction("FrameCreate Left=1 Top=1 Width=2 Height=2\nFrameActivate Frame=1");
    m_area->repaint();
    const QRectF frame = activeRect();
    const QPointF inText = frame.bottomLeft() + QPointF(0.31 * frame.width(), -0.33 * frame.height());
    click(inText, Qt::ControlModifier);
    EXPECT_EQ(VtxUtilFrameGetCount(), 2);
    EXPECT_EQ(VtxUtilPickListGetCount(), 0);
    setFunction("NoSuch A=1");
    QSignalSpy status(m_area.get(), &view::WorkArea::statusMessage);
    click(inText, Qt::ControlModifier);
    ASSERT_EQ(status.size(), 1);
    EXPECT_NE(status[0][0].toString().indexOf(QStringLiteral("line 1: there is no command \"NoSuch\"")), -1);
}
