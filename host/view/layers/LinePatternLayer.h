#pragma once

#include "view/LineChains.h"
#include "view/layers/PolyDataLayer.h"

#include <vtkPolyData.h>

#include <vector>

namespace vantrix::view {

/* A layer of lines with a pattern. The pattern keeps its length in the picture: it is made again when the scale of the
 * picture changes, and not when a plot in space is turned. */
class LinePatternLayer : public PolyDataLayer
{
public:
    using PolyDataLayer::PolyDataLayer;

    void place(const Placement& placement) override;

protected:
    /* The lines themselves; polygons only with the solid pattern. */
    void setLineGeometry(const vtkSmartPointer<vtkPolyData>& lines);

    /* `length` of one repetition in pixels. */
    void setPattern(LinePattern_e pattern, double length);

    const vtkSmartPointer<vtkPolyData>& lineGeometry() const { return m_lines; }
    const std::vector<LineChain>& chains();

private:
    vtkSmartPointer<vtkPolyData> m_lines;
    std::vector<LineChain> m_chains;
    bool m_hasChains = false;
    LinePattern_e m_pattern = LinePattern_Solid;
    double m_length = 1.0;
    Placement m_placement;
    bool m_isMade = false;
};

} // namespace vantrix::view
