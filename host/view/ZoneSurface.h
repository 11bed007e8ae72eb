#pragma once

#include "kernel/FieldArray.h"
#include "view/SurfaceBlanking.h"
#include "view/ZoneStyle.h"

#include <vtkSmartPointer.h>

#include <map>
#include <memory>
#include <vector>

class vtkDataSet;
class vtkIdTypeArray;
class vtkPolyData;

namespace vantrix::view {

/*
 * What of a zone is drawn: its surface (of a volume the chosen faces or planes, of other zones all cells), the same
 * with normals, and its edges. Each is made on demand and kept until the geometry or the selection is another one; then
 * revision() moves.
 */
class ZoneSurface
{
public:
    /* The name of the array that withValues() adds. */
    static constexpr auto valuesName = "vxContour";

    /* The zone's points and cells as they are to be drawn; shared, not written to. Null for nothing. Of the points of
     * the surface a part is kept, above 0 to 1. What is blanked is left out; null where nothing is. */
    void set(vtkDataSet* geometry, const SurfaceSelection& selection, double keptPoints = 1.0,
             std::shared_ptr<const kernel::BlankedZone> blanked = nullptr);

    unsigned long revision() const { return m_revision; }

    vtkDataSet* geometry() const { return m_geometry; }
    const kernel::BlankedZone* blanked() const { return m_blanked.get(); }
    bool isEmpty();

    /* The surface with what is blanked, made anew each time. */
    vtkSmartPointer<vtkPolyData> wholeSurface() const;

    vtkPolyData* surface();
    vtkPolyData* litSurface();
    vtkPolyData* edges(EdgeType_e type);

    /* The zone's number, from 0, of each point and cell of the surface; below 0 for a point where a cell was trimmed.
     * Null without a surface. */
    vtkIdTypeArray* pointNumbers();
    vtkIdTypeArray* cellNumbers();

    /* A surface, lit or not, with a field's values at its points or cells as scalars; single precision. */
    vtkSmartPointer<vtkPolyData> withValues(vtkPolyData* surface, const kernel::FieldArray& field) const;

private:
    vtkSmartPointer<vtkPolyData> makeSurface();
    vtkSmartPointer<vtkPolyData> makeEdges(EdgeType_e type);

    vtkSmartPointer<vtkDataSet> m_geometry;
    SurfaceSelection m_selection;
    double m_keptPoints = 1.0;
    std::shared_ptr<const kernel::BlankedZone> m_blanked;
    std::vector<SurfaceCut> m_cuts;
    unsigned long m_revision = 0;
    vtkSmartPointer<vtkPolyData> m_surface;
    vtkSmartPointer<vtkPolyData> m_litSurface;
    std::map<EdgeType_e, vtkSmartPointer<vtkPolyData>> m_edges;
};

} // namespace vantrix::view
