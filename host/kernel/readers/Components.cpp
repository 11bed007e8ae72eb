#include "kernel/readers/Components.h"

#include "kernel/FieldValues.h"
#include "kernel/Parallel.h"

#include <vtkAOSDataArrayTemplate.h>
#include <vtkBitArray.h>
#include <vtkDoubleArray.h>
#include <vtkFloatArray.h>
#include <vtkIntArray.h>
#include <vtkShortArray.h>
#include <vtkUnsignedCharArray.h>

#include <limits>

namespace vantrix::kernel::readers {

namespace {

FieldDataType_e typeFor(vtkDataArray& array)
{
    switch (array.GetDataType()) {
    case VTK_FLOAT:
    case VTK_DOUBLE:
    case VTK_INT:
    case VTK_SHORT:
    case VTK_UNSIGNED_CHAR:
    case VTK_BIT:
        return valueType(array);
    case VTK_CHAR:
    case VTK_SIGNED_CHAR:
        return FieldDataType_Int16;
    case VTK_UNSIGNED_SHORT:
        return FieldDataType_Int32;
    default:
        break;
    }
    for (int component = 0; component < array.GetNumberOfComponents(); ++component) {
        const double* range = array.GetRange(component);
        if (range[0] < std::numeric_limits<int>::min() || range[1] > std::numeric_limits<int>::max()) {
            return FieldDataType_Double;
        }
    }
    return FieldDataType_Int32;
}

/* Interleaved values into one array a component, in one pass over them. */
template<class Array, class ValueAt>
void deal(std::vector<NamedValues>& targets, long count, const ValueAt& valueAt)
{
    using Value = typename Array::ValueType;
    std::vector<Value*> outputs;
    outputs.reserve(targets.size());
    for (const NamedValues& target : targets) {
        outputs.push_back(Array::SafeDownCast(target.values)->GetPointer(0));
    }
    parallelFor(count, [&](long begin, long end) {
        const std::size_t components = outputs.size();
        for (long i = begin; i < end; ++i) {
            for (std::size_t c = 0; c < components; ++c) {
                outputs[c][i] = static_cast<Value>(valueAt(i, c));
            }
        }
    });
}

template<class Array>
void deal(std::vector<NamedValues>& targets, vtkDataArray& source)
{
    const auto components = static_cast<long>(targets.size());
    if (auto* same = vtkAOSDataArrayTemplate<typename Array::ValueType>::FastDownCast(&source)) {
        deal<Array>(targets, source.GetNumberOfTuples(),
                    [values = same->GetPointer(0), components](long i, std::size_t c) {
                        return values[i * components + static_cast<long>(c)];
                    });
        return;
    }
    deal<Array>(targets, source.GetNumberOfTuples(),
                [&source](long i, std::size_t c) { return source.GetComponent(i, static_cast<int>(c)); });
}

std::string componentSuffix(vtkDataArray& array, int component)
{
    static constexpr const char* vector[] = {"X", "Y", "Z"};
    static constexpr const char* symmetric[] = {"XX", "YY", "ZZ", "XY", "YZ", "XZ"};
    static constexpr const char* full[] = {"XX", "XY", "XZ", "YX", "YY", "YZ", "ZX", "ZY", "ZZ"};
    if (const char* name = array.GetComponentName(component); name && *name) {
        return name;
    }
    switch (array.GetNumberOfComponents()) {
    case 2:
    case 3:
        return vector[component];
    case 6:
        return symmetric[component];
    case 9:
        return full[component];
    default:
        return std::to_string(component + 1);
    }
}

} // namespace

std::vector<NamedValues> splitComponents(vtkDataArray& array, const std::string& name)
{
    const FieldDataType_e type = typeFor(array);
    const int components = array.GetNumberOfComponents();
    if (components == 1 && array.HasStandardMemoryLayout() &&
        (array.GetDataType() == VTK_DOUBLE || type != FieldDataType_Double) && valueType(array) == type) {
        return {{name, &array}};
    }
    std::vector<NamedValues> result;
    for (int component = 0; component < components; ++component) {
        const std::string full = components == 1 ? name : name + " " + componentSuffix(array, component);
        result.push_back({full, makeValues(type, array.GetNumberOfTuples())});
    }
    switch (type) {
    case FieldDataType_Float:
        deal<vtkFloatArray>(result, array);
        break;
    case FieldDataType_Double:
        deal<vtkDoubleArray>(result, array);
        break;
    case FieldDataType_Int32:
        deal<vtkIntArray>(result, array);
        break;
    case FieldDataType_Int16:
        deal<vtkShortArray>(result, array);
        break;
    case FieldDataType_Byte:
        deal<vtkUnsignedCharArray>(result, array);
        break;
    case FieldDataType_Bit: /* eight share a byte, which threads cannot */
        for (int component = 0; component < components; ++component) {
            result[static_cast<std::size_t>(component)].values->CopyComponent(0, &array, component);
        }
        break;
    }
    return result;
}

} // namespace vantrix::kernel::readers
