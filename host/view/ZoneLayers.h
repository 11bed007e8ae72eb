#pragma once

#include "kernel/FieldArray.h"
#include "view/ContourColors.h"
#include "view/PlotStyle.h"

#include <vtkSmartPointer.h>

#include <memory>

class vtkDataSet;
class vtkPolyData;
class vtkRenderer;

namespace vantrix::view {

/* What the zones of a plot have in common. */
struct LayerContext
{
    bool isThreeD = false;
    double pixelsPerPercent = 1.0; /* pixels to one per cent of the frame's height */
    LightStyle light;
};

/*
 * The layers of one zone in a field plot. Each step of the pipeline is kept and made again only when what it is made
 * from changed: the surface with the zone's geometry, its colours with the contour variable, lines with the levels. A
 * colour or a thickness makes nothing again.
 */
class ZoneLayers
{
public:
    explicit ZoneLayers(vtkRenderer* renderer);
    ~ZoneLayers();
    ZoneLayers(const ZoneLayers&) = delete;
    ZoneLayers& operator=(const ZoneLayers&) = delete;

    /* The zone's points and cells as they are to be drawn. Volumes show their outer surface. */
    void setGeometry(vtkDataSet* geometry);

    /* Flood and line variables; null where the zone does not have them. */
    void setContour(const kernel::FieldArray* flood, const ContourColors* floodColors, const kernel::FieldArray* lines,
                    const ContourColors* lineColors);

    void apply(const ZoneStyle& style, const LayerContext& context);

    /* Places the layers in the renderer's world: a scaling and a shift of each coordinate. */
    void place(const double scale[3], const double shift[3]);

    /* The number of polygons and lines of the surface. */
    long surfaceCellCount() const;

private:
    struct Layer;

    vtkPolyData* litSurface();
    vtkSmartPointer<vtkPolyData> colored(vtkPolyData* surface, const kernel::FieldArray& field) const;
    void updateFlood();
    void updateLines();
    void updateEdges();

    vtkRenderer* m_renderer;
    vtkSmartPointer<vtkDataSet> m_geometry;
    vtkSmartPointer<vtkPolyData> m_surface;
    vtkSmartPointer<vtkPolyData> m_litSurface;
    vtkSmartPointer<vtkPolyData> m_edges;

    kernel::FieldArray m_floodField;
    kernel::FieldArray m_lineField;
    ContourColors m_floodColors;
    ContourColors m_lineColors;
    vtkSmartPointer<vtkPolyData> m_flood;
    vtkSmartPointer<vtkPolyData> m_lines;
    bool m_isFloodAveraged = false;

    std::unique_ptr<Layer> m_shadeLayer;
    std::unique_ptr<Layer> m_floodLayer;
    std::unique_ptr<Layer> m_linesLayer;
    std::unique_ptr<Layer> m_meshLayer;
    std::unique_ptr<Layer> m_edgeLayer;
};

} // namespace vantrix::view
