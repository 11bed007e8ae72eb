#include "kernel/readers/ArraySelection.h"

#include <vtkCGNSReader.h>
#include <vtkDataArraySelection.h>
#include <vtkExodusIIReader.h>
#include <vtkXMLCompositeDataReader.h>
#include <vtkXMLReader.h>

namespace vantrix::kernel::readers {

namespace {

/* "Velocity X" and "Velocity (cell)" come from "Velocity", "Velocity X" from an array of that name, too. */
bool mayGive(const std::string& array, const std::string& variable)
{
    return variable == array || variable.starts_with(array + " ");
}

void select(vtkDataArraySelection& arrays, const std::string& variable)
{
    for (int i = 0; i < arrays.GetNumberOfArrays(); ++i) {
        const char* name = arrays.GetArrayName(i);
        if (!mayGive(name, variable)) {
            arrays.DisableArray(name);
        }
    }
}

} // namespace

void selectArraysOf(vtkAlgorithm& reader, const std::string& variable)
{
    reader.UpdateInformation();
    /* Which arrays a file of several blocks has is known only once the blocks are read. */
    auto* xml = vtkXMLReader::SafeDownCast(&reader);
    if (xml && !vtkXMLCompositeDataReader::SafeDownCast(&reader)) {
        select(*xml->GetPointDataArraySelection(), variable);
        select(*xml->GetCellDataArraySelection(), variable);
    } else if (auto* cgns = vtkCGNSReader::SafeDownCast(&reader)) {
        for (int i = 0; i < cgns->GetNumberOfPointArrays(); ++i) {
            cgns->SetPointArrayStatus(cgns->GetPointArrayName(i), mayGive(cgns->GetPointArrayName(i), variable));
        }
        for (int i = 0; i < cgns->GetNumberOfCellArrays(); ++i) {
            cgns->SetCellArrayStatus(cgns->GetCellArrayName(i), mayGive(cgns->GetCellArrayName(i), variable));
        }
    } else if (auto* exodus = vtkExodusIIReader::SafeDownCast(&reader)) {
        for (const int type : {vtkExodusIIReader::NODAL, vtkExodusIIReader::ELEM_BLOCK}) {
            for (int i = 0; i < exodus->GetNumberOfObjectArrays(type); ++i) {
                const char* name = exodus->GetObjectArrayName(type, i);
                exodus->SetObjectArrayStatus(type, name, mayGive(name, variable));
            }
        }
    }
}

} // namespace vantrix::kernel::readers
