#include "view/layers/PolyDataLayer.h"

#include <vtkPolyData.h>
#include <vtkPolyDataMapper.h>

namespace vantrix::view {

PolyDataLayer::PolyDataLayer(vtkRenderer* renderer, double order)
    : PolyDataLayer(renderer, vtkSmartPointer<vtkPolyDataMapper>::New(), order)
{}

PolyDataLayer::PolyDataLayer(vtkRenderer* renderer, vtkSmartPointer<vtkPolyDataMapper> mapper, double order)
    : FieldLayer(renderer, mapper, order)
    , m_mapper(std::move(mapper))
{}

void PolyDataLayer::setGeometry(vtkPolyData* geometry)
{
    if (geometry != m_mapper->GetInput()) {
        m_mapper->SetInputData(geometry);
        countGeometry();
    }
}

} // namespace vantrix::view
