#include "kernel/SampleData.h"

#include "kernel/DataError.h"
#include "kernel/samples/Samples.h"

#include <iterator>

namespace vantrix::kernel {

namespace {

struct Sample
{
    const char* name;
    const char* title;
    void (*make)(DataSet&);
};

constexpr Sample samplesByName[] = {
    {"flow3d", "Flow behind a tapered tower", samples::makeFlow},
    {"fe2d", "Stretched plate with a hole", samples::makePlate},
    {"lines", "Damped oscillations", samples::makeOscillations},
    {"polar", "Radiation of rows of dipoles", samples::makeAntennas},
    {"polyhedra", "Truncated octahedra", samples::makePolyhedra},
    {"mixed", "Cells of several kinds", samples::makeMixedCells},
};

} // namespace

std::vector<std::string> SampleData::names()
{
    std::vector<std::string> result;
    for (const Sample& sample : samplesByName) {
        result.emplace_back(sample.name);
    }
    return result;
}

void SampleData::make(const std::string& name, DataSet& dataSet)
{
    std::string known;
    for (const Sample& sample : samplesByName) {
        if (name == sample.name) {
            dataSet.title = sample.title;
            sample.make(dataSet);
            return;
        }
        known += (known.empty() ? "" : ", ") + std::string(sample.name);
    }
    throw DataError("There is no built-in data set \"" + name + "\". There are: " + known + ".");
}

} // namespace vantrix::kernel
