#include "kernel/VariableMemory.h"
#include "SampleFiles.h"
#include "TemporaryFolder.h"
#include "kernel/DataError.h"
#include "kernel/FieldValues.h"
#include "kernel/KernelFixture.h"
#include "kernel/OpenData.h"
#include "kernel/ZoneGrid.h"

#include <vtkPointData.h>

#include <map>

using namespace vantrix::kernel;
using testing::Contains;

namespace {

/* The kernel has opened a file of bricks with "Pressure", "Velocity" and "Part". */
class VariableMemoryTest : public KernelTest
{
protected:
    void SetUp() override
    {
        KernelTest::SetUp();
        set(strategy, long{UnloadStrategy_NeverUnload});
        open("vtu");
    }

    void TearDown() override
    {
        memory().memoryInUse = [] { return 0.0; };
        KernelTest::TearDown();
    }

    void open(const std::string& suffix)
    {
        file = folder.file("sample." + suffix);
        for (const samplefiles::Format& format : samplefiles::formats()) {
            if (format.suffix == suffix) {
                format.write(file);
            }
        }
        OpenData(kernel()).files({file});
        set("FieldLayers/ShowContour", 0L);
    }

    /* Puts a changed copy of the zone into the data set. */
    void change(const std::function<void(Zone&)>& edit)
    {
        const LockScope lock;
        DataSet changed = data();
        auto zone = std::make_shared<Zone>(*changed.zones[0]);
        edit(*zone);
        changed.zones[0] = zone;
        document().replaceDataSet(std::move(changed), {StateChange_VarsAltered});
    }

    void minimize()
    {
        set(strategy, long{UnloadStrategy_MinimizeMemoryUse});
        memory().tidy();
    }

    static VariableMemory& memory() { return kernel().variableMemory(); }
    static const DataSet& data() { return *document().activeDataSet(); }
    static long number(const char* variable) { return data().variableNumber(variable); }
    static const FieldArray& field(const char* variable) { return *data().field(1, number(variable)); }

    static constexpr const char* strategy = "FileConfig/LoadOnDemand/UnloadStrategy";
    TemporaryFolder folder;
    std::string file;
};

std::vector<double> valuesOf(vtkDataArray& array)
{
    std::vector<double> values;
    for (vtkIdType i = 0; i < array.GetNumberOfTuples(); ++i) {
        values.push_back(array.GetComponent(i, 0));
    }
    return values;
}

} // namespace

TEST_F(VariableMemoryTest, WhatNoPlotShowsLeavesTheMemoryAndComesBackFromTheFile)
{
    for (const char* suffix : {"vtu", "binary.vtk", "exo", "pvtu"}) {
        SCOPED_TRACE(suffix);
        set(strategy, long{UnloadStrategy_NeverUnload});
        memory().tidy();
        open(suffix);
        std::map<std::string, std::vector<double>> before;
        std::map<std::string, vtkWeakPointer<vtkDataArray>> arrays;
        for (const Variable& variable : data().variables) {
            before[variable.name] = valuesOf(*field(variable.name.c_str()).load());
            arrays[variable.name] = field(variable.name.c_str()).values.Get();
        }
        EXPECT_TRUE(zoneGrid(data(), 1, {1, 2, 3})->GetPointData()->HasArray("Pressure"));
        const std::size_t bytes = memory().bytesOfValues();
        notices.clear();
        minimize();
        EXPECT_THAT(kinds(), Contains(int{StateChange_DataAvailability}).Times(1));
        EXPECT_LT(memory().bytesOfValues(), bytes);
        for (const auto& [name, values] : before) {
            const bool isAxis = name == "X" || name == "Y" || name == "Z";
            EXPECT_EQ(field(name.c_str()).isLoaded(), isAxis) << name;
            EXPECT_TRUE(field(name.c_str()).isAvailable()) << name;
            EXPECT_EQ(arrays[name] != nullptr, isAxis) << name << " is still held by somebody";
        }
        EXPECT_FALSE(zoneGrid(data(), 1, {1, 2, 3})->GetPointData()->HasArray("Pressure"));
        for (const auto& [name, values] : before) {
            EXPECT_EQ(valuesOf(*field(name.c_str()).load()), values) << name;
        }
        EXPECT_TRUE(zoneGrid(data(), 1, {1, 2, 3})->GetPointData()->HasArray("Pressure"));
    }
}

