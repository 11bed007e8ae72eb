#pragma once

#include <vtkAlgorithm.h>
#include <vtkSmartPointer.h>

#include <functional>
#include <string>

namespace vantrix::kernel::readers {

/* A format that VTK reads from one file. */
struct FileFormat
{
    const char* name;     /* to tell people: "a CGNS file" */
    const char* suffixes; /* lower case, blank between them */
    vtkSmartPointer<vtkAlgorithm> (*makeReader)(const std::string& file);

    bool hasSuffix(const std::string& suffix) const;
};

/* Null for a suffix that none has. */
const FileFormat* formatForSuffix(const std::string& suffix);

/* Suffixes that PLOT3D files commonly have. */
bool isPlot3dSuffix(const std::string& suffix);

/* All suffixes, for people: "vti, vtr ...". */
std::string knownSuffixes();

/* A reader of a PLOT3D grid and, unless it is empty, a solution on it. Throws DataError when they are none. */
vtkSmartPointer<vtkAlgorithm> makePlot3dReader(const std::string& grid, const std::string& solution);

} // namespace vantrix::kernel::readers
