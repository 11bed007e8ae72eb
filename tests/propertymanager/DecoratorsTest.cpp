#include "property/BoundedValueValidator.h"
#include "property/InvalidPropertyValueException.h"
#include "property/Property.h"
#include "propertymanager/FloodColoringPropertyProxy.h"
#include "propertymanager/SmartDefaultPropertyDecoratorAbstract.h"
#include "propertymanager/SurfaceTranslucencyDecorator.h"
#include "propertymanager/UILocalStyleProperty.h"
#include "support/RecordingHost.h"

#include <gmock/gmock.h>

using namespace vantrix;
using sdk::ui::propertymanager::SurfaceTranslucencyDecorator;
using sdk::ui::propertymanager::UILocalStyleProperty;
using sdk::ui::util::FloodColoringPropertyProxy;
using test::RecordingHost;
using testing::ElementsAre;

TEST(SurfaceTranslucencyDecorator, LeavesTheCheckToTheWrappedPropertyAndSignalsOnce)
{
    UILocalStyleProperty<int> percent(boost::make_shared<BoundedValueValidator<int>>(1, 99), 50);
    SurfaceTranslucencyDecorator decorator(percent);
    std::vector<int> heard;
    std::vector<int> heardOfDecorator;
    percent.connectToValueChangedSignal([&](int value) { heard.push_back(value); });
    decorator.connectToValueChangedSignal([&](int value) { heardOfDecorator.push_back(value); });
    decorator.setValue(70);
    EXPECT_EQ(70, percent.value());
    EXPECT_THROW(decorator.setValue(100), InvalidPropertyValueException);
    EXPECT_EQ(70, decorator.value());
    EXPECT_THAT(heard, ElementsAre(70));
    EXPECT_THAT(heardOfDecorator, ElementsAre(70));
}

TEST(FloodColoringPropertyProxy, RefusesRGBOnlyWhereNeitherHostNorPlotTypeAllowsIt)
{
    RecordingHost& host = RecordingHost::instance();
    host.reset();
    host.plotType = PlotType_Cartesian2D;
    bool plotTypeAllows = false;
    std::vector<PlotType_e> asked;
    Property<ContourColoring_e> coloring(ContourColoring_Group2);
    FloodColoringPropertyProxy proxy(coloring, [&](PlotType_e plotType) {
        asked.push_back(plotType);
        return plotTypeAllows;
    });
    proxy.setValue(ContourColoring_Group3);
    EXPECT_EQ(ContourColoring_Group3, coloring.value());
    EXPECT_TRUE(asked.empty()) << "only RGB colouring is ever refused";

    proxy.setValue(ContourColoring_RGB);
    EXPECT_EQ(ContourColoring_Group3, coloring.value());
    EXPECT_THAT(asked, ElementsAre(PlotType_Cartesian2D));

    std::vector<ContourColoring_e> announced;
    proxy.connectToValueChangedSignal([&](ContourColoring_e value) { announced.push_back(value); });
    proxy.storeValue(ContourColoring_RGB);
    EXPECT_THAT(announced, ElementsAre(ContourColoring_Group3)) << "the widget has to show the old value again";
    proxy.setValue(ContourColoring_RGB);
    EXPECT_THAT(announced, ElementsAre(ContourColoring_Group3, ContourColoring_Group3)) << "once more, not twice";

    plotTypeAllows = true;
    announced.clear();
    proxy.setValue(ContourColoring_RGB);
    EXPECT_EQ(ContourColoring_RGB, coloring.value());
    EXPECT_THAT(announced, ElementsAre(ContourColoring_RGB));

    coloring.setValue(ContourColoring_Group1);
    plotTypeAllows = false;
    host.allowsRGBColoring = true;
    proxy.setValue(ContourColoring_RGB);
    EXPECT_EQ(ContourColoring_RGB, coloring.value());
}

TEST(SmartDefaultPropertyDecorator, SetsTheWrappedPropertyWithItsChecks)
{
    auto const wrapped = boost::make_shared<Property<Streamtrace_e>>(Streamtrace_SurfaceLine);
    sdk::common::property::SmartDefaultPropertyDecoratorAbstract<Streamtrace_e> decorator(wrapped);
    decorator.setValue(Streamtrace_VolumeRod);
    EXPECT_EQ(Streamtrace_VolumeRod, wrapped->value());
    wrapped->setValue(Streamtrace_VolumeLine);
    EXPECT_EQ(Streamtrace_VolumeLine, decorator.value());
}
