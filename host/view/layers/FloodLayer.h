#pragma once

#include "view/layers/PolyDataLayer.h"

#include <vtkDataArray.h>

namespace vantrix::view {

class ZoneSurface;

/* The surface in the colours of a contour group. */
class FloodLayer : public PolyDataLayer
{
public:
    explicit FloodLayer(vtkRenderer* renderer)
        : PolyDataLayer(renderer, 1.0)
    {
        stepBack();
    }

    /* Null values draw nothing. */
    void update(ZoneSurface& surface, const ZoneStyle& style, const ContourValues* values, const LayerContext& context);

    /* Whether it draws anything. */
    using FieldLayer::isShown;

    /* The colours as a light leaves them, see LightStyle::colorContrast. */
    static vtkSmartPointer<vtkLookupTable> contrastedTable(vtkLookupTable& table, double contrast);

private:
    struct Source
    {
        unsigned long surface = 0;
        vtkSmartPointer<vtkDataArray> values;
        ValueLocation_e location = ValueLocation_Nodal;
        ContourType_e type = ContourType_Flood;
        ColorCutoff cutoff;
        bool operator==(const Source&) const = default;
    };

    Source m_source;
};

} // namespace vantrix::view
