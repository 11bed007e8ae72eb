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

protected:
    void setGeometry(vtkPolyData* geometry);

private:
    PolyDataLayer(vtkRenderer* renderer, vtkSmartPointer<vtkPolyDataMapper> mapper, double order);

    vtkSmartPointer<vtkPolyDataMapper> m_mapper;
};

} // namespace vantrix::view
