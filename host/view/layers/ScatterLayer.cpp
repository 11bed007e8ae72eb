#include "view/layers/ScatterLayer.h"

#include "view/Canvas.h"
#include "view/SymbolShape.h"
#include "view/ZonePoints.h"

#include <QPainterPath>
#include <QTransform>

#include <vtkCellArray.h>
#include <vtkContourTriangulator.h>
#include <vtkCubeSource.h>
#include <vtkPlatonicSolidSource.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>
#include <vtkSphereSource.h>

#include <algorithm>
#include <cmath>
#include <numeric>

namespace vantrix::view {
namespace {

constexpr double fillOrder = 6.0;
constexpr double outlineOrder = 7.0;

/* The outline of a flat symbol as a polygon, or as a line around it. */
vtkSmartPointer<vtkPolyData> flatSymbol(GeomShape_e shape, bool isFilled)
{
    const QPolygonF outline = symbolOutline(shape);
    const auto points = vtkSmartPointer<vtkPoints>::New();
    for (const QPointF& corner : outline) {
        points->InsertNextPoint(corner.x(), corner.y(), 0.0);
    }
    const auto cells = vtkSmartPointer<vtkCellArray>::New();
    // The last corner is the first again.
    const vtkIdType count = isFilled ? outline.size() - 1 : outline.size();
    cells->InsertNextCell(static_cast<int>(count));
    for (vtkIdType i = 0; i < count; ++i) {
        cells->InsertCellPoint(i);
    }
    const auto symbol = vtkSmartPointer<vtkPolyData>::New();
    symbol->SetPoints(points);
    if (isFilled) {
        symbol->SetPolys(cells);
    } else {
        symbol->SetLines(cells);
    }
    return symbol;
}

vtkSmartPointer<vtkPolyData> solidSymbol(GeomShape_e shape)
{
    vtkSmartPointer<vtkPolyDataAlgorithm> source;
    if (shape == GeomShape_Cube) {
        const auto cube = vtkSmartPointer<vtkCubeSource>::New();
        const double edge = 1.0 / std::sqrt(2.0);
        cube->SetXLength(edge);
        cube->SetYLength(edge);
        cube->SetZLength(edge);
        source = cube;
    } else if (shape == GeomShape_Octahedron) {
        const auto octahedron = vtkSmartPointer<vtkPlatonicSolidSource>::New();
        octahedron->SetSolidTypeToOctahedron();
        source = octahedron;
    } else {
        const auto sphere = vtkSmartPointer<vtkSphereSource>::New();
        sphere->SetThetaResolution(16);
        sphere->SetPhiResolution(12);
        source = sphere;
    }
    source->Update();
    return source->GetOutput();
}

/* A character as triangles about the origin, the height of its font being 1. */
vtkSmartPointer<vtkPolyData> characterSymbol(const std::string& character, Font_e family)
{
    constexpr int fontPixels = 100;
    QFont font = Canvas::typeface(family);
    font.setPixelSize(fontPixels);
    QPainterPath path;
    path.addText(QPointF(), font, QString::fromStdString(character));
    path.translate(-path.boundingRect().center());
    const auto points = vtkSmartPointer<vtkPoints>::New();
    const auto outlines = vtkSmartPointer<vtkCellArray>::New();
    for (const QPolygonF& outline :
         path.toSubpathPolygons(QTransform::fromScale(1.0 / fontPixels, -1.0 / fontPixels))) {
        const vtkIdType first = points->GetNumberOfPoints();
        const vtkIdType count = outline.isClosed() ? outline.size() - 1 : outline.size();
        outlines->InsertNextCell(static_cast<int>(count + 1));
        for (vtkIdType i = 0; i < count; ++i) {
            outlines->InsertCellPoint(points->InsertNextPoint(outline[i].x(), outline[i].y(), 0.0));
        }
        outlines->InsertCellPoint(first);
    }
    const auto contours = vtkSmartPointer<vtkPolyData>::New();
    contours->SetPoints(points);
    contours->SetLines(outlines);
    const auto filter = vtkSmartPointer<vtkContourTriangulator>::New();
    filter->SetInputData(contours);
    filter->Update();
    return filter->GetOutput();
}

} // namespace

ScatterLayer::ScatterLayer(vtkRenderer* renderer)
    : m_fill(renderer, fillOrder)
    , m_outline(renderer, outlineOrder)
{}

void ScatterLayer::setShape(const Shape& shape)
{
    if (shape == m_shape) {
        return;
    }
    m_shape = shape;
    if (!shape.character.empty()) {
        m_fill.setShape(characterSymbol(shape.character, shape.font), true);
    } else if (shape.isThreeD && isSolidSymbol(shape.shape)) {
        m_fill.setShape(solidSymbol(shape.shape), false);
    } else {
        m_fill.setShape(flatSymbol(shape.shape, true), true);
        m_outline.setShape(flatSymbol(shape.shape, false), true);
    }
}

void ScatterLayer::update(const ZonePoints& points, const ScatterStyle& style, const kernel::FieldArray& sizes,
                          const ContourValues* lineColors, const ContourValues* fillColors, const LayerContext& context)
{
    const bool isShown = style.isShown && !points.places().empty();
    const bool isCharacter = !style.character.empty();
    const bool isSolid = !isCharacter && context.isThreeD && isSolidSymbol(style.shape);
    m_fill.setShown(isShown && (style.isFilled || isSolid || isCharacter));
    m_outline.setShown(isShown && !isSolid && !isCharacter);
    if (!isShown) {
        return;
    }
    setShape({style.shape, style.character, style.font, context.isThreeD});
    const auto colors = [](const LayerColor& color, const ContourValues* values) {
        return color.contourGroup > 0 && values && values->field.values ? values : nullptr;
    };
    const ContourValues* lines = colors(style.color, lineColors);
    const ContourValues* fill = isCharacter ? lines : colors(style.fill, fillColors);
    const Source source{points.revision(), style.isSizedByVariable ? sizes.values : nullptr,
                        lines ? lines->field.values : nullptr, fill ? fill->field.values : nullptr};
    if (source != m_source) {
        m_source = source;
        std::vector<double> factors;
        if (source.sizes) {
            factors = points.values(sizes);
            for (double& factor : factors) {
                factor = std::isfinite(factor) ? std::max(0.0, factor) : 0.0;
            }
        }
        m_outline.setPoints(points.places(), lines ? points.values(lines->field) : std::vector<double>(), factors);
        m_fill.setPoints(points.places(), fill ? points.values(fill->field) : std::vector<double>(), factors);
    }
    const double percent = source.sizes ? context.scatter.relativeSize : style.size;
    m_fill.setSize(percent * context.pixelsPerPercent);
    m_outline.setSize(percent * context.pixelsPerPercent);
    m_fill.setColor(style.isFilled && !isCharacter ? style.fill.color : style.color.color);
    if (fill) {
        m_fill.setColors(fill->colors);
    }
    m_fill.setLighting(LightingEffect_Gouraud, 1.0, isSolid, context);
    m_outline.setColor(style.color.color);
    if (lines) {
        m_outline.setColors(lines->colors);
    }
    m_outline.setLines(context.lineWidth(style.thickness));
}

void ScatterLayer::place(const Placement& placement)
{
    m_fill.place(placement);
    m_outline.place(placement);
}

} // namespace vantrix::view
