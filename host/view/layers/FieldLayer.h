#pragma once

#include "kernel/FieldArray.h"
#include "view/ContourColors.h"
#include "view/PlotStyle.h"

#include <vtkSmartPointer.h>

#include <array>

class vtkActor;
class vtkMapper;
class vtkPolyDataMapper;
class vtkProp;
class vtkRenderer;

namespace vantrix::view {

/* What the layers of a plot have in common. */
struct LayerContext
{
    bool isThreeD = false;
    double pixelsPerPercent = 1.0; /* pixels rendered to one per cent of the frame's height */
    double leastWidth = 1.0;       /* of lines, in pixels rendered: one of the picture */
    LightStyle light;
    VectorScaleStyle vectors;
    ScatterScaleStyle scatter;
    double keptPoints = 1.0; /* of the points of surfaces, 0 to 1 */

    /* The width of a line in pixels, never less than one of the picture. */
    float lineWidth(double percent) const;

    /* A length in pixels. */
    double pixels(double percent) const { return percent * pixelsPerPercent; }
};

/* How coordinates of the data become places in the renderer's world, and how that is seen. */
struct Placement
{
    std::array<double, 3> scale{1.0, 1.0, 1.0}; /* the third is 0 in a flat plot */
    std::array<double, 3> shift{0.0, 0.0, 0.0};
    std::array<double, 2> size{0.0, 0.0}; /* of the picture of a flat plot, in the world: it begins at 0 */
    double diagonal = 1.0;                /* of the axes' area or box, in the world */
    double pixelSize = 1.0;               /* of a pixel in the world; in perspective, at the middle of the plot */
    std::array<double, 3> toViewer{0.0, 0.0, 1.0};
    std::array<double, 3> up{0.0, 1.0, 0.0}; /* on the screen */

    bool isFlat() const { return scale[2] == 0.0; }
    std::array<double, 3> place(const std::array<double, 3>& point) const;
    bool operator==(const Placement&) const = default;
};

/* A contour group's values in one zone, and their colours. */
struct ContourValues
{
    kernel::FieldArray field;
    ContourColors colors;
};

/* One actor of a zone. Layers of a higher order are drawn in front of what they lie on. */
class FieldLayer
{
public:
    FieldLayer(vtkRenderer* renderer, vtkSmartPointer<vtkMapper> mapper, double order);
    virtual ~FieldLayer();
    FieldLayer(const FieldLayer&) = delete;
    FieldLayer& operator=(const FieldLayer&) = delete;

    /* Puts the layer at its place in the world. */
    virtual void place(const Placement& placement);

    /* Whether something that a picker found is this layer's actor. */
    bool isProp(const vtkProp* prop) const;

    /* The box around what is drawn, in the renderer's world; false when nothing is. */
    bool shownBounds(std::array<double, 6>& bounds) const;

    /* Whether the mouse finds the layer; it does at first. */
    void setPickable(bool isPickable);

    /* How often what is drawn was made anew. */
    long geometryCount() const { return m_geometryCount; }

protected:
    vtkActor& actor() const;
    double order() const { return m_order; }
    void setShown(bool isShown);
    bool isShown() const;

    /* One colour, or the colours of values that the mapper's input has as scalars. */
    void setColor(const QColor& color);
    void setColors(const ContourColors& colors, bool byCell);

    /* The colours that the mapper's input has itself. */
    void setOwnColors(bool byCell);

    /* What a light leaves of a colour, see LightStyle::colorContrast. */
    static QColor contrasted(const QColor& color, double contrast);

    /* To be called with whatever makes the layer's geometry another one. */
    void countGeometry() { ++m_geometryCount; }

    /* Draws a surface as far behind its place as it takes for lines along it to be seen whole, however steep it is. */
    void stepBack();

    /* Unlit lines of a thickness in pixels. */
    void setLines(float width);
    void setLighting(LightingEffect_e effect, double opacity, bool isLit, const LayerContext& context);

private:
    vtkRenderer* m_renderer;
    vtkSmartPointer<vtkMapper> m_mapper;
    vtkSmartPointer<vtkActor> m_actor;
    bool m_isAdded = false; /* to the renderer */
    double m_order;
    long m_geometryCount = 0;
};

} // namespace vantrix::view