TEST_F(VariableMemoryTest, UnloadingIsNoStepOfUndoAndReachesTheStepsOfUndo)
{
    change([](Zone& zone) { zone.setName("Renamed"); });
    const vtkWeakPointer<vtkDataArray> pressure = field("Pressure").values.Get();
    const unsigned long revision = kernel().undoStack().revision();
    memory().tidy();
    EXPECT_NE(pressure, nullptr) << "never means never";
    set(strategy, long{UnloadStrategy_MinimizeMemoryUse});
    const unsigned long changedRevision = kernel().undoStack().revision();
    EXPECT_NE(changedRevision, revision);
    memory().tidy();
    EXPECT_EQ(kernel().undoStack().revision(), changedRevision);
    EXPECT_EQ(pressure, nullptr) << "a step of undo holds the values";
    ASSERT_TRUE(kernel().undoStack().undo());
    ASSERT_TRUE(kernel().undoStack().undo());
    EXPECT_NE(data().zone(1)->name(), "Renamed");
    EXPECT_EQ(valuesOf(*field("Pressure").load()).size(), 24u);
}

TEST_F(VariableMemoryTest, WhatAPlotShowsAndWhatNoFileHasStays)
{
    change([](Zone& zone) {
        zone.fields[static_cast<std::size_t>(number("Velocity X") - 1)].values = makeZeros(FieldDataType_Float, 24);
    });
    set("FieldLayers/ShowContour", 1L);
    set("GlobalContour/Var", number("Pressure"), 1);
    minimize();
    EXPECT_TRUE(field("Pressure").isLoaded()) << "the contours show it";
    EXPECT_TRUE(field("Velocity X").isLoaded()) << "the file has other values";
    EXPECT_FALSE(field("Velocity Y").isLoaded());
    set("GlobalContour/Var", number("Velocity Y"), 1);
    memory().tidy();
    EXPECT_FALSE(field("Pressure").isLoaded()) << "nothing shows it any more";
}

TEST_F(VariableMemoryTest, WhatWasJustLoadedIsSparedOnce)
{
    minimize();
    notices.clear();
    field("Pressure").load();
    memory().tidy();
    EXPECT_TRUE(field("Pressure").isLoaded());
    EXPECT_THAT(kinds(), Contains(int{StateChange_DataAvailability}).Times(1));
    field("Velocity Y").load();
    memory().tidy();
    EXPECT_FALSE(field("Pressure").isLoaded());
    EXPECT_TRUE(field("Velocity Y").isLoaded());
}

TEST_F(VariableMemoryTest, TheThresholdsTellWhenUnloadingBeginsAndEnds)
{
    field("Velocity X").load();
    set(strategy, long{UnloadStrategy_Auto});
    set("Limits/LodThresholdMinFract", 0.5);
    set("Limits/LodThresholdMaxFract", 0.8);
    double inUse = 0.79;
    memory().memoryInUse = [&] { return inUse; };
    memory().tidy();
    EXPECT_TRUE(field("Pressure").isLoaded());
    inUse = 0.81;
    set("Limits/LodThresholdMinFract", 0.81 - 1e-12); /* reached with the first that goes */
    set("Limits/LodThresholdMaxFract", 0.8);
    memory().tidy();
    EXPECT_TRUE(field("Velocity X").isLoaded()) << "the one used last goes last";
    EXPECT_FALSE(field("Pressure").isLoaded());
    set("Limits/LodThresholdMinFract", 0.5);
    memory().tidy();
    EXPECT_FALSE(field("Velocity X").isLoaded());
    EXPECT_TRUE(field("X").isLoaded()) << "an axis shows it";
}

TEST_F(VariableMemoryTest, AFileThatChangedIsNamed)
{
    minimize();
    std::ofstream(file, std::ios::app) << "<!-- -->\n";
    try {
        field("Pressure").load();
        FAIL() << "values of another file were read";
    } catch (const DataError& error) {
        EXPECT_NE(std::string(error.what()).find(file), std::string::npos) << error.what();
        EXPECT_NE(std::string(error.what()).find("Pressure"), std::string::npos) << error.what();
    }
    EXPECT_FALSE(field("Pressure").isLoaded());
}
