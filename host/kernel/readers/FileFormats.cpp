#include "kernel/readers/FileFormats.h"

#include "kernel/DataError.h"
#include "kernel/readers/EnSightFileCheck.h"
#include "kernel/readers/LegacyFileCheck.h"
#include "kernel/readers/NetcdfFileCheck.h"
#include "kernel/readers/Plot3dVariant.h"
#include "kernel/readers/ReferencedFiles.h"
#include "kernel/readers/SurfaceFileChecks.h"

#include <vtkCGNSReader.h>
#include <vtkExodusIIReader.h>
#include <vtkGenericDataObjectReader.h>
#include <vtkGenericEnSightReader.h>
#include <vtkMultiBlockPLOT3DReader.h>
#include <vtkPLYReader.h>
#include <vtkSTLReader.h>
#include <vtkXMLImageDataReader.h>
#include <vtkXMLMultiBlockDataReader.h>
#include <vtkXMLPImageDataReader.h>
#include <vtkXMLPPolyDataReader.h>
#include <vtkXMLPRectilinearGridReader.h>
#include <vtkXMLPStructuredGridReader.h>
#include <vtkXMLPUnstructuredGridReader.h>
#include <vtkXMLPolyDataReader.h>
#include <vtkXMLRectilinearGridReader.h>
#include <vtkXMLStructuredGridReader.h>
#include <vtkXMLUnstructuredGridReader.h>

#include <optional>
#include <sstream>

