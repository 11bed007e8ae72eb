#include "kernel/DataError.h"
#include "kernel/KernelFixture.h"
#include "kernel/OpenData.h"
#include "kernel/ProbeService.h"
#include "kernel/ZoneGrid.h"
#include "kernel/probe/ProbedCell.h"

#include <vtkCellData.h>
#include <vtkGenericCell.h>
#include <vtkIdList.h>
#include <vtkIdTypeArray.h>
#include <vtkPointData.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>
#include <vtkProbeFilter.h>
#include <vtkUnstructuredGrid.h>

#include <cmath>
#include <filesystem>
#include <random>

using namespace vantrix::kernel;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

namespace {

constexpr auto cellNumbers = "cell numbers";

/* An argument list that is written as it is filled. */
class Arguments
{
public:
    ~Arguments() { VtxUtilArgListDealloc(&m_list); }
    Arguments& with(const char* name, long value)
    {
        VtxUtilArgListAppendArbParam(m_list, name, value);
        return *this;
    }
    Arguments& with(const char* name, double value)
    {
        VtxUtilArgListAppendDouble(m_list, name, value);
        return *this;
    }
    Arguments& with(const char* name, const char* value)
    {
        VtxUtilArgListAppendString(m_list, name, value);
        return *this;
    }
    operator VtxArgListHandle() const { return m_list; }

private:
    VtxArgListHandle m_list = VtxUtilArgListAlloc();
};

std::string lastError()
{
    char* text = VtxUtilGetLastErrorString();
    const std::string result = text ? text : "";
    VtxUtilStringDealloc(&text);
    return result;
}

/* A place inside a cell: a random mixture of its corners. */
Position placeIn(vtkDataSet& grid, vtkIdType cell, std::mt19937& random)
{
    vtkNew<vtkIdList> corners;
    grid.GetCellPoints(cell, corners);
    std::uniform_real_distribution<double> part(0.05, 1.0);
    Position place{0.0, 0.0, 0.0};
    double total = 0.0;
    for (vtkIdType i = 0; i < corners->GetNumberOfIds(); ++i) {
        const double weight = part(random);
        const double* corner = grid.GetPoint(corners->GetId(i));
        for (std::size_t axis = 0; axis < 3; ++axis) {
            place[axis] += weight * corner[axis];
        }
        total += weight;
    }
    for (double& coordinate : place) {
        coordinate /= total;
    }
    return place;
}

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

class ProbeTest : public KernelTest
{
protected:
    static CoordinateVariables coordinates()
    {
        return {VtxUtilVarGetNumByAssignment('X'), VtxUtilVarGetNumByAssignment('Y'),
                VtxUtilVarGetNumByAssignment('Z')};
    }

    static vtkSmartPointer<vtkDataSet> grid(long zone)
    {
        return zoneGrid(*document().activeDataSet(), zone, coordinates());
    }

    static bool probeAt(Position at, bool isInVolume = false, bool isNearest = false)
    {
        const LockScope lock;
        return VtxUtilProbeAtFieldPositionX(Arguments()
                                                .with("X", at[0])
                                                .with("Y", at[1])
                                                .with("Z", at[2])
                                                .with("SearchVolume", long{isInVolume})
                                                .with("NearestPoint", long{isNearest}));
    }

    static bool probeIndex(long i, long j, long k, long zone)
    {
        const LockScope lock;
        return VtxUtilProbeAtFieldIndexX(Arguments().with("I", i).with("J", j).with("K", k).with("Zone", zone));
    }

    static bool probeLine(char axis, long number, double position)
    {
        const LockScope lock;
        return VtxUtilProbeAtLinePositionX(
            Arguments().with("Axis", long{axis}).with("AxisNum", number).with("Position", position));
    }

