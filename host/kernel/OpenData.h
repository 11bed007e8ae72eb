#pragma once

#include "kernel/DataSet.h"
#include "kernel/macro/MacroCommand.h"

#include <string>
#include <vector>

namespace vantrix::kernel {

class Kernel;

/*
 * Shows other data in the active frame: attaches it and gives the plot its defaults, as one step of undo. On failure a
 * DataError is thrown, or ActionCancelled when the user stopped it, and nothing has changed.
 */
class OpenData
{
public:
    explicit OpenData(Kernel& kernel)
        : m_kernel(kernel)
    {}

    /* See DataReader; the front end is told of the progress. The step is named "Open". */
    void files(const std::vector<std::string>& names);

    /* See SampleData. The step is named "Open Sample". */
    void sample(const std::string& name);

private:
    void show(DataSet dataSet, const char* stepName, MacroCommand command);

    Kernel& m_kernel;
};

} // namespace vantrix::kernel
