#include "ReadFiles.h"
#include "SampleFiles.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

using namespace readfiles;
using namespace vantrix::kernel;

/* Public test data, where there is any. */
class DataReaderRealFile : public testing::Test
{
protected:
    std::string file(const std::string& name) const { return std::string(VX_SHARED_DATA) + "/" + name; }

    void SetUp() override
    {
        if (!std::filesystem::exists(VX_SHARED_DATA)) {
            GTEST_SKIP() << "there is no " << VX_SHARED_DATA;
        }
    }
};

TEST_F(DataReaderRealFile, BluntFin)
{
    for (const auto& files : {std::vector{file("bluntfinxyz.bin"), file("bluntfinq.bin")},
                              std::vector{file("bluntfinq.bin"), file("bluntfinxyz.bin")}}) {
        const DataSet dataSet = readFiles(files);
        ASSERT_EQ(dataSet.zoneCount(), 1);
        EXPECT_EQ(dataSet.zone(1)->pointCount(), 40960);
        EXPECT_TRUE(dataSet.zone(1)->isOrdered());
        for (const char* name : {"Density", "Momentum X", "Momentum Y", "Momentum Z", "StagnationEnergy"}) {
            EXPECT_NE(dataSet.variableNumber(name), 0) << name;
        }
    }
}

TEST_F(DataReaderRealFile, Cgns)
{
    const DataSet dataSet = readFiles({file("multi.cgns")});
    EXPECT_GT(dataSet.zoneCount(), 1);
    long points = 0;
    for (const auto& zone : dataSet.zones) {
        points += zone->pointCount();
        EXPECT_TRUE(zone->isOrdered());
        EXPECT_FALSE(zone->name().empty());
    }
    EXPECT_EQ(points, 58576);
    const TemporaryFolder folder;
    const std::string whole = contents(file("multi.cgns"));
    const std::string cut = folder.write("cut.cgns", whole.substr(0, whole.size() / 2));
    EXPECT_NE(refusal({cut}).find("cut.cgns"), std::string::npos);
}

TEST_F(DataReaderRealFile, Can)
{
    const DataSet dataSet = readFiles({file("can.vtu")});
    ASSERT_EQ(dataSet.zoneCount(), 1);
    EXPECT_EQ(dataSet.zone(1)->dimensions(), (std::array<long, 3>{6724, 4800, 8}));
    EXPECT_EQ(dataSet.zone(1)->type(), ZoneType_FEBrick);
}

TEST_F(DataReaderRealFile, SameNameAtPointsAndInCells)
{
    const DataSet dataSet = readFiles({file("SampleStructGrid.vtk")});
    EXPECT_EQ(dataSet.zone(1)->pointCount(), 24000);
    bool isFound = false;
    for (const Variable& variable : dataSet.variables) {
        isFound = isFound || dataSet.variableNumber(variable.name + " (cell)") > 0;
    }
    EXPECT_TRUE(isFound);
}
