#include "view/layers/BlankingBoundaryLayer.h"

#include "view/IsoLines.h"
#include "view/ZoneSurface.h"

#include <vtkPointData.h>
#include <vtkPolyData.h>

namespace vantrix::view {

void BlankingBoundaryLayer::update(ZoneSurface& surface, const BlankingBoundaryStyle& style,
                                   const kernel::FieldArray& field, const kernel::FieldArray& other,
                                   const LayerContext& context)
{
    // Between cells there is nothing to interpolate: only nodal values have a
    // boundary.
    const bool isNodal = field.location == ValueLocation_Nodal && other.location == ValueLocation_Nodal;
    setShown(isNodal && field.values && surface.geometry());
    if (!isShown()) {
        return;
    }
    const Source source{surface.revision(), field.values, other.values, style.constraint.number};
    if (source != m_source) {
        m_source = source;
        // The surface as a whole: the boundary of what is blanked lies on the
        // blanked side, too.
        const vtkSmartPointer<vtkPolyData> whole = surface.wholeSurface();
        const vtkSmartPointer<vtkPolyData> left = surface.withValues(whole, field);
        double at = style.constraint.number;
        if (other.values && left->GetPointData()->GetScalars()) {
            const vtkSmartPointer<vtkPolyData> right = surface.withValues(whole, other);
            vtkDataArray* values = left->GetPointData()->GetScalars();
            for (vtkIdType i = 0; i < values->GetNumberOfTuples(); ++i) {
                values->SetComponent(
                    i, 0, values->GetComponent(i, 0) - right->GetPointData()->GetScalars()->GetComponent(i, 0));
            }
            at = 0.0;
        }
        setLineGeometry(isoLines(left, false, {at}));
    }
    setPattern(style.pattern, context.pixels(style.patternLength));
    setColor(style.color);
    setLines(context.lineWidth(style.thickness));
}

} // namespace vantrix::view