namespace vantrix::kernel::readers {

namespace {

using Reader = vtkSmartPointer<vtkAlgorithm>;

template<class Type>
Reader makeReader(const std::string& file)
{
    const auto reader = vtkSmartPointer<Type>::New();
    reader->SetFileName(file.c_str());
    return reader;
}

Reader makeCgnsReader(const std::string& file)
{
    const auto reader = vtkSmartPointer<vtkCGNSReader>::New();
    if (!reader->CanReadFile(file.c_str())) {
        throw DataError("it is not the CGNS database that its suffix promises, or it ends early");
    }
    reader->SetFileName(file.c_str());
    reader->UpdateInformation();
    reader->EnableAllBases();
    reader->EnableAllPointArrays();
    reader->EnableAllCellArrays();
    return reader;
}

Reader makeLegacyReader(const std::string& file)
{
    expectWholeLegacyFile(file);
    return makeReader<vtkGenericDataObjectReader>(file);
}

Reader makeStlReader(const std::string& file)
{
    expectWholeStl(file);
    return makeReader<vtkSTLReader>(file);
}

Reader makePlyReader(const std::string& file)
{
    const std::string content = expectWholePly(file);
    const auto reader = vtkSmartPointer<vtkPLYReader>::New();
    reader->SetFileName(file.c_str());
    reader->ReadFromInputStringOn();
    reader->SetInputString(content);
    return reader;
}

template<class Type>
Reader makeReaderOfParts(const std::string& file)
{
    expectReferencedFiles(file);
    return makeReader<Type>(file);
}

Reader makeEnSightReader(const std::string& file)
{
    expectWholeEnSight(file);
    const auto reader = vtkSmartPointer<vtkGenericEnSightReader>::New();
    reader->SetCaseFileName(file.c_str());
    reader->ReadAllVariablesOn();
    return reader;
}

Reader makeExodusReader(const std::string& file)
{
    expectWholeNetcdf(file);
    const auto reader = vtkSmartPointer<vtkExodusIIReader>::New();
    if (!reader->CanReadFile(file.c_str())) {
        throw DataError("it is not the Exodus database that its suffix promises, or it ends early");
    }
    reader->SetFileName(file.c_str());
    reader->SetApplyDisplacements(0);
    reader->UpdateInformation();
    for (const int type : {vtkExodusIIReader::NODAL, vtkExodusIIReader::ELEM_BLOCK}) {
        for (int i = 0; i < reader->GetNumberOfObjectArrays(type); ++i) {
            reader->SetObjectArrayStatus(type, reader->GetObjectArrayName(type, i), 1);
        }
    }
    return reader;
}

const FileFormat formats[] = {
    {"VTK XML image data", "vti", makeReader<vtkXMLImageDataReader>},
    {"VTK XML rectilinear grid", "vtr", makeReader<vtkXMLRectilinearGridReader>},
    {"VTK XML structured grid", "vts", makeReader<vtkXMLStructuredGridReader>},
    {"VTK XML polygonal data", "vtp", makeReader<vtkXMLPolyDataReader>},
    {"VTK XML unstructured grid", "vtu", makeReader<vtkXMLUnstructuredGridReader>},
    {"VTK XML multi-block", "vtm", makeReaderOfParts<vtkXMLMultiBlockDataReader>},
    {"parallel VTK XML image data", "pvti", makeReaderOfParts<vtkXMLPImageDataReader>},
    {"parallel VTK XML rectilinear grid", "pvtr", makeReaderOfParts<vtkXMLPRectilinearGridReader>},
    {"parallel VTK XML structured grid", "pvts", makeReaderOfParts<vtkXMLPStructuredGridReader>},
    {"parallel VTK XML polygonal data", "pvtp", makeReaderOfParts<vtkXMLPPolyDataReader>},
    {"parallel VTK XML unstructured grid", "pvtu", makeReaderOfParts<vtkXMLPUnstructuredGridReader>},
    {"legacy VTK", "vtk", makeLegacyReader},
    {"CGNS", "cgns", makeCgnsReader},
    {"EnSight case", "case encas", makeEnSightReader},
    {"Exodus", "e exo ex2 exii", makeExodusReader},
    {"STL", "stl", makeStlReader},
    {"PLY", "ply", makePlyReader},
};

constexpr const char* plot3dSuffixes = "bin xyz x g grd p3d q";

bool contains(const char* suffixes, const std::string& suffix)
{
    std::istringstream words(suffixes);
    std::string word;
    while (words >> word) {
        if (word == suffix) {
            return true;
        }
    }
    return false;
}

} // namespace

bool FileFormat::hasSuffix(const std::string& suffix) const
{
    return contains(suffixes, suffix);
}

const FileFormat* formatForSuffix(const std::string& suffix)
{
    for (const FileFormat& format : formats) {
        if (format.hasSuffix(suffix)) {
            return &format;
        }
    }
    return nullptr;
}

bool isPlot3dSuffix(const std::string& suffix)
{
    return contains(plot3dSuffixes, suffix);
}

std::string knownSuffixes()
{
    std::string all;
    for (const FileFormat& format : formats) {
        all += format.suffixes + std::string(" ");
    }
    return all + "(" + plot3dSuffixes + " of PLOT3D)";
}

vtkSmartPointer<vtkAlgorithm> makePlot3dReader(const std::string& grid, const std::string& solution)
{
    const std::optional<Plot3dVariant> variant = Plot3dVariant::ofGrid(grid);
    if (!variant) {
        throw DataError("\"" + grid +
                        "\" is not a whole grid in any variant; a solution is opened together with its grid");
    }
    const auto reader = vtkSmartPointer<vtkMultiBlockPLOT3DReader>::New();
    reader->SetXYZFileName(grid.c_str());
    if (!solution.empty()) {
        if (!variant->fitsSolution(grid, solution)) {
            throw DataError("\"" + solution + "\" is not a whole solution on the grid \"" + grid + "\"");
        }
        reader->SetQFileName(solution.c_str());
    }
    reader->AutoDetectFormatOff();
    reader->SetBinaryFile(!variant->isText);
    reader->SetMultiGrid(variant->isMultiGrid);
    reader->SetHasByteCount(variant->hasByteCounts);
    reader->SetIBlanking(variant->hasBlanking);
    reader->SetTwoDimensionalGeometry(variant->isTwoDimensional);
    reader->SetDoublePrecision(variant->isDoublePrecision);
    reader->SetByteOrder(variant->isBigEndian ? 0 : 1);
    return reader;
}

} // namespace vantrix::kernel::readers
