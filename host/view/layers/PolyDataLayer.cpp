#include "view/layers/PolyDataLayer.h"

#include <vtkNew.h>
#include <vtkPolyData.h>
#include <vtkPolyDataMapper.h>
#include <vtkReverseSense.h>

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
    if (geometry != m_geometry) {
        m_geometry = geometry;
        setInput();
        countGeometry();
    }
}

void PolyDataLayer::place(const Placement& placement)
{
    FieldLayer::place(placement);
    const bool isMirrored = placement.scale[0] * placement.scale[1] * placement.scale[2] < 0.0;
    if (isMirrored != m_isMirrored) {
        m_isMirrored = isMirrored;
        setInput();
    }
}

/* What light falls on is told from the order of a polygon's corners, which a mirror image would turn round. */
void PolyDataLayer::setInput()
{
    if (!m_isMirrored || !m_geometry || m_geometry->GetNumberOfPolys() == 0) {
        m_mapper->SetInputData(m_geometry);
        return;
    }
    vtkNew<vtkReverseSense> turned;
    turned->SetInputData(m_geometry);
    turned->Update();
    m_mapper->SetInputData(turned->GetOutput());
}

} // namespace vantrix::view
