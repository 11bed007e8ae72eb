#include "AxisDialogTest.h"

#include "propertymanager/managers/axis/AxisAlignmentModel.h"
#include "propertymanager/managers/axis/AxisEditProperties.h"
#include "propertymanager/managers/axis/AxisEditPropertiesManager.h"

using namespace vantrix::sdk::ui::propertymanager;
using namespace vantrix::test;
using testing::ElementsAre;
using vantrix::sdk::ui::dialogs::propertybindings::models::AxisAlignmentModel;

namespace {

using AxisEditPropertiesTest = AxisDialogTest;

/// Counts what it is told, and does something meanwhile.
class Listener : public AxisEditPropertiesListenerInterface
{
public:
    void currentAxisChanged(AxisEditProperties&) override
    {
        ++calls;
        onCall();
    }

    int calls = 0;
    std::function<void()> onCall = [] {};
};

std::vector<std::string> texts(AxisAlignmentModel const& model)
{
    std::vector<std::string> all;
    all.reserve(static_cast<std::size_t>(model.size()));
    for (int row = 0; row < model.size(); ++row) {
        all.push_back(model.getStr(row));
    }
    return all;
}

} // namespace

TEST_F(AxisEditPropertiesTest, TheCurrentAxisIsThatOfThePlotsType)
{
    AxisEditProperties axes;
    struct Case
    {
        PlotType_e plotType;
        AxisEditProperties::Axis_e axis;
        char character;
        void const* detail;
        void const* set;
    };
    auto const first = AxisEditProperties::FirstAxis;
    auto const second = AxisEditProperties::SecondAxis;
    auto const third = AxisEditProperties::ThirdAxis;
    for (Case const& each :
         {Case{PlotType_Cartesian3D, first, 'X', axes.getThreedAxis()->getXDetail().get(), axes.getThreedAxis().get()},
          Case{PlotType_Cartesian3D, third, 'Z', axes.getThreedAxis()->getZDetail().get(), axes.getThreedAxis().get()},
          Case{PlotType_Cartesian2D, second, 'Y', axes.getTwodAxis()->getYDetail().get(), axes.getTwodAxis().get()},
          Case{PlotType_Cartesian2D, third, 'Z', axes.getTwodAxis()->getYDetail().get(), axes.getTwodAxis().get()},
          Case{PlotType_XYLine, first, 'X', axes.getXyLineAxis()->getXDetail().get(), axes.getXyLineAxis().get()},
          Case{PlotType_Sketch, second, 'Y', axes.getSketchAxis()->getYDetail().get(), axes.getSketchAxis().get()},
          Case{PlotType_PolarLine, first, 'T', axes.getPolarAxis()->getThetaDetail().get(), axes.getPolarAxis().get()},
          Case{PlotType_PolarLine, second, 'R', axes.getPolarAxis()->getRDetail().get(), axes.getPolarAxis().get()},
          Case{PlotType_PolarLine, third, 'Z', axes.getPolarAxis()->getRDetail().get(), axes.getPolarAxis().get()}}) {
        setPlotType(each.plotType);
        axes.setAxis(each.axis);
        SCOPED_TRACE(testing::Message() << "plot type " << each.plotType << ", axis " << each.axis);
        EXPECT_EQ(axes.axisChar(), each.character);
        EXPECT_EQ(axes.axisDetail().get(), each.detail);
        EXPECT_EQ(axes.axis().get(), each.set);
        EXPECT_EQ(axes.getPolarDetail() != nullptr, each.plotType == PlotType_PolarLine && each.axis != third);
    }
}

TEST_F(AxisEditPropertiesTest, AxesOfAnXYLinePlotAreAddressedByNumber)
{
    setPlotType(PlotType_XYLine);
    AxisEditProperties axes;
    axes.setAxis(AxisEditProperties::SecondAxis);
    axes.setXYLineAxisNum(3);
    EXPECT_EQ(axes.axisNum(), 3);
    axes.axisDetail()->getIsReversed()->setValue(true);
    EXPECT_TRUE(axisStyle<bool>({"XYLineAxis", "YDetail", "IsReversed"}, 3));
    EXPECT_FALSE(axisStyle<bool>({"XYLineAxis", "YDetail", "IsReversed"}, 1));

    axes.setAxis(AxisEditProperties::FirstAxis);
    EXPECT_EQ(axes.axisNum(), 1) << "X axes have a number of their own";
    axes.setOffset(-1, -1);
    axes.setAxis(AxisEditProperties::SecondAxis);
    EXPECT_EQ(axes.axisNum(), 3);
    EXPECT_TRUE(axes.axisDetail()->getIsReversed()->value()) << "aiming the whole leaves collections where they were";
    axes.init();
    EXPECT_TRUE(axes.axisDetail()->getIsReversed()->value());
    axes.getXyLineAxis()->getYDetail()->setCollectionOffset(0);
    EXPECT_EQ(axes.axisNum(), 1);
}

TEST_F(AxisEditPropertiesTest, AListenerMayLeaveWhileListenersAreTold)
{
    AxisEditProperties axes;
    Listener leaving;
    Listener staying;
    Listener twice;
    leaving.onCall = [&] { axes.removeListener(&leaving); };
    for (Listener* each : {&leaving, &staying, &twice, &twice}) {
        axes.addListener(each);
    }
    axes.setAxis(AxisEditProperties::SecondAxis);
    axes.setXYLineAxisNum(2);
    EXPECT_THAT((std::vector{leaving.calls, staying.calls, twice.calls}), ElementsAre(1, 2, 2));
}

TEST_F(AxisEditPropertiesTest, AThirdAxisIsLeftWhereThePlotHasNone)
{
    setPlotType(PlotType_Cartesian3D);
    AxisEditProperties axes;
    AxisEditPropertiesManager manager(axes);
    axes.setAxis(AxisEditProperties::ThirdAxis);
    setStyle({"TwoDAxis", "XDetail", "ShowAxis"}, 0L);
    EXPECT_TRUE(manager.getShowAxis().value());
    setPlotType(PlotType_Cartesian2D);
    EXPECT_EQ(axes.axisType(), AxisEditProperties::FirstAxis);
    EXPECT_FALSE(manager.getShowAxis().value()) << "of the axis that is now edited";
}

TEST_F(AxisEditPropertiesTest, AnAxisCanBePlacedByWhatItsPlotHas)
{
    setPlotType(PlotType_Cartesian2D);
    AxisEditProperties axes;
    AxisAlignmentModel const model(axes);
    int changes = 0;
    boost::signals2::scoped_connection const connection = model.connectToDataChangedSignal([&] { ++changes; });
    EXPECT_THAT(texts(model), ElementsAre("Y Value", "Bottom", "Top", "Viewport"));
    axes.setAxis(AxisEditProperties::SecondAxis);
    EXPECT_THAT(texts(model), ElementsAre("X Value", "Left", "Right", "Viewport"));
    setPlotType(PlotType_PolarLine);
    EXPECT_EQ(model.size(), 8);
    EXPECT_EQ(changes, 2);
    axes.setAxis(AxisEditProperties::FirstAxis);
    EXPECT_THAT(texts(model), ElementsAre("R Value", "Inner Circle", "Outer Circle"));
    EXPECT_EQ(changes, 3);
    EXPECT_EQ(model.indexOf(AxisAlignment_GridMax), 2);
    EXPECT_EQ(model.indexOf(AxisAlignment_SpecificAngle), -1);
}
