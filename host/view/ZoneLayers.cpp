#include "view/ZoneLayers.h"

#include <vtkActor.h>
#include <vtkCellArray.h>
#include <vtkCellData.h>
#include <vtkCellDataToPointData.h>
#include <vtkContourFilter.h>
#include <vtkDataSet.h>
#include <vtkDataSetSurfaceFilter.h>
#include <vtkFeatureEdges.h>
#include <vtkFloatArray.h>
#include <vtkIdTypeArray.h>
#include <vtkLookupTable.h>
#include <vtkPointData.h>
#include <vtkPolyData.h>
#include <vtkPolyDataMapper.h>
#include <vtkPolyDataNormals.h>
#include <vtkProperty.h>
#include <vtkRenderer.h>
#include <vtkStructuredGrid.h>
#include <vtkStructuredGridOutlineFilter.h>

#include <algorithm>
#include <memory>

namespace vantrix::view {
namespace {

constexpr auto pointNumbers = "vxPoint";
constexpr auto cellNumbers = "vxCell";
constexpr auto contourValues = "vxContour";
constexpr double featureAngle = 35.0;

vtkSmartPointer<vtkPolyData> outerSurface(vtkDataSet* geometry)
{
    const auto filter = vtkSmartPointer<vtkDataSetSurfaceFilter>::New();
    filter->SetInputData(geometry);
    filter->PassThroughPointIdsOn();
    filter->PassThroughCellIdsOn();
    filter->SetOriginalPointIdsName(pointNumbers);
    filter->SetOriginalCellIdsName(cellNumbers);
    filter->Update();
    return filter->GetOutput();
}

vtkSmartPointer<vtkPolyData> withNormals(vtkPolyData* surface, bool isOrdered)
{
    if (surface->GetNumberOfPolys() == 0) {
        return surface;
    }
    const auto filter = vtkSmartPointer<vtkPolyDataNormals>::New();
    filter->SetInputData(surface);
    filter->SetFeatureAngle(featureAngle);
    filter->SplittingOn();
    filter->SetConsistency(!isOrdered);
    filter->Update();
    return filter->GetOutput();
}

vtkSmartPointer<vtkPolyData> outline(vtkDataSet* geometry, vtkPolyData* surface)
{
    if (vtkStructuredGrid* grid = vtkStructuredGrid::SafeDownCast(geometry)) {
        const auto filter = vtkSmartPointer<vtkStructuredGridOutlineFilter>::New();
        filter->SetInputData(grid);
        filter->Update();
        return filter->GetOutput();
    }
    const auto filter = vtkSmartPointer<vtkFeatureEdges>::New();
    filter->SetInputData(surface);
    filter->SetFeatureAngle(featureAngle);
    filter->BoundaryEdgesOn();
    filter->FeatureEdgesOn();
    filter->NonManifoldEdgesOff();
    filter->ManifoldEdgesOff();
    filter->ColoringOff();
    filter->Update();
    return filter->GetOutput();
}

vtkSmartPointer<vtkFloatArray> gathered(vtkDataArray* values, vtkIdTypeArray* numbers)
{
    const auto result = vtkSmartPointer<vtkFloatArray>::New();
    result->SetName(contourValues);
    const vtkIdType count = numbers->GetNumberOfTuples();
    result->SetNumberOfTuples(count);
    const vtkIdType available = values->GetNumberOfTuples();
    for (vtkIdType i = 0; i < count; ++i) {
        const vtkIdType from = numbers->GetValue(i);
        result->SetValue(i, from >= 0 && from < available ? static_cast<float>(values->GetComponent(from, 0)) : 0.0F);
    }
    return result;
}

/* The mean of the corners of each cell. */
vtkSmartPointer<vtkFloatArray> cellMeans(vtkPolyData* surface, vtkDataArray* pointValues)
{
    const auto result = vtkSmartPointer<vtkFloatArray>::New();
    result->SetName(contourValues);
    result->SetNumberOfTuples(surface->GetNumberOfCells());
    vtkIdType count = 0;
    const vtkIdType* corners = nullptr;
    surface->BuildCells();
    for (vtkIdType cell = 0; cell < surface->GetNumberOfCells(); ++cell) {
        surface->GetCellPoints(cell, count, corners);
        double sum = 0.0;
        for (vtkIdType i = 0; i < count; ++i) {
            sum += pointValues->GetComponent(corners[i], 0);
        }
        result->SetValue(cell, count > 0 ? static_cast<float>(sum / double(count)) : 0.0F);
    }
    return result;
}

void setColor(vtkProperty* property, const QColor& color)
{
    property->SetColor(color.redF(), color.greenF(), color.blueF());
}

void setLighting(vtkProperty* property, const ZoneStyle& style, bool isLit, const LayerContext& context)
{
    property->SetLighting(isLit && context.isThreeD);
    property->SetInterpolation(style.lighting == LightingEffect_Paneled ? VTK_FLAT : VTK_GOURAUD);
    // Sides turned away from the light keep enough of their colour to be found in the legend.
    property->SetAmbient(0.25 + 0.75 * context.light.background);
    property->SetDiffuse(0.8 * context.light.intensity);
    // A highlight at full strength would hide the colour that is to be read.
    property->SetSpecular(context.light.hasHighlights ? 0.25 * context.light.highlight : 0.0);
    property->SetSpecularPower(1.0 + 0.5 * context.light.shininess);
    property->SetOpacity(style.opacity);
}

} // namespace

/* One actor; lines are drawn a little in front of the surface they lie on. */
struct ZoneLayers::Layer
{
    Layer(vtkRenderer* where, double order)
        : renderer(where)
        , height(order)
    {
        mapper->ScalarVisibilityOff();
        mapper->SetResolveCoincidentTopologyToPolygonOffset();
        mapper->SetRelativeCoincidentTopologyLineOffsetParameters(0.0, -2.0 * order);
        mapper->SetRelativeCoincidentTopologyPointOffsetParameter(-2.0 * order);
        mapper->SetRelativeCoincidentTopologyPolygonOffsetParameters(0.0, -2.0 * order);
        actor->SetMapper(mapper);
        actor->VisibilityOff();
        renderer->AddActor(actor);
    }
    ~Layer() { renderer->RemoveActor(actor); }
    Layer(const Layer&) = delete;
    Layer& operator=(const Layer&) = delete;

