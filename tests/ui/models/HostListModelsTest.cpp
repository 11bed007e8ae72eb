#include "propertybindings/models/QListModel.h"
#include "support/RecordingHost.h"
#include "ui/models/ContourVariableListModel.h"
#include "ui/models/LineMapListModel.h"
#include "ui/models/StreamTraceTypeListModel.h"
#include "ui/models/ZoneListModel.h"

#include <QListView>
#include <gtest/gtest.h>

namespace {

using namespace vantrix::sdk::ui::dialogs::propertybindings::models;
using vantrix::test::RecordingHost;

class HostListModels : public testing::Test
{
protected:
    HostListModels()
    {
        host.reset();
        host.dataSetIsAvailable = true;
    }
    ~HostListModels() override { host.reset(); }

    RecordingHost& host = RecordingHost::instance();
};

std::vector<std::string> textsOf(HostListModelAbstract const& model)
{
    std::vector<std::string> texts;
    texts.reserve(static_cast<std::size_t>(model.size()));
    for (int row = 0; row < model.size(); ++row) {
        texts.push_back(model.getStr(row));
    }
    return texts;
}

using Texts = std::vector<std::string>;

TEST_F(HostListModels, ListTheEnabledZonesAndFollowTheData)
{
    host.enabledZones = {2, 5};
    host.zoneNames = {{2, "wing"}, {5, "tail"}, {6, "far field"}};
    ZoneListModel const model;
    int announced = 0;
    model.connectToDataChangedSignal([&announced] { ++announced; });
    EXPECT_EQ(textsOf(model), (Texts{"2: wing", "5: tail"}));
    EXPECT_EQ(model.indexOf(5), 1);
    EXPECT_EQ(model.indexOf(6), -1);

    host.enabledZones = {2, 5, 6};
    host.notify(StateChange_ZonesAdded);
    EXPECT_EQ(announced, 1);
    EXPECT_EQ(model.get(2), 6);

    host.zoneNames[2] = "Wing";
    host.notify(StateChange_ZoneName, 2);
    EXPECT_EQ(announced, 2);
    EXPECT_EQ(model.getStr(0), "2: Wing");

    host.notify(StateChange_VarName);
    host.notify(StateChange_MouseMode);
    EXPECT_EQ(announced, 2);

    host.enabledZones.clear();
    host.notify(StateChange_DataSetReset);
    EXPECT_EQ(announced, 3);
    EXPECT_EQ(model.size(), 0);
}

TEST_F(HostListModels, ListVariablesAndLineMapsToo)
{
    host.enabledVariables = {1, 3};
    host.variableNames = {{1, "X"}, {3, "P"}};
    host.lineMapNames = {"Map 1", "Map 2"};
    ContourVariableListModel const variables;
    LineMapListModel const lineMaps;
    EXPECT_EQ(textsOf(variables), (Texts{"1: X", "3: P"}));
    EXPECT_EQ(textsOf(lineMaps), (Texts{"1: Map 1", "2: Map 2"}));

    host.enabledVariables.insert(4);
    host.notify(StateChange_VarsAdded);
    EXPECT_EQ(textsOf(variables), (Texts{"1: X", "3: P", "4: "}));
    host.lineMapNames.clear();
    host.notify(StateChange_LineMapsAddedOrDeleted);
    EXPECT_EQ(lineMaps.size(), 0);
}

TEST_F(HostListModels, OfferTheStreamtracesThatThePlotCanShow)
{
    host.plotType = PlotType_Cartesian3D;
    StreamTraceTypeListModel const model;
    int announced = 0;
    model.connectToDataChangedSignal([&announced] { ++announced; });
    EXPECT_EQ(model.size(), 4);
    EXPECT_EQ(model.getStr(model.indexOf(Streamtrace_VolumeRod)), "Volume Rod");
    EXPECT_EQ(model.indexOf(Streamtrace_TwoDLine), -1);

    host.notify(StateChange_View);
    EXPECT_EQ(announced, 0);
    host.plotType = PlotType_Cartesian2D;
    host.notify(StateChange_NewActiveFrame);
    EXPECT_EQ(announced, 1);
    EXPECT_EQ(model.size(), 1);
    EXPECT_EQ(model.indexOf(Streamtrace_TwoDLine), 0);
}

TEST_F(HostListModels, AskForTheNamesOfTheRowsThatAreShownOnly)
{
    for (long zone = 1; zone <= 100000; ++zone) {
        host.enabledZones.insert(host.enabledZones.end(), zone);
    }
    ZoneListModel const zones;
    vantrix::sdk::ui::dialogs::propertybindings::models::QListModel<int> model(zones);
    QListView view;
    view.setUniformItemSizes(true);
    view.setModel(&model);
    view.resize(200, 200);
    view.show();
    view.grab();
    EXPECT_EQ(model.rowCount(), 100000);
    EXPECT_GT(host.nameReads, 0);
    EXPECT_LT(host.nameReads, 1000);
}

TEST_F(HostListModels, LetGoOfTheHostWhenTheApplicationEnds)
{
    ZoneListModel const zones;
    int announced = 0;
    zones.connectToDataChangedSignal([&announced] { ++announced; });
    host.notify(StateChange_Quit);
    host.notify(StateChange_ZonesAdded);
    EXPECT_EQ(announced, 0);
}

} // namespace
