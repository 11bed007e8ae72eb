#include "ReadFiles.h"
#include "SampleFiles.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

using namespace readfiles;
using namespace vantrix::kernel;

namespace {

/* Cuts one file of a case everywhere; what is left is whole at the end and at the places given only. */
void expectCutsRefused(const std::vector<std::string>& files, std::size_t cut,
                       const std::vector<std::string>& wholeUpTo)
{
    const std::string whole = contents(files[cut]);
    for (std::size_t size = 0; size + 1 < whole.size(); size += whole.size() > 500 ? 7 : 1) {
        bool isWhole = false;
        for (const std::string& next : wholeUpTo) {
            const std::size_t at = whole.find(next);
            isWhole = isWhole || size == at || size + 1 == at;
        }
        if (isWhole) {
            continue;
        }
        std::ofstream(files[cut], std::ios::binary | std::ios::trunc) << whole.substr(0, size);
        const std::string text = refusal({files[0]});
        ASSERT_NE(text.find(files[0]), std::string::npos) << files[cut] << " cut at " << size << ": " << text;
    }
    std::ofstream(files[cut], std::ios::binary | std::ios::trunc) << whole;
}

} // namespace

TEST(EnSightReader, AnEnSightCaseNeedsItsGeometryAndItsVariables)
{
    const TemporaryFolder folder;
    const std::vector<std::string> files = samplefiles::writeEnSight(folder.file(""));
    const DataSet dataSet = readFiles({files[0]});
    ASSERT_EQ(dataSet.zoneCount(), 1);
    EXPECT_EQ(dataSet.zone(1)->name(), "Square");
    EXPECT_EQ(dataSet.zone(1)->cellCount(), 2);
    EXPECT_EQ(at(dataSet, "Y", 2), 1.0);
    EXPECT_EQ(at(dataSet, "Temperature", 3), 40.0);

    for (const std::size_t part : {1u, 2u}) {
        const std::string whole = contents(files[part]);
        std::filesystem::remove(files[part]);
        const std::string missing = refusal({files[0]});
        EXPECT_NE(missing.find(files[0]), std::string::npos) << files[part] << ": " << missing;
        std::ofstream(files[part], std::ios::trunc) << whole;
        expectCutsRefused(files, part, {});
    }
    const std::string whole = contents(files[2]);
    std::ofstream(files[2], std::ios::trunc) << whole.substr(0, 60);
    EXPECT_NE(refusal({files[0]}).find("sample.temperature"), std::string::npos)
        << "the file that ends early is not named";
}

TEST(EnSightReader, AnEnSightFileOfATimeIsFoundByItsNumber)
{
    const TemporaryFolder folder;
    const std::string geometry = contents(samplefiles::writeEnSight(folder.file(""))[1]);
    const std::string file =
        folder.write("times.case", "FORMAT\ntype: ensight gold\n\nGEOMETRY\nmodel: 1 at**.geo\n\nTIME\ntime set: 1\n"
                                   "number of steps: 1\nfilename start number: 7\nfilename increment: 1\n"
                                   "time values: 0.0\n");
    folder.write("at07.geo", geometry);
    EXPECT_EQ(readFiles({file}).zone(1)->cellCount(), 2);
    folder.write("at07.geo", geometry.substr(0, 200));
    EXPECT_NE(refusal({file}).find("at07.geo"), std::string::npos);
}

TEST(EnSightReader, EnSight6AndBinaryFilesCutAnywhereAreRefused)
{
    const TemporaryFolder folder;
    const std::vector<std::string> six = samplefiles::writeEnSight6(folder.file(""));
    const DataSet dataSet = readFiles({six[0]});
    ASSERT_EQ(dataSet.zoneCount(), 2);
    EXPECT_EQ(at(dataSet, "Temperature", 3), 40.0);
    EXPECT_EQ(at(dataSet, "Temperature", 2, 2), 70.0);
    EXPECT_EQ(at(dataSet, "Load", 1), 2.0);
    expectCutsRefused(six, 1, {});
    expectCutsRefused(six, 2, {"part 2"});
    expectCutsRefused(six, 3, {});

    const std::vector<std::string> binary = samplefiles::writeBinaryEnSight(folder.file(""));
    const DataSet read = readFiles({binary[0]});
    ASSERT_EQ(read.zoneCount(), 1);
    EXPECT_EQ(read.zone(1)->cellCount(), 6);
    EXPECT_NEAR(at(read, "Pressure", 23), 1 + 2 * 3 + 3 * 1 + 4 * 2, 1e-5);
    expectCutsRefused(binary, 1, {});
    expectCutsRefused(binary, 2, {});
}