    /* Compares every variable at random places of a zone with what VTK's filter finds there in the same cell. */
    static void compareWithVtk(long zone)
    {
        const auto source = grid(zone);
        const bool isInVolume = document().activeDataSet()->zone(zone)->topologicalDimension() == 3;
        std::mt19937 random(7);
        std::uniform_int_distribution<vtkIdType> anyCell(0, source->GetNumberOfCells() - 1);
        std::vector<Position> places;
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

    /* A 3D plot of an ordered zone of 6 x 5 x 4 points, one apart. */
    static void showBox()
    {
        const LockScope lock;
        ASSERT_TRUE(VtxUtilCreateRectangularZone(6, 5, 4, 0, 0, 0, 5, 4, 3, FieldDataType_Double)) << lastError();
        ASSERT_TRUE(VtxUtilFrameSetPlotType(PlotType_Cartesian3D)) << lastError();
    }

    static void open(const std::vector<std::string>& names)
    {
        std::vector<std::string> files;
        for (const std::string& name : names) {
            files.push_back(std::string(VX_SHARED_DATA) + "/" + name);
        }
        const LockScope lock;
        OpenData(kernel()).files(files);
    }
};

/* The cells of a zone by the points of each of their faces. */
using CellsByFace = std::map<std::set<long>, std::vector<long>>;

CellsByFace cellsByFace(vtkDataSet& grid)
{
    CellsByFace result;
    vtkNew<vtkGenericCell> cell;
    for (vtkIdType number = 0; number < grid.GetNumberOfCells(); ++number) {
        grid.GetCell(number, cell);
        const bool isVolume = cell->GetCellDimension() == 3;
        for (int face = 0; face < (isVolume ? cell->GetNumberOfFaces() : cell->GetNumberOfEdges()); ++face) {
            vtkIdList* ids = (isVolume ? cell->GetFace(face) : cell->GetEdge(face))->GetPointIds();
            std::set<long> points;
            for (vtkIdType i = 0; i < ids->GetNumberOfIds(); ++i) {
                points.insert(static_cast<long>(ids->GetId(i)));
            }
            result[points].push_back(static_cast<long>(number));
        }
    }
    return result;
}

int receivedCount = 0;
bool wasSuccessful = false;
bool wasNearest = false;
long receivedClientData = 0;

void receiveProbe(char success, char nearest, long clientData)
{
    ++receivedCount;
    wasSuccessful = success == 1;
    wasNearest = nearest == 1;
    receivedClientData = clientData;
}

} // namespace

TEST_F(ProbeTest, AgreesWithVtkInEveryBuiltInFieldDataSet)
{
    for (const char* sample : {"flow3d", "fe2d", "polyhedra", "mixed"}) {
        SCOPED_TRACE(sample);
        show(sample);
        compareAllWithVtk();
    }
}

TEST_F(ProbeTest, AgreesWithVtkInEveryPublicDataSet)
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

TEST_F(ProbeTest, AnIndexGivesTheStoredValues)
{
    show("flow3d");
    const auto data = document().activeDataSet();
    const auto [iMax, jMax, kMax] = data->zone(1)->dimensions();
    for (const auto& [i, j, k] : {std::array{1L, 1L, 1L}, {iMax, jMax, kMax}, {3L, 2L, 4L}}) {
        ASSERT_TRUE(probeIndex(i, j, k, 1)) << lastError();
        const long point = i + iMax * (j - 1 + jMax * (k - 1));
        EXPECT_EQ(VtxUtilProbeFieldGetPoint(), point);
        EXPECT_EQ(VtxUtilProbeFieldGetCell(), 0);
        for (long variable = 1; variable <= data->variableCount(); ++variable) {
            const double stored = data->field(1, variable)->values->GetComponent(point - 1, 0);
            EXPECT_TRUE(VtxUtilProbeFieldIsVarValid(variable));
            EXPECT_EQ(VtxUtilProbeFieldGetValue(variable), stored);
            double byPosition = 0.0;
            EXPECT_TRUE(VtxUtilDataValueGetByZoneVar(1, variable, point, &byPosition));
            EXPECT_EQ(byPosition, stored);
        }
    }
}

TEST_F(ProbeTest, ACellCentredValueAtAPointIsTheMeanOfTheCellsAround)
{
    show("polyhedra");
    const auto data = document().activeDataSet();
    ASSERT_EQ(VtxUtilDataValueGetLocation(1, 5), ValueLocation_CellCentered);
    ASSERT_TRUE(probeIndex(40, 1, 1, 1)) << lastError();
    double sum = 0.0;
    int count = 0;
    vtkNew<vtkIdList> corners;
    for (vtkIdType cell = 0; cell < grid(1)->GetNumberOfCells(); ++cell) {
        grid(1)->GetCellPoints(cell, corners);
        if (corners->IsId(39) >= 0) {
            sum += data->field(1, 5)->values->GetComponent(cell, 0);
            ++count;
        }
    }
    ASSERT_GT(count, 1);
    EXPECT_DOUBLE_EQ(VtxUtilProbeFieldGetValue(5), sum / count);
    EXPECT_FALSE(VtxUtilProbeFieldIsCellCenterValid(5));
}

TEST_F(ProbeTest, NeighborsOfElementsAreThoseThatShareTheFace)
{
    for (const char* sample : {"mixed", "polyhedra", "fe2d"}) {
        show(sample);
        const auto data = document().activeDataSet();
        for (long zone = 1; zone <= data->zoneCount(); ++zone) {
            const auto source = grid(zone);
            auto* elements = vtkUnstructuredGrid::SafeDownCast(source);
            if (!elements || data->zone(zone)->topologicalDimension() < 2) {
                continue;
            }
            const CellsByFace expected = cellsByFace(*source);
            for (long number = 0; number < source->GetNumberOfCells(); number += 7) {
                const ProbedCell cell = ProbedCell::ofElement(*elements, number);
                ASSERT_GE(cell.faces.size(), 3U);
                for (const ProbedCell::Face& face : cell.faces) {
                    const auto& sharing = expected.at({face.points.begin(), face.points.end()});
                    const long other = sharing.size() < 2 ? -1 : sharing[sharing[0] == number ? 1 : 0];
                    EXPECT_EQ(face.neighbor, other + 1) << sample << " zone " << zone << " cell " << number + 1;
                }
            }
        }
    }
}

TEST_F(ProbeTest, NeighborsOfVolumeCellsOfAnOrderedZoneShareTheFace)
{
    showBox();
    const Zone& zone = *document().activeDataSet()->zone(1);
    const auto source = grid(1);
    const CellsByFace expected = cellsByFace(*source);
    vtkNew<vtkIdList> corners;
    for (long number = 0; number < source->GetNumberOfCells(); ++number) {
        source->GetCellPoints(number, corners);
        const auto first = pointIndices(zone, corners->GetId(0));
        const ProbedCell cell = ProbedCell::ofOrdered(zone, orderedCellIndex(zone, first, IJKPlanes_Volume));
        EXPECT_EQ(cell.index.storage, number);
        ASSERT_EQ(cell.faces.size(), 6U);
        for (const ProbedCell::Face& face : cell.faces) {
            const auto& sharing = expected.at({face.points.begin(), face.points.end()});
            long neighbor = 0;
            if (sharing.size() > 1) {
                source->GetCellPoints(sharing[sharing[0] == number ? 1 : 0], corners);
                neighbor = static_cast<long>(corners->GetId(0)) + 1;
            }
            EXPECT_EQ(face.neighbor, neighbor);
        }
    }
}

TEST_F(ProbeTest, ASurfaceIsProbedNearItAndNowhereElse)
{
    showBox();
    const Zone& zone = *document().activeDataSet()->zone(1);
    const struct
    {
        Position at;
        IJKPlanes_e plane;
        std::array<long, 3> first;
    } places[] = {{{5.0, 1.5, 2.25}, IJKPlanes_I, {5, 1, 2}},
                  {{-0.01, 3.5, 0.5}, IJKPlanes_I, {0, 3, 0}},
                  {{2.25, 4.02, 1.5}, IJKPlanes_J, {2, 4, 1}},
                  {{4.5, 0.5, 3.0}, IJKPlanes_K, {4, 0, 3}}};
    for (const auto& place : places) {
        ASSERT_TRUE(probeAt(place.at)) << lastError();
        EXPECT_EQ(VtxUtilProbeFieldGetPlane(), place.plane);
        EXPECT_EQ(VtxUtilProbeFieldGetCell(), pointNumber(zone, place.first) + 1);
        EXPECT_EQ(VtxUtilProbeFieldGetCellNodeCount(), 4);
        EXPECT_EQ(VtxUtilProbeFieldGetFaceCount(), 4);
        Position found{};
        ASSERT_TRUE(VtxUtilProbeFieldGetPosition(&found[0], &found[1], &found[2]));
        for (std::size_t axis = 0; axis < 3; ++axis) {
            EXPECT_NEAR(found[axis], std::clamp(place.at[axis], 0.0, 5.0 - static_cast<double>(axis)), 1e-6);
            EXPECT_NEAR(VtxUtilProbeFieldGetValue(static_cast<long>(axis) + 1), found[axis], 1e-6);
        }
    }
    const Position inside{2.5, 2.5, 1.5};
    EXPECT_FALSE(probeAt(inside));
    EXPECT_TRUE(probeAt(inside, true)) << lastError();
    EXPECT_EQ(VtxUtilProbeFieldGetPlane(), IJKPlanes_Volume);
    EXPECT_EQ(VtxUtilProbeFieldGetCellNodeCount(), 8);
    EXPECT_EQ(VtxUtilProbeFieldGetCellCenterValue(1), 2.5);
    EXPECT_FALSE(probeAt({5.5, 1.5, 2.5})) << "too far from the surface";

    set("FieldMap/Surfaces/SurfacesToPlot", long{SurfacesToPlot_IPlanes}, 1);
    EXPECT_TRUE(probeAt({2.0, 2.5, 1.5})) << "on a plane that is drawn inside of the volume";
    EXPECT_EQ(VtxUtilProbeFieldGetCellNodeCount(), 8);

    const Position onSurface = places[0].at;
    set("FieldMap/Surfaces/SurfacesToPlot", long{SurfacesToPlot_None}, 1);
    EXPECT_FALSE(probeAt(onSurface)) << "a surface that is not drawn";
    set("FieldMap/Surfaces/SurfacesToPlot", long{SurfacesToPlot_BoundaryFaces}, 1);
    set("ActiveFieldMaps", 0L, 1);
    EXPECT_FALSE(probeAt(onSurface)) << "a zone that is not shown";
}

TEST_F(ProbeTest, AFlatPlotShowsTheFirstLayerOfAVolume)
{
    show("flow3d");
    set("PlotType", long{PlotType_Cartesian2D});
    const auto source = grid(1);
    const Zone& zone = *document().activeDataSet()->zone(1);
    std::mt19937 random(3);
    const Position at = placeIn(*source, 10, random);
    ASSERT_TRUE(probeAt({at[0], at[1], 99.0})) << lastError();
    EXPECT_EQ(VtxUtilProbeFieldGetPlane(), IJKPlanes_K);
    EXPECT_EQ(VtxUtilProbeFieldGetCell(), pointNumber(zone, {10, 0, 0}) + 1);
    EXPECT_NEAR(VtxUtilProbeFieldGetValue(VtxUtilVarGetNumByAssignment('X')), at[0], 1e-5);
}

TEST_F(ProbeTest, TheNearestPointIsTheNearestOfAllZones)
{
    show("mixed");
    std::vector<vtkSmartPointer<vtkDataSet>> grids;
    for (long zone = 1; zone <= VtxUtilDataSetGetNumZones(); ++zone) {
        grids.push_back(grid(zone));
    }
    set("ActiveFieldMaps", 0L, 1); // of volumes only the surface counts; surfaces and lines remain
    set("ActiveFieldMaps", 0L, 2);
    std::mt19937 random(5);
    std::uniform_real_distribution<double> anywhere(-4.0, 4.0);
    for (int i = 0; i < 20; ++i) {
        const Position at{anywhere(random), anywhere(random), anywhere(random)};
        const auto distanceTo = [&](const double* p) { return std::hypot(p[0] - at[0], p[1] - at[1], p[2] - at[2]); };
        ASSERT_TRUE(probeAt(at, false, true)) << lastError();
        double nearest = 1e300;
        for (std::size_t zone = 2; zone < grids.size(); ++zone) {
            for (vtkIdType point = 0; point < grids[zone]->GetNumberOfPoints(); ++point) {
                nearest = std::min(nearest, distanceTo(grids[zone]->GetPoint(point)));
            }
        }
        const auto zone = static_cast<std::size_t>(VtxUtilProbeFieldGetZone() - 1);
        EXPECT_NEAR(distanceTo(grids[zone]->GetPoint(VtxUtilProbeFieldGetPoint() - 1)), nearest, 1e-9);
    }
}

TEST_F(ProbeTest, TheReceiverIsToldAndAProbeIsDoneAgain)
{
    receivedCount = 0;
    show("fe2d");
    {
        const LockScope lock;
        ASSERT_TRUE(VtxUtilProbeInstallCallbackX(Arguments()
                                                     .with("CallbackFunction", reinterpret_cast<long>(&receiveProbe))
                                                     .with("StatusLineText", "Click")
                                                     .with("ClientData", 42L)));
    }
    EXPECT_TRUE(VtxUtilProbeIsCallbackInstalled());
    EXPECT_EQ(VtxUtilMouseGetCurrentMode(), MouseMode_Probe);
    std::mt19937 random(1);
    const Position at = placeIn(*grid(1), 20, random);
    ASSERT_TRUE(probeAt(at, false, true));
    EXPECT_EQ(receivedClientData, 42);
    EXPECT_TRUE(wasSuccessful);
    EXPECT_TRUE(wasNearest);
    ASSERT_TRUE(probeAt(at));
    EXPECT_FALSE(wasNearest);
    const double before = VtxUtilProbeFieldGetValue(3);
    VtxProbeInfoHandle info = VtxUtilProbeInfoGet();
    ASSERT_NE(info, nullptr);

    EXPECT_FALSE(probeAt({1e6, 1e6, 0.0}));
    EXPECT_FALSE(wasSuccessful);
    EXPECT_FALSE(VtxUtilProbeFieldIsVarValid(1));
    EXPECT_EQ(receivedCount, 3);
    {
        const LockScope lock;
        EXPECT_TRUE(VtxUtilProbePerform(info, nullptr)) << "without telling anybody";
        EXPECT_EQ(receivedCount, 3);
        EXPECT_TRUE(VtxUtilProbePerform(info, &receiveProbe));
        EXPECT_EQ(receivedCount, 4);
    }
    EXPECT_EQ(VtxUtilProbeFieldGetValue(3), before);
    {
        const LockScope lock;
        DataSet changed = *document().activeDataSet();
        Zone zone = *changed.zones[0];
        auto doubled = vtkSmartPointer<vtkDataArray>::Take(zone.fields[2].values->NewInstance());
        doubled->DeepCopy(zone.fields[2].values);
        for (vtkIdType i = 0; i < doubled->GetNumberOfTuples(); ++i) {
            doubled->SetComponent(i, 0, 2.0 * doubled->GetComponent(i, 0));
        }
        zone.fields[2].values = doubled;
        changed.zones[0] = std::make_shared<const Zone>(std::move(zone));
        document().replaceDataSet(std::move(changed), {StateChange_VarsAltered});
        EXPECT_TRUE(VtxUtilProbePerform(info, nullptr));
    }
    EXPECT_NEAR(VtxUtilProbeFieldGetValue(3), 2.0 * before, 1e-5 * std::abs(before));
    VtxUtilProbeInfoDealloc(&info);
    EXPECT_EQ(info, nullptr);
    const LockScope lock;
    EXPECT_TRUE(VtxUtilProbeInstallCallbackX(Arguments().with("CallbackFunction", 0L)));
    EXPECT_FALSE(VtxUtilProbeIsCallbackInstalled());
}

TEST_F(ProbeTest, VariablesAreLoadedOnDemand)
{
    show("fe2d");
    const double stored = document().activeDataSet()->field(1, 3)->values->GetComponent(0, 0);
    {
        const LockScope lock;
        DataSet changed = *document().activeDataSet();
        Zone zone = *changed.zones[0];
        zone.fields[2].loader = [values = zone.fields[2].values] { return values; };
        zone.fields[2].values = nullptr;
        changed.zones[0] = std::make_shared<const Zone>(std::move(zone));
        document().replaceDataSet(std::move(changed), {StateChange_DataAvailability});
    }
    ASSERT_TRUE(probeIndex(1, 1, 1, 1));
    EXPECT_FALSE(VtxUtilProbeFieldIsVarValid(3));
    EXPECT_FALSE(VtxUtilDataValueIsLoaded(1, 3));
    notices.clear();
    {
        const LockScope lock;
        VtxSetHandle variables = VtxUtilSetAlloc();
        VtxUtilSetAddMember(variables, 3);
        EXPECT_FALSE(VtxUtilDataValueLoad(99, variables));
        EXPECT_TRUE(VtxUtilDataValueLoad(1, variables)) << lastError();
        EXPECT_TRUE(VtxUtilDataValueLoad(1, variables)) << "once more changes nothing";
        VtxUtilSetDealloc(&variables);
    }
    EXPECT_THAT(kinds(), ElementsAre(StateChange_DataAvailability));
    ASSERT_TRUE(probeIndex(1, 1, 1, 1));
    EXPECT_EQ(VtxUtilProbeFieldGetValue(3), stored);
}

TEST_F(ProbeTest, WhatCannotBeProbedIsRefusedAndTheLastResultStays)
{
    EXPECT_FALSE(probeAt({0.0, 0.0, 0.0}));
    EXPECT_THAT(lastError(), HasSubstr("2D or 3D"));
    {
        const LockScope lock;
        EXPECT_FALSE(
            VtxUtilProbeInstallCallbackX(Arguments().with("CallbackFunction", reinterpret_cast<long>(&receiveProbe))));
        EXPECT_FALSE(VtxUtilProbePerform(nullptr, nullptr));
    }
    EXPECT_FALSE(VtxUtilProbeIsCallbackInstalled());
    show("flow3d");
    ASSERT_TRUE(probeIndex(2, 2, 2, 1));
    const long point = VtxUtilProbeFieldGetPoint();
    const auto [iMax, jMax, kMax] = document().activeDataSet()->zone(1)->dimensions();
    const struct
    {
        long i, j, k, zone;
        std::string error;
    } cases[] = {{0, 1, 1, 1, "I is 0; it must be from 1 to " + std::to_string(iMax)},
                 {1, jMax + 1, 1, 1, "J is "},
                 {1, 1, -1, 1, "K is -1"},
                 {1, 1, 1, 9, "Zone is 9"}};
    for (const auto& bad : cases) {
        EXPECT_FALSE(probeIndex(bad.i, bad.j, bad.k, bad.zone));
        EXPECT_THAT(lastError(), HasSubstr(bad.error));
        EXPECT_EQ(VtxUtilProbeFieldGetPoint(), point);
    }
    EXPECT_FALSE(probeLine('X', 1, 0.0));
    EXPECT_THAT(lastError(), HasSubstr("XY or polar"));
    const LockScope lock;
    EXPECT_FALSE(VtxUtilProbeAtFieldIndexX(Arguments().with("Zone", 1L)));
    EXPECT_THAT(lastError(), HasSubstr("\"I\""));
}

TEST_F(ProbeTest, LinesAreInterpolatedAlongAnAxis)
{
    show("lines");
    const auto data = document().activeDataSet();
    const long maps = std::get<long>(value("FrameSetup/NumLineMaps"));
    ASSERT_GT(maps, 1);
    const long xVariable = std::get<long>(value("LineMap/Assignment/XAxisVar", 1));
    const long yVariable = std::get<long>(value("LineMap/Assignment/YAxisVar", 1));
    const long zone = std::get<long>(value("LineMap/Assignment/Zone", 1));
    vtkDataArray& xs = *data->field(zone, xVariable)->values;
    vtkDataArray& ys = *data->field(zone, yVariable)->values;
    const double middle = (xs.GetComponent(4, 0) + xs.GetComponent(5, 0)) / 2.0;
    ASSERT_TRUE(probeLine('X', 1, middle)) << lastError();
    EXPECT_EQ(VtxUtilProbeLineGetMapCount(), maps);
    EXPECT_EQ(VtxUtilProbeLineGetMap(1), 1);
    double y = 0.0;
    ASSERT_TRUE(VtxUtilProbeLineGetValue(1, &y));
    EXPECT_NEAR(y, (ys.GetComponent(4, 0) + ys.GetComponent(5, 0)) / 2.0, 1e-7);

    set("ActiveLineMaps", 0L, 2);
    ASSERT_TRUE(probeLine('X', 1, xs.GetComponent(3, 0)));
    EXPECT_EQ(VtxUtilProbeLineGetMapCount(), maps - 1);
    ASSERT_TRUE(VtxUtilProbeLineGetValue(1, &y));
    EXPECT_EQ(y, ys.GetComponent(3, 0)) << "a point of the line is met exactly";

    EXPECT_FALSE(probeLine('X', 1, -1e9));
    EXPECT_FALSE(probeLine('X', 2, middle)) << "no line map uses X2";
    EXPECT_FALSE(probeLine('R', 1, middle));
    EXPECT_THAT(lastError(), HasSubstr("no axis R1"));
}

TEST_F(ProbeTest, APointOfALineIsTakenByIndexOrNearness)
{
    show("lines");
    const auto data = document().activeDataSet();
    const long yVariable = std::get<long>(value("LineMap/Assignment/YAxisVar", 2));
    const long xVariable = std::get<long>(value("LineMap/Assignment/XAxisVar", 2));
    const long zone = std::get<long>(value("LineMap/Assignment/Zone", 2));
    const double x = data->field(zone, xVariable)->values->GetComponent(6, 0);
    const double y = data->field(zone, yVariable)->values->GetComponent(6, 0);
    {
        const LockScope lock;
        ASSERT_TRUE(VtxUtilProbeAtLineIndexX(Arguments().with("I", 7L).with("LineMap", 2L))) << lastError();
        EXPECT_FALSE(VtxUtilProbeAtLineIndexX(Arguments().with("I", 1L).with("LineMap", 99L)));
        EXPECT_THAT(lastError(), HasSubstr("no line map 99"));
        EXPECT_FALSE(VtxUtilProbeAtLineIndexX(Arguments().with("I", 100000L).with("LineMap", 2L)));
        EXPECT_THAT(lastError(), HasSubstr("I is 100000"));
    }
    const auto expectPicked = [&] {
        double px = 0.0, py = 0.0;
        EXPECT_EQ(VtxUtilProbeLineGetPickedMap(), 2);
        EXPECT_EQ(VtxUtilProbeLineGetPoint(), 7);
        ASSERT_TRUE(VtxUtilProbeLineGetPickedValues(&px, &py));
        EXPECT_EQ(px, x);
        EXPECT_EQ(py, y);
    };
    expectPicked();
    {
        const LockScope lock;
        const auto placeOf = [](double px, double py) { return std::optional(std::array{px, py}); };
        EXPECT_TRUE(kernel().probes().perform(LineNearestRequest{{x + 1e-6, y + 1e-6}, placeOf}));
    }
    expectPicked();
    VtxProbeInfoHandle info = VtxUtilProbeInfoGet();
    {
        const LockScope lock;
        EXPECT_TRUE(VtxUtilProbePerform(info, nullptr)) << "again, the same point";
    }
    expectPicked();
    VtxUtilProbeInfoDealloc(&info);
}
