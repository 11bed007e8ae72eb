#include "kernel/FieldValues.h"

#include "kernel/DataError.h"

#include <vtkBitArray.h>
#include <vtkDoubleArray.h>
#include <vtkFloatArray.h>
#include <vtkIntArray.h>
#include <vtkShortArray.h>
#include <vtkUnsignedCharArray.h>

#include <algorithm>
#include <fstream>
#include <limits>
#include <new>
#include <unistd.h>

namespace vantrix::kernel {

namespace {

vtkSmartPointer<vtkDataArray> newArray(FieldDataType_e type)
{
    switch (type) {
    case FieldDataType_Float:
        return vtkSmartPointer<vtkFloatArray>::New();
    case FieldDataType_Double:
        return vtkSmartPointer<vtkDoubleArray>::New();
    case FieldDataType_Int32:
        return vtkSmartPointer<vtkIntArray>::New();
    case FieldDataType_Int16:
        return vtkSmartPointer<vtkShortArray>::New();
    case FieldDataType_Byte:
        return vtkSmartPointer<vtkUnsignedCharArray>::New();
    case FieldDataType_Bit:
        return vtkSmartPointer<vtkBitArray>::New();
    }
    throw DataError("The data type " + std::to_string(static_cast<int>(type)) +
                    " is unknown. It is a number from 1 (single precision) to 6 (bit).");
}

} // namespace

vtkSmartPointer<vtkDataArray> makeValues(FieldDataType_e type, long count)
{
    vtkSmartPointer<vtkDataArray> values = newArray(type);
    const double bytes = static_cast<double>(count) * static_cast<double>(valueSize(type));
    if (bytes <= availableMemory()) {
        try {
            values->SetNumberOfTuples(count);
            return values;
        } catch (const std::bad_alloc&) {
            /* reported below */
        }
    }
    throw DataError("There is not enough memory for " + std::to_string(count) + " values.");
}

vtkSmartPointer<vtkDataArray> makeZeros(FieldDataType_e type, long count)
{
    vtkSmartPointer<vtkDataArray> values = makeValues(type, count);
    values->Fill(0.0);
    return values;
}

long valueSize(FieldDataType_e type)
{
    switch (type) {
    case FieldDataType_Double:
        return 8;
    case FieldDataType_Float:
    case FieldDataType_Int32:
        return 4;
    case FieldDataType_Int16:
        return 2;
    case FieldDataType_Byte:
    case FieldDataType_Bit:
        break;
    }
    return 1;
}

FieldDataType_e valueType(const vtkDataArray& values)
{
    switch (const_cast<vtkDataArray&>(values).GetDataType()) {
    case VTK_FLOAT:
        return FieldDataType_Float;
    case VTK_INT:
        return FieldDataType_Int32;
    case VTK_SHORT:
        return FieldDataType_Int16;
    case VTK_UNSIGNED_CHAR:
        return FieldDataType_Byte;
    case VTK_BIT:
        return FieldDataType_Bit;
    default:
        return FieldDataType_Double;
    }
}

std::optional<ValueRange> valueRange(vtkDataArray& values)
{
    double range[2];
    values.GetRange(range, 0);
    if (values.GetNumberOfTuples() == 0 || range[0] > range[1]) {
        return std::nullopt;
    }
    return ValueRange{range[0], range[1]};
}

std::optional<ValueRange> variableRange(const DataSet& dataSet, long variable)
{
    std::optional<ValueRange> all;
    for (long zone = 1; zone <= dataSet.zoneCount(); ++zone) {
        const FieldArray* field = dataSet.field(zone, variable);
        if (!dataSet.zoneEnabled[static_cast<std::size_t>(zone - 1)] || !field || !field->isLoaded()) {
            continue;
        }
        const std::optional<ValueRange> range = valueRange(*field->values);
        if (range && all) {
            all = ValueRange{std::min(all->minimum, range->minimum), std::max(all->maximum, range->maximum)};
        } else if (range) {
            all = range;
        }
    }
    return all;
}

double availableMemory()
{
    std::ifstream meminfo("/proc/meminfo");
    std::string name;
    double kibibytes = 0.0;
    while (meminfo >> name >> kibibytes) {
        if (name == "MemAvailable:") {
            return kibibytes * 1024.0;
        }
        meminfo.ignore(std::numeric_limits<std::streamsize>::max(), '\n');
    }
    return static_cast<double>(sysconf(_SC_PHYS_PAGES)) * static_cast<double>(sysconf(_SC_PAGESIZE));
}

} // namespace vantrix::kernel
