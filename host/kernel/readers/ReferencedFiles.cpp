#include "kernel/readers/ReferencedFiles.h"

#include "kernel/DataError.h"

#include <vtkSmartPointer.h>
#include <vtkXMLDataElement.h>
#include <vtkXMLUtilities.h>

#include <filesystem>
#include <fstream>

namespace vantrix::kernel::readers {

namespace {

void expectFilesBelow(vtkXMLDataElement& element, const std::filesystem::path& folder)
{
    for (const char* attribute : {"file", "Source"}) {
        if (const char* name = element.GetAttribute(attribute); name && *name) {
            const std::filesystem::path path = folder / name;
            if (!std::filesystem::is_regular_file(path) || !std::ifstream(path)) {
                throw DataError("it names \"" + path.string() + "\", which is no file that can be read");
            }
        }
    }
    for (int i = 0; i < element.GetNumberOfNestedElements(); ++i) {
        expectFilesBelow(*element.GetNestedElement(i), folder);
    }
}

} // namespace

void expectReferencedFiles(const std::string& file)
{
    const auto root = vtkSmartPointer<vtkXMLDataElement>::Take(vtkXMLUtilities::ReadElementFromFile(file.c_str()));
    if (!root) {
        throw DataError("it is no XML, or it ends early");
    }
    expectFilesBelow(*root, std::filesystem::path(file).parent_path());
}

} // namespace vantrix::kernel::readers
