// The largest real file opened as a data set beside VTK's reader alone. Left out where the file is not there.

#include "kernel/DataReader.h"

#include <benchmark/benchmark.h>

#include <vtkCGNSReader.h>
#include <vtkMultiBlockDataSet.h>
#include <vtkNew.h>

#include <filesystem>

namespace {

char const* const file = VX_SHARED_DATA "/multi.cgns";

bool isThere(benchmark::State& state)
{
    if (!std::filesystem::exists(file)) {
        state.SkipWithError("the file is not there");
        return false;
    }
    return true;
}

void openFile(benchmark::State& state)
{
    if (!isThere(state)) {
        return;
    }
    for (auto _ : state) {
        vantrix::kernel::DataSet dataSet(1);
        vantrix::kernel::DataReader::read({file}, dataSet, [](double) { return true; });
        benchmark::DoNotOptimize(dataSet.zoneCount());
    }
}
BENCHMARK(openFile)->Name("open_file/ours")->Unit(benchmark::kMillisecond);

void readerAlone(benchmark::State& state)
{
    if (!isThere(state)) {
        return;
    }
    for (auto _ : state) {
        vtkNew<vtkCGNSReader> reader;
        reader->SetFileName(file);
        reader->UpdateInformation();
        reader->EnableAllBases();
        reader->EnableAllPointArrays();
        reader->EnableAllCellArrays();
        reader->Update();
        benchmark::DoNotOptimize(reader->GetOutput()->GetNumberOfPoints());
    }
}
BENCHMARK(readerAlone)->Name("open_file/bound")->Unit(benchmark::kMillisecond);

} // namespace
