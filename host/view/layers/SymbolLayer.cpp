#include "view/layers/SymbolLayer.h"

#include "view/Canvas.h"
#include "view/SymbolShape.h"

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
    auto symbol = vtkSmartPointer<vtkPolyData>::New();
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

SymbolLayer::SymbolLayer(vtkRenderer* renderer, double order)
    : m_fill(renderer, order)
    , m_outline(renderer, order + 1.0)
{}

void SymbolLayer::setShape(const Shape& shape)
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

void SymbolLayer::setPickable(bool isPickable)
{
    m_fill.setPickable(isPickable);
    m_outline.setPickable(isPickable);
}

bool SymbolLayer::setLooks(const ScatterStyle& style, bool isShown, const ContourColors* lines,
                           const ContourColors* fill, double size, const LayerContext& context)
{
    const bool isCharacter = !style.character.empty();
    const bool isSolid = !isCharacter && context.isThreeD && isSolidSymbol(style.shape);
    m_fill.setShown(isShown && (style.isFilled || isSolid || isCharacter));
    m_outline.setShown(isShown && !isSolid && !isCharacter);
    if (!isShown) {
        return false;
    }
    setShape({style.shape, style.character, style.font, context.isThreeD});
    m_fill.setSize(size);
    m_outline.setSize(size);
    m_fill.setColor(style.isFilled && !isCharacter ? style.fill.color : style.color.color);
    if (const ContourColors* filled = isCharacter ? lines : fill) {
        m_fill.setColors(*filled);
    }
    m_fill.setLighting(LightingEffect_Gouraud, 1.0, isSolid, context);
    m_outline.setColor(style.color.color);
    if (lines) {
        m_outline.setColors(*lines);
    }
    m_outline.setLines(context.lineWidth(style.thickness));
    return true;
}

void SymbolLayer::setPoints(const std::vector<std::array<double, 3>>& places, const std::vector<double>& lineValues,
                            const std::vector<double>& fillValues, const std::vector<double>& sizes)
{
    m_outline.setPoints(places, lineValues, sizes);
    m_fill.setPoints(places, fillValues, sizes);
}

void SymbolLayer::place(const Placement& placement)
{
    m_fill.place(placement);
    m_outline.place(placement);
}

} // namespace vantrix::view
