#include "view/IsoLines.h"

#include "view/ZoneSurface.h"

#include <vtkCellDataToPointData.h>
#include <vtkContourFilter.h>
#include <vtkPointData.h>
#include <vtkPolyData.h>

namespace vantrix::view {

vtkSmartPointer<vtkPolyData> isoLines(vtkPolyData* surface, bool byCell, const std::vector<double>& values)
{
    vtkSmartPointer<vtkPolyData> source = surface;
    if (byCell) {
        const auto average = vtkSmartPointer<vtkCellDataToPointData>::New();
        average->SetInputData(source);
        average->Update();
        source = average->GetPolyDataOutput();
        source->GetPointData()->SetActiveScalars(ZoneSurface::valuesName);
    }
    const auto filter = vtkSmartPointer<vtkContourFilter>::New();
    filter->SetInputData(source);
    for (std::size_t i = 0; i < values.size(); ++i) {
        filter->SetValue(static_cast<int>(i), values[i]);
    }
    filter->Update();
    return filter->GetOutput();
}

} // namespace vantrix::view
