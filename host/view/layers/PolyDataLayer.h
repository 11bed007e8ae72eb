#pragma once

#include "view/layers/FieldLayer.h"

class vtkPolyData;
class vtkPolyDataMapper;

namespace vantrix::view {

/* A layer of polygons or lines. */
class PolyDataLayer : public FieldLayer
{
public:
    PolyDataLayer(vtkRenderer* renderer, double order);

    void place(const Placement& placement) override;

protected:
    void setGeometry(vtkPolyData* geometry);

private:
    void setInput();

    PolyDataLayer(vtkRenderer* renderer, vtkSmartPointer<vtkPolyDataMapper> mapper, double order);

    vtkSmartPointer<vtkPolyDataMapper> m_mapper;
    vtkSmartPointer<vtkPolyData> m_geometry;
    bool m_isMirrored = false; /* by reversed axes */
};

} // namespace vantrix::view
