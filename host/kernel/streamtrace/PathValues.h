#pragma once

#include "kernel/streamtrace/StreamTracing.h"

#include <map>

namespace vantrix::kernel {

/* The values of one variable along ways of streamtraces, interpolated in the cells that they pass. */
class PathValues
{
public:
    /* Both must outlive it. */
    PathValues(const DataSet& dataSet, long variable)
        : m_dataSet(dataSet)
        , m_variable(variable)
    {}

    /* One a point; NaN where the zone does not have the variable. Throws DataError when it cannot be loaded. */
    std::vector<double> along(const StreamtracePath& path, const VelocityField& field);

private:
    const DataSet& m_dataSet;
    long m_variable;
    std::map<const VelocityField::Block*, vtkSmartPointer<vtkDataArray>> m_values; /* at the points of the blocks */
};

} // namespace vantrix::kernel
