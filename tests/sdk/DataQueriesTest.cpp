#include "sdk/DataQueries.h"
#include "support/RecordingHost.h"

#include <gmock/gmock.h>

#include <array>

using namespace vantrix::sdk;
using testing::ElementsAre;
using vantrix::test::RecordingHost;

namespace {

class DataQueriesTest : public testing::Test
{
protected:
    DataQueriesTest() { host.reset(); }

    std::array<double, 6> extents() const
    {
        std::array<double, 6> e{-9, -9, -9, -9, -9, -9};
        GetDataExtents(e[0], e[1], e[2], e[3], e[4], e[5]);
        return e;
    }

    RecordingHost& host = RecordingHost::instance();
};

} // namespace

TEST_F(DataQueriesTest, ExtentsAreThoseOfTheAxisVariables)
{
    host.dataSetIsAvailable = true;
    host.axisVariables = {{'X', 3}, {'Y', 1}};
    host.extents = {{3, {-2.0, 5.0}}};
    // No variable serves as Z, and that of Y has no values.
    EXPECT_THAT(extents(), ElementsAre(-2.0, 0.0, 0.0, 5.0, 1.0, 1.0));
}

TEST_F(DataQueriesTest, ExtentsWithoutDataAreAUnitCube)
{
    host.axisVariables = {{'X', 3}};
    host.extents = {{3, {-2.0, 5.0}}};
    EXPECT_THAT(extents(), ElementsAre(0.0, 0.0, 0.0, 1.0, 1.0, 1.0));
}

TEST_F(DataQueriesTest, AZoneWithKPlanesNeedsA3DPlotOrASketchWithoutData)
{
    for (bool const data : {false, true}) {
        for (PlotType_e const type : {PlotType_Cartesian3D, PlotType_Cartesian2D, PlotType_XYLine, PlotType_Sketch}) {
            host.plotType = type;
            host.dataSetIsAvailable = data;
            EXPECT_EQ(IsOkToMake3DZone(), type == PlotType_Cartesian3D || (type == PlotType_Sketch && !data));
        }
    }
}

TEST_F(DataQueriesTest, EnabledZonesAreEmptyWithoutData)
{
    host.enabledZones = {2, 4};
    EXPECT_TRUE(getEnabledZones().isEmpty());
    host.dataSetIsAvailable = true;
    EXPECT_EQ(getEnabledZones().members(), (std::set<int>{2, 4}));
}
