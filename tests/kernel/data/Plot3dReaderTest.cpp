#include "ReadFiles.h"
#include "SampleFiles.h"
#include "TemporaryFolder.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>

using namespace readfiles;
using namespace vantrix::kernel;

TEST(Plot3dReader, FilesMayBeNamedInAnyOrder)
{
    const TemporaryFolder folder;
    const std::string grid = folder.file("grid.xyz"), solution = folder.file("solution.q");
    samplefiles::writePlot3d(grid, solution);
    for (const auto& files : {std::vector<std::string>{grid, solution}, std::vector<std::string>{solution, grid}}) {
        const DataSet dataSet = readFiles(files);
        ASSERT_EQ(dataSet.zoneCount(), 1);
        EXPECT_EQ(dataSet.zone(1)->dimensions(), (std::array<long, 3>{4, 3, 2}));
        EXPECT_EQ(at(dataSet, "X", 3), 3.0);
        EXPECT_EQ(at(dataSet, "Density", 8), 2.0);
        EXPECT_EQ(at(dataSet, "Momentum Y", 8), 4.0);
        EXPECT_EQ(at(dataSet, "StagnationEnergy", 8), 6.0);
    }
    EXPECT_EQ(names(readFiles({grid})), (std::vector<std::string>{"X", "Y", "Z"}));
    EXPECT_NE(refusal({solution}).find("Choose a grid"), std::string::npos);
    EXPECT_NE(refusal({grid, grid}).find("cannot be read as PLOT3D"), std::string::npos);
    EXPECT_NE(refusal({grid, solution, grid}).find("too many"), std::string::npos);

    const std::string whole = contents(solution);
    folder.write("solution.q", whole.substr(0, whole.size() / 2));
    EXPECT_NE(refusal({grid, solution}).find("solution.q"), std::string::npos);
    EXPECT_NE(refusal({folder.write("letter.bin", "Dear reader, this is a letter")}).find("letter.bin"),
              std::string::npos);
}

TEST(Plot3dReader, IsReadInEveryVariant)
{
    using Layout = samplefiles::Plot3dLayout;
    const std::vector<std::pair<const char*, Layout>> layouts{
        {"text", {.isText = true}},
        {"text of several grids, blanked", {.isText = true, .isMultiGrid = true, .hasBlanking = true}},
        {"text of two dimensions", {.isText = true, .isTwoDimensional = true}},
        {"big-endian", {.isBigEndian = true}},
        {"double", {.isDoublePrecision = true}},
        {"records", {.hasByteCounts = true}},
        {"blanked", {.hasBlanking = true}},
        {"several grids", {.isMultiGrid = true}},
        {"two dimensions", {.isTwoDimensional = true}},
        {"several flat grids in records", {.isMultiGrid = true, .isTwoDimensional = true, .hasByteCounts = true}},
        {"all",
         {.isMultiGrid = true,
          .hasByteCounts = true,
          .isDoublePrecision = true,
          .isBigEndian = true,
          .hasBlanking = true}},
    };
    const TemporaryFolder folder;
    const std::string grid = folder.file("grid.xyz"), solution = folder.file("solution.q");
    for (const auto& [name, layout] : layouts) {
        SCOPED_TRACE(name);
        samplefiles::writePlot3d(grid, solution, layout);
        const DataSet dataSet = readFiles({solution, grid});
        ASSERT_EQ(dataSet.zoneCount(), layout.isMultiGrid ? 2 : 1);
        EXPECT_EQ(dataSet.zone(1)->dimensions(), (std::array<long, 3>{4, 3, layout.isTwoDimensional ? 1 : 2}));
        EXPECT_EQ(at(dataSet, "X", 7), 3.0);
        EXPECT_EQ(at(dataSet, "Y", 7), 0.5);
        EXPECT_EQ(at(dataSet, "Z", layout.isTwoDimensional ? 7 : 12), layout.isTwoDimensional ? 0.0 : 2.0);
        EXPECT_EQ(at(dataSet, "Density", 8), 2.0);
        EXPECT_EQ(at(dataSet, "Momentum Y", 8), 4.0);
        EXPECT_EQ(at(dataSet, "StagnationEnergy", 8), layout.isTwoDimensional ? 5.0 : 6.0);
        EXPECT_EQ(dataSet.variableNumber("IBlank") > 0, layout.hasBlanking);
        if (layout.hasBlanking) {
            EXPECT_EQ(at(dataSet, "IBlank", 0), 0.0);
            EXPECT_EQ(at(dataSet, "IBlank", 1), 1.0);
        }
        if (layout.isMultiGrid) {
            EXPECT_EQ(at(dataSet, "StagnationEnergy", 1, 2), layout.isTwoDimensional ? 4.125 : 5.125);
        }
        const std::string whole = contents(grid);
        for (const double part : {0.35, 0.95}) { /* not where what is left is a whole file of a smaller layout */
            const auto size = static_cast<std::size_t>(part * static_cast<double>(whole.size()));
            std::ofstream(grid, std::ios::binary | std::ios::trunc) << whole.substr(0, size);
            EXPECT_NE(refusal({grid, solution}).find("grid.xyz"), std::string::npos) << "cut at " << part;
        }
    }
}
