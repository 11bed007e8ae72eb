#pragma once

#include "view/layers/PolyDataLayer.h"

#include <vtkDataArray.h>

#include <array>

namespace vantrix::view {

class ZoneSurface;

/* Three variables in one zone that mix red, green and blue; see RgbStyle. */
struct RgbValues
{
    std::array<kernel::FieldArray, 3> fields;
    double minimum = 0.0;
    double maximum = 1.0;
};

/* The surface in the colours of a contour group, or in colours mixed from three variables. */
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

    /* Draws nothing unless there are all three. */
    void update(ZoneSurface& surface, const ZoneStyle& style, const RgbValues& values, const LayerContext& context);

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
    struct RgbSource
    {
        unsigned long surface = 0;
        std::array<vtkSmartPointer<vtkDataArray>, 3> values;
        double minimum = 0.0;
        double maximum = 1.0;
        double contrast = 1.0;
        ContourType_e type = ContourType_Flood;
        bool operator==(const RgbSource&) const = default;
    };

    void setLook(const ZoneStyle& style, const LayerContext& context);

    Source m_source;
    RgbSource m_rgbSource; /* at most one of the two says what is drawn */
};

} // namespace vantrix::view
