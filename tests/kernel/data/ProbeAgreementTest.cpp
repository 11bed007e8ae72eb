#include "ProbeFixture.h"

#include "kernel/OpenData.h"
#include "kernel/probe/ProbedCell.h"

#include <vtkCellData.h>
#include <vtkIdTypeArray.h>
#include <vtkPointData.h>
#include <vtkPolyData.h>
#include <vtkProbeFilter.h>

#include <filesystem>

using namespace vantrix::kernel;

namespace {

constexpr auto cellNumbers = "cell numbers";

/* What VTK's own filter says of places in a grid; its cell array `cellNumbers` tells which cell it took. */
vtkSmartPointer<vtkDataSet> probedByVtk(vtkDataSet& grid, const std::vector<Position>& places)
{
    const auto source = vtkSmartPointer<vtkDataSet>::Take(grid.NewInstance());
    source->ShallowCopy(&grid);
    vtkNew<vtkIdTypeArray> numbers;
    numbers->SetName(cellNumbers);
    for (vtkIdType cell = 0; cell < grid.GetNumberOfCells(); ++cell) {
        numbers->InsertNextValue(cell);
    }
    source->GetCellData()->AddArray(numbers);
    vtkNew<vtkPoints> points;
    points->SetDataTypeToDouble();
    for (const Position& place : places) {
        points->InsertNextPoint(place.data());
    }
    vtkNew<vtkPolyData> input;
    input->SetPoints(points);
    vtkNew<vtkProbeFilter> filter;
    filter->SetInputData(input);
    filter->SetSourceData(source);
    filter->Update();
    vtkSmartPointer<vtkDataSet> output = filter->GetOutput();
    return output;
}

/* How exactly VTK's filter, which writes a variable in its own type, can tell a value, relative to it. */
double lastDigit(vtkDataArray& values)
{
    return values.GetDataType() == VTK_DOUBLE ? 1e-12 : 5e-7;
}

class ProbeAgreementTest : public ProbeTest
{
protected:
    /* Compares every variable at random places of a zone with what VTK's filter finds there in the same cell. */
    static void compareWithVtk(long zone)
    {
        const auto source = grid(zone);
        const bool isInVolume = document().activeDataSet()->zone(zone)->topologicalDimension() == 3;
        std::mt19937 random(7);
        std::uniform_int_distribution<vtkIdType> anyCell(0, source->GetNumberOfCells() - 1);
        std::vector<Position> places;
        places.reserve(200);
        for (int i = 0; i < 200; ++i) {
            places.push_back(placeIn(*source, anyCell(random), random));
        }
        const auto expected = probedByVtk(*source, places);
        const auto data = document().activeDataSet();
        VtxSetHandle zones = VtxUtilSetAlloc();
        VtxUtilSetAddMember(zones, zone);
        std::vector<double> values(static_cast<std::size_t>(data->variableCount()));
        int compared = 0;
        for (std::size_t at = 0; at < places.size(); ++at) {
            const auto [x, y, z] = places[at];
            long i = 0, j = 0, k = 0, found = 0;
            IJKPlanes_e plane = IJKPlanes_Volume;
            ASSERT_TRUE(VtxUtilProbeAtPosition(x, y, z, &i, &j, &k, &plane, &found, false, values.data(), zones,
                                               isInVolume, false, false))
                << "zone " << zone << " at " << x << ' ' << y << ' ' << z;
            long cell = i - 1;
            if (data->zone(zone)->isOrdered()) {
                cell = orderedCellIndex(*data->zone(zone), {i - 1, j - 1, k - 1}, plane).storage;
            }
            const auto tuple = static_cast<vtkIdType>(at);
            if (expected->GetPointData()->GetArray(cellNumbers)->GetComponent(tuple, 0) != static_cast<double>(cell)) {
                continue; // two cells hold the place, or VTK's filter, which misses some in polyhedra, found none
            }
            ++compared;
            for (long variable = 1; variable <= data->variableCount(); ++variable) {
                const std::string& name = data->variables[static_cast<std::size_t>(variable - 1)].name;
                vtkDataArray* array = expected->GetPointData()->GetArray(name.c_str());
                if (!array) {
                    continue;
                }
                const double value = array->GetComponent(tuple, 0);
                EXPECT_NEAR(values[static_cast<std::size_t>(variable - 1)], value,
                            lastDigit(*array) * std::max(std::abs(value), 1e-3 * array->GetMaxNorm()) +
                                (array->GetDataType() == VTK_INT ? 0.5 : 0.0))
                    << name << " of zone " << zone;
            }
        }
        VtxUtilSetDealloc(&zones);
        EXPECT_GT(compared, 120) << "zone " << zone;
    }

    /* The same for all zones that fill the plot's space. */
    static void compareAllWithVtk()
    {
        const auto data = document().activeDataSet();
        const int filling = VtxUtilFrameGetPlotType() == PlotType_Cartesian3D ? 3 : 2;
        int zones = 0;
        for (long zone = 1; zone <= data->zoneCount(); ++zone) {
            if (data->zone(zone)->topologicalDimension() == filling) {
                compareWithVtk(zone);
                ++zones;
            }
        }
        EXPECT_GT(zones, 0);
    }

    static void open(const std::vector<std::string>& names)
    {
        std::vector<std::string> files;
        files.reserve(names.size());
        for (const std::string& name : names) {
            files.push_back(std::string(VX_SHARED_DATA) + "/" + name);
        }
        const LockScope lock;
        OpenData(kernel()).files(files);
    }
};

} // namespace

TEST_F(ProbeAgreementTest, AgreesWithVtkInEveryBuiltInFieldDataSet)
{
    for (const char* sample : {"flow3d", "fe2d", "polyhedra", "mixed"}) {
        SCOPED_TRACE(sample);
        show(sample);
        compareAllWithVtk();
    }
}

TEST_F(ProbeAgreementTest, AgreesWithVtkInEveryPublicDataSet)
{
    if (!std::filesystem::exists(VX_SHARED_DATA)) {
        GTEST_SKIP() << "there is no " << VX_SHARED_DATA;
    }
    for (const auto& files : std::vector<std::vector<std::string>>{
             {"bluntfinxyz.bin", "bluntfinq.bin"}, {"multi.cgns"}, {"can.vtu"}, {"SampleStructGrid.vtk"}}) {
        SCOPED_TRACE(files.front());
        open(files);
        compareAllWithVtk();
    }
}
