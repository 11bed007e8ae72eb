// Probing a zone of ten million points at a hundred thousand places, beside VTK's filter. The
// search structures of both are built before; building ours is measured by itself.

#include "api/VtxUtil.h"
#include "kernel/Document.h"
#include "kernel/FieldValues.h"
#include "kernel/Kernel.h"
#include "kernel/PlotDefaults.h"
#include "kernel/ProbeService.h"
#include "kernel/ZoneGrid.h"

#include <benchmark/benchmark.h>

#include <vtkFloatArray.h>
#include <vtkNew.h>
#include <vtkPolyData.h>
#include <vtkProbeFilter.h>

#include <cmath>
#include <random>

namespace {

using namespace vantrix::kernel;

constexpr long pointsAlong = 216; /* 216^3 is ten million */
constexpr long placeCount = 100'000;

DataSet cube()
{
    DataSet dataSet = Kernel::instance().document().newDataSet();
    dataSet.variables = {{"X", true}, {"Y", true}, {"Z", true}, {"Value", true}};
    Zone zone = Zone::ordered("Cube", pointsAlong, pointsAlong, pointsAlong);
    for (std::size_t variable = 0; variable < 4; ++variable) {
        const vtkSmartPointer<vtkDataArray> values = makeValues(FieldDataType_Float, zone.pointCount());
        float* target = vtkFloatArray::FastDownCast(values)->GetPointer(0);
        for (long k = 0; k < pointsAlong; ++k) {
            for (long j = 0; j < pointsAlong; ++j) {
                for (long i = 0; i < pointsAlong; ++i) {
                    const double x[] = {double(i), double(j), double(k) + 0.2 * std::sin(0.3 * double(i))};
                    *target++ = static_cast<float>(variable < 3 ? x[variable] : x[0] * x[1] - x[2]);
                }
            }
        }
        zone.fields.push_back({values, ValueLocation_Nodal, {}});
    }
    dataSet.addZone(std::move(zone));
    return dataSet;
}

/* Shows the cube in a 3D plot, once. */
const std::shared_ptr<const DataSet>& shownCube()
{
    static const std::shared_ptr<const DataSet> shown = [] {
        auto data = std::make_shared<const DataSet>(cube());
        VtxUtilLockStart(false);
        Frame& frame = *Kernel::instance().document().activeFrame();
        Kernel::instance().document().attachDataSet(frame, data);
        PlotDefaults::apply(frame);
        VtxUtilFrameSetPlotType(PlotType_Cartesian3D);
        VtxUtilLockFinish();
        return data;
    }();
    return shown;
}

const std::vector<Position>& places()
{
    static const std::vector<Position> all = [] {
        std::mt19937 random(1);
        std::uniform_real_distribution<double> inside(1.0, pointsAlong - 2.0);
        std::vector<Position> result(placeCount);
        for (Position& place : result) {
            place = {inside(random), inside(random), inside(random)};
        }
        return result;
    }();
    return all;
}

long probeAll()
{
    double values[4];
    long found = 0;
    for (const auto& [x, y, z] : places()) {
        found += VtxUtilProbeAtPosition(x, y, z, nullptr, nullptr, nullptr, nullptr, nullptr, false, values, nullptr,
                                        true, false, false);
    }
    return found;
}

void probe(benchmark::State& state)
{
    shownCube();
    if (probeAll() != placeCount) {
        state.SkipWithError("places were not found");
    }
    for (auto _ : state) {
        benchmark::DoNotOptimize(probeAll());
    }
}
BENCHMARK(probe)->Name("probe/ours")->Unit(benchmark::kMillisecond);

void probeFilter(benchmark::State& state)
{
    const vtkSmartPointer<vtkDataSet> grid = zoneGrid(*shownCube(), 1, {1, 2, 3});
    vtkNew<vtkPoints> points;
    points->SetDataTypeToDouble();
    for (const Position& place : places()) {
        points->InsertNextPoint(place.data());
    }
    vtkNew<vtkPolyData> input;
    input->SetPoints(points);
    vtkNew<vtkProbeFilter> filter;
    filter->SetInputData(input);
    filter->SetSourceData(grid);
    filter->Update();
    for (auto _ : state) {
        points->Modified();
        input->Modified();
        filter->Update();
        benchmark::DoNotOptimize(filter->GetOutput());
    }
}
BENCHMARK(probeFilter)->Name("probe/bound")->Unit(benchmark::kMillisecond);

void buildLocator(benchmark::State& state)
{
    const vtkSmartPointer<vtkDataSet> grid = zoneGrid(*shownCube(), 1, {1, 2, 3});
    for (auto _ : state) {
        ProbeMesh mesh(*shownCube()->zone(1), *grid, ProbeMesh::Part::Cells);
        MeshPlace place;
        benchmark::DoNotOptimize(mesh.findInside({5.5, 5.5, 5.5}, place));
    }
}
BENCHMARK(buildLocator)->Name("probe_locator/ours")->Unit(benchmark::kMillisecond)->Iterations(1);

} // namespace