    vtkRenderer* renderer;
    double height;
    vtkSmartPointer<vtkActor> actor = vtkSmartPointer<vtkActor>::New();
    vtkSmartPointer<vtkPolyDataMapper> mapper = vtkSmartPointer<vtkPolyDataMapper>::New();
};

ZoneLayers::ZoneLayers(vtkRenderer* renderer)
    : m_renderer(renderer)
    , m_shadeLayer(std::make_unique<Layer>(renderer, 0.0))
    , m_floodLayer(std::make_unique<Layer>(renderer, 1.0))
    , m_linesLayer(std::make_unique<Layer>(renderer, 3.0))
    , m_meshLayer(std::make_unique<Layer>(renderer, 2.0))
    , m_edgeLayer(std::make_unique<Layer>(renderer, 4.0))
{}

ZoneLayers::~ZoneLayers() = default;

void ZoneLayers::setGeometry(vtkDataSet* geometry)
{
    if (m_geometry == geometry) {
        return;
    }
    m_geometry = geometry;
    m_surface = geometry ? outerSurface(geometry) : vtkSmartPointer<vtkPolyData>::New();
    m_litSurface = nullptr;
    m_edges = nullptr;
    m_flood = nullptr;
    m_lines = nullptr;
}

void ZoneLayers::setContour(const kernel::FieldArray* flood, const ContourColors* floodColors,
                            const kernel::FieldArray* lines, const ContourColors* lineColors)
{
    const kernel::FieldArray floodField = flood && floodColors ? *flood : kernel::FieldArray{};
    const kernel::FieldArray lineField = lines && lineColors ? *lines : kernel::FieldArray{};
    if (floodField.values != m_floodField.values || floodField.location != m_floodField.location) {
        m_flood = nullptr;
    }
    const ContourColors newLines = lineColors ? *lineColors : ContourColors{};
    if (lineField.values != m_lineField.values || lineField.location != m_lineField.location ||
        newLines.levels != m_lineColors.levels) {
        m_lines = nullptr;
    }
    m_floodField = floodField;
    m_lineField = lineField;
    m_floodColors = floodColors ? *floodColors : ContourColors{};
    m_lineColors = newLines;
}

vtkPolyData* ZoneLayers::litSurface()
{
    if (!m_litSurface) {
        m_litSurface = withNormals(m_surface, vtkStructuredGrid::SafeDownCast(m_geometry) != nullptr);
    }
    return m_litSurface;
}

vtkSmartPointer<vtkPolyData> ZoneLayers::colored(vtkPolyData* surface, const kernel::FieldArray& field) const
{
    const auto result = vtkSmartPointer<vtkPolyData>::New();
    result->ShallowCopy(surface);
    const bool isNodal = field.location == ValueLocation_Nodal;
    vtkDataSetAttributes* attributes = isNodal ? static_cast<vtkDataSetAttributes*>(result->GetPointData())
                                               : static_cast<vtkDataSetAttributes*>(result->GetCellData());
    auto* numbers = vtkIdTypeArray::SafeDownCast(attributes->GetArray(isNodal ? pointNumbers : cellNumbers));
    if (numbers) {
        attributes->SetScalars(gathered(field.values, numbers));
    }
    return result;
}

void ZoneLayers::updateFlood()
{
    if (m_flood) {
        return;
    }
    m_flood = colored(litSurface(), m_floodField);
    if (m_isFloodAveraged && m_flood->GetPointData()->GetScalars()) {
        m_flood->GetCellData()->SetScalars(cellMeans(m_flood, m_flood->GetPointData()->GetScalars()));
        m_flood->GetPointData()->SetActiveScalars(nullptr);
    }
    m_floodLayer->mapper->SetInputData(m_flood);
}

void ZoneLayers::updateLines()
{
    if (m_lines) {
        return;
    }
    vtkSmartPointer<vtkPolyData> surface = colored(m_surface, m_lineField);
    if (m_lineField.location == ValueLocation_CellCentered) {
        const auto average = vtkSmartPointer<vtkCellDataToPointData>::New();
        average->SetInputData(surface);
        average->Update();
        surface = average->GetPolyDataOutput();
    }
    surface->GetPointData()->SetActiveScalars(contourValues);
    const auto filter = vtkSmartPointer<vtkContourFilter>::New();
    filter->SetInputData(surface);
    for (std::size_t i = 0; i < m_lineColors.levels.size(); ++i) {
        filter->SetValue(static_cast<int>(i), m_lineColors.levels[i]);
    }
    filter->Update();
    m_lines = filter->GetOutput();
    m_linesLayer->mapper->SetInputData(m_lines);
}

void ZoneLayers::updateEdges()
{
    if (!m_edges) {
        m_edges = outline(m_geometry, m_surface);
        m_edgeLayer->mapper->SetInputData(m_edges);
    }
}

void ZoneLayers::apply(const ZoneStyle& style, const LayerContext& context)
{
    const auto width = [&](double percent) {
        return static_cast<float>(std::max(1.0, percent * context.pixelsPerPercent));
    };
    const bool hasSurface = m_surface && m_surface->GetNumberOfCells() > 0;
    const bool isFlooded =
        hasSurface && style.hasContour && style.contourType != ContourType_Lines && m_floodField.values;
    const bool hasLines = hasSurface && style.hasContour && m_lineField.values &&
                          (style.contourType == ContourType_Lines || style.contourType == ContourType_LinesAndFlood);

    // A zone of curves or points has no surface to shade; its mesh shows it instead.
    const bool isShaded =
        hasSurface && (style.hasShade || (style.hasMesh && style.meshType == MeshType_HiddenLine)) && !isFlooded;
    m_shadeLayer->actor->SetVisibility(isShaded);
    if (isShaded) {
        m_shadeLayer->mapper->SetInputData(litSurface());
        vtkProperty* property = m_shadeLayer->actor->GetProperty();
        setLighting(property, style, style.hasShade && style.isShadeLit, context);
        setColor(property, style.hasShade ? style.shadeColor : QColor(Qt::white));
        property->SetLineWidth(width(style.meshThickness));
    }

    m_floodLayer->actor->SetVisibility(isFlooded);
    if (isFlooded) {
        const bool isAveraged =
            m_floodField.location == ValueLocation_Nodal &&
            (style.contourType == ContourType_AverageCell || style.contourType == ContourType_PrimaryValue);
        if (isAveraged != m_isFloodAveraged) {
            m_isFloodAveraged = isAveraged;
            m_flood = nullptr;
        }
        updateFlood();
        vtkPolyDataMapper* mapper = m_floodLayer->mapper;
        const bool isFlat = isAveraged || m_floodField.location == ValueLocation_CellCentered;
        mapper->ScalarVisibilityOn();
        if (isFlat) {
            mapper->SetScalarModeToUseCellData();
        } else {
            mapper->SetScalarModeToUsePointData();
        }
        mapper->SetInterpolateScalarsBeforeMapping(!isFlat);
        mapper->SetLookupTable(m_floodColors.table);
        mapper->UseLookupTableScalarRangeOn();
        setLighting(m_floodLayer->actor->GetProperty(), style, style.isContourLit, context);
        m_floodLayer->actor->GetProperty()->SetLineWidth(width(std::max(style.meshThickness, 0.3)));
    }

    m_linesLayer->actor->SetVisibility(hasLines);
    if (hasLines) {
        updateLines();
        vtkPolyDataMapper* mapper = m_linesLayer->mapper;
        // Alone, lines tell their values by colour; over a flood in the same colours they would vanish.
        const bool isColored = style.isContourLineColored || style.contourType == ContourType_Lines;
        mapper->SetScalarVisibility(isColored);
        mapper->SetScalarModeToUsePointData();
        mapper->SetLookupTable(m_lineColors.table);
        mapper->UseLookupTableScalarRangeOn();
        vtkProperty* property = m_linesLayer->actor->GetProperty();
        property->LightingOff();
        setColor(property, style.contourLineColor);
        property->SetLineWidth(isColored ? std::max(width(style.contourThickness), width(0.25))
                                         : width(style.contourThickness));
    }

    const bool hasMesh = hasSurface && style.hasMesh;
    m_meshLayer->actor->SetVisibility(hasMesh);
    if (hasMesh) {
        m_meshLayer->mapper->SetInputData(m_surface);
        vtkProperty* property = m_meshLayer->actor->GetProperty();
        property->SetRepresentationToWireframe();
        property->LightingOff();
        setColor(property, style.meshColor);
        property->SetLineWidth(width(style.meshThickness));
    }

    const bool hasEdges = hasSurface && style.hasEdge;
    m_edgeLayer->actor->SetVisibility(hasEdges);
    if (hasEdges) {
        updateEdges();
        vtkProperty* property = m_edgeLayer->actor->GetProperty();
        property->LightingOff();
        setColor(property, style.edgeColor);
        property->SetLineWidth(width(style.edgeThickness));
    }
}

void ZoneLayers::place(const double scale[3], const double shift[3])
{
    for (Layer* layer :
         {m_shadeLayer.get(), m_floodLayer.get(), m_linesLayer.get(), m_meshLayer.get(), m_edgeLayer.get()}) {
        layer->actor->SetScale(scale[0], scale[1], scale[2]);
        // A flat plot has no depth of its own; its layers lie above each other.
        const double depth = scale[2] == 0.0 ? layer->height : shift[2];
        layer->actor->SetScale(scale[0], scale[1], scale[2] == 0.0 ? 1.0 : scale[2]);
        layer->actor->SetPosition(shift[0], shift[1], depth);
    }
}

long ZoneLayers::surfaceCellCount() const
{
    return m_surface ? static_cast<long>(m_surface->GetNumberOfCells()) : 0;
}

} // namespace vantrix::view
