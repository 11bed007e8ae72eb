#pragma once

#include "view/layers/LinePatternLayer.h"

#include <vtkDataArray.h>

namespace vantrix::view {

class ZoneSurface;

/* The line where a constraint of value blanking begins to hold. */
class BlankingBoundaryLayer : public LinePatternLayer
{
public:
    explicit BlankingBoundaryLayer(vtkRenderer* renderer)
        : LinePatternLayer(renderer, 8.0)
    {}

    /* The fields that the constraint compares; `other` without values stands for
     * its number. */
    void update(ZoneSurface& surface, const BlankingBoundaryStyle& style, const kernel::FieldArray& field,
                const kernel::FieldArray& other, const LayerContext& context);

private:
    struct Source
    {
        unsigned long surface = 0;
        vtkSmartPointer<vtkDataArray> values;
        vtkSmartPointer<vtkDataArray> otherValues;
        double number = 0.0;
        bool operator==(const Source&) const = default;
    };

    Source m_source;
};

} // namespace vantrix::view
