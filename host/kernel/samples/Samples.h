#pragma once

#include "kernel/DataSet.h"
#include "kernel/FieldValues.h"
#include "kernel/Parallel.h"

#include <vtkCellArray.h>
#include <vtkFloatArray.h>

#include <array>
#include <string>
#include <vector>

/* What makes the built-in data sets; see SampleData.h. */
namespace vantrix::kernel::samples {

void makeFlow(DataSet& dataSet);
void makePlate(DataSet& dataSet);
void makeOscillations(DataSet& dataSet);
void makeAntennas(DataSet& dataSet);
void makePolyhedra(DataSet& dataSet);
void makeMixedCells(DataSet& dataSet);

inline void setVariables(DataSet& dataSet, const std::vector<std::string>& names)
{
    dataSet.variables.clear();
    for (const std::string& name : names) {
        dataSet.variables.push_back({name, true});
    }
}

/* Gives a zone N nodal variables whose values at a point `valuesAt(index)` returns as std::array<double, N>. */
template<std::size_t N, typename ValuesAt>
void fillNodal(Zone& zone, const ValuesAt& valuesAt)
{
    const long count = zone.pointCount();
    std::array<float*, N> targets{};
    for (std::size_t v = 0; v < N; ++v) {
        const vtkSmartPointer<vtkDataArray> values = makeValues(FieldDataType_Float, count);
        targets[v] = vtkFloatArray::FastDownCast(values)->GetPointer(0);
        zone.fields.push_back({values, ValueLocation_Nodal, {}});
    }
    parallelFor(count, [&](long begin, long end) {
        for (long i = begin; i < end; ++i) {
            const std::array<double, N> values = valuesAt(static_cast<long>(i));
            for (std::size_t v = 0; v < N; ++v) {
                targets[v][i] = static_cast<float>(values[v]);
            }
        }
    });
}

/* A cell-centred variable. */
template<typename ValueAt>
void fillCells(Zone& zone, const ValueAt& valueAt)
{
    const long count = zone.cellCount();
    const vtkSmartPointer<vtkDataArray> values = makeValues(FieldDataType_Float, count);
    for (long cell = 0; cell < count; ++cell) {
        values->SetComponent(cell, 0, valueAt(cell));
    }
    zone.fields.push_back({values, ValueLocation_CellCentered, {}});
}

inline void addCell(vtkCellArray& cells, const std::vector<vtkIdType>& points)
{
    cells.InsertNextCell(static_cast<vtkIdType>(points.size()), points.data());
}

} // namespace vantrix::kernel::samples
