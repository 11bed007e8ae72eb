#include "view/FieldScene.h"

#include "kernel/DataSet.h"
#include "kernel/ZoneGrid.h"

#include <vtkCamera.h>
#include <vtkCellPicker.h>
#include <vtkLight.h>
#include <vtkLookupTable.h>
#include <vtkMath.h>
#include <vtkMatrix4x4.h>
#include <vtkPointData.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>
#include <vtkRenderWindow.h>
#include <vtkRenderer.h>
#include <vtkStructuredGrid.h>

#include <algorithm>
#include <cmath>
#include <unordered_set>

namespace vantrix::view {
namespace {

constexpr double highestOversampled = 4000.0; /* pixels; larger pictures would not fit into every graphics memory */

vtkSmartPointer<vtkPoints> logarithmicPoints(vtkPoints* points, const std::array<bool, 3>& isLogarithmic)
{
    auto result = vtkSmartPointer<vtkPoints>::New();
    result->SetDataTypeToDouble();
    result->SetNumberOfPoints(points->GetNumberOfPoints());
    Point3 point{};
    for (vtkIdType i = 0; i < points->GetNumberOfPoints(); ++i) {
        points->GetPoint(i, point.data());
        for (std::size_t axis = 0; axis < 3; ++axis) {
            if (isLogarithmic[axis]) {
                point[axis] = std::log10(std::max(point[axis], 1e-300));
            }
        }
        result->SetPoint(i, point.data());
    }
    return result;
}

/* Points and cells without arrays; of a volume in a flat plot, its first layer. */
vtkSmartPointer<vtkDataSet> shapeOf(vtkDataSet* source, bool isFlat, const std::array<bool, 3>& isLogarithmic)
{
    auto shape = vtkSmartPointer<vtkDataSet>::Take(source->NewInstance());
    shape->CopyStructure(source);
    auto* points = vtkPointSet::SafeDownCast(shape);
    auto* grid = vtkStructuredGrid::SafeDownCast(shape);
    if (isFlat && grid) {
        std::array<int, 3> size{};
        grid->GetDimensions(size.data());
        if (size[0] > 1 && size[1] > 1 && size[2] > 1) {
            const vtkIdType layer = vtkIdType{size[0]} * size[1];
            const auto first = vtkSmartPointer<vtkPoints>::New();
            first->SetDataType(grid->GetPoints()->GetDataType());
            first->InsertPoints(0, layer, 0, grid->GetPoints());
            grid->SetDimensions(size[0], size[1], 1);
            grid->SetPoints(first);
        }
    }
    if (points && (isLogarithmic[0] || isLogarithmic[1] || isLogarithmic[2])) {
        points->SetPoints(logarithmicPoints(points->GetPoints(), isLogarithmic));
    }
    return shape;
}

/* The field with its values in memory. */
kernel::FieldArray loaded(const kernel::FieldArray* field)
{
    kernel::FieldArray result;
    if (field) {
        result.values = field->load();
        result.location = field->location;
    }
    return result;
}

double placed(double value, bool isLogarithmic)
{
    return isLogarithmic ? std::log10(value) : value;
}

/* Axes of 3D plots are linear. */
std::array<bool, 3> logarithmicAxes(const PlotStyle& style)
{
    const bool isFlat = style.type == PlotType_Cartesian2D;
    return {isFlat && style.axes[0].isLogarithmic, isFlat && style.axes[1].isLogarithmic, false};
}

double boxDiagonal(const PlotStyle& style)
{
    double sum = 0.0;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const double length = (style.axes[axis].maximum - style.axes[axis].minimum) * style.axisScale[axis];
        sum += length * length;
    }
    return std::sqrt(sum);
}

} // namespace

FieldScene::FieldScene(OffscreenWindow& window)
    : m_window(window)
    , m_renderer(vtkSmartPointer<vtkRenderer>::New())
    , m_light(vtkSmartPointer<vtkLight>::New())
    , m_streamtraces(std::make_unique<StreamtraceLayers>(m_renderer))
{
    m_renderer->SetAutomaticLightCreation(false);
    m_renderer->SetTwoSidedLighting(true);
    m_renderer->SetOcclusionRatio(0.0);
    m_light->SetLightTypeToCameraLight();
    m_light->SetFocalPoint(0.0, 0.0, 0.0);
    m_renderer->AddLight(m_light);
}

FieldScene::~FieldScene()
{
    m_renderer->RemoveAllViewProps(); /* so that each layer has none to search for its own */
    m_zones.clear();
    m_streamtraces.reset();
    m_window.forget(m_renderer);
}

void FieldScene::updateGroups(const std::vector<ContourGroupStyle>& groups)
{
    m_groups.resize(groups.size());
    for (std::size_t i = 0; i < groups.size(); ++i) {
        if (!m_groups[i].colors.table || m_groups[i].style != groups[i]) {
            m_groups[i] = {groups[i], ContourColors::make(groups[i])};
        }
    }
}

void FieldScene::update(const kernel::DataSet& dataSet, const PlotStyle& style, double frameHeightPixels,
                        const Quality& quality)
{
    updateGroups(style.contourGroups);
    // Translucent surfaces are seen in their order from the viewer only when they are peeled layer by layer, and that
    // allows one sample a pixel. Lines of several samples have gaps where their segments meet with some drivers.
    const bool isTranslucent =
        (style.streamtraces.isShown && style.streamtraces.rodRibbon.opacity < 1.0) ||
        std::any_of(style.zones.begin(), style.zones.end(), [](const ZoneStyle& zone) { return zone.opacity < 1.0; });
    m_renderer->SetUseDepthPeeling(isTranslucent);
    m_renderer->SetMaximumNumberOfPeels(quality.sortedSurfaces);
    const bool isOversampled = quality.samples > 0 && (isTranslucent || frameHeightPixels <= highestOversampled);
    m_oversampling = isOversampled ? 2 : 1;
    m_samples = isTranslucent || isOversampled ? 0 : quality.samples;
    const bool isThreeD = style.type == PlotType_Cartesian3D;
    m_scale = isThreeD ? style.worldScale() : std::array<double, 3>{1.0, 1.0, 0.0};
    m_shift = isThreeD ? style.worldShift() : std::array<double, 3>{};
    const LayerContext context{isThreeD,
                               m_oversampling * frameHeightPixels / 100.0,
                               double(m_oversampling),
                               style.light,
                               style.vectors,
                               style.scatter,
                               quality.keptPoints};
    m_boxDiagonal = boxDiagonal(style);
    m_light->SetPosition(style.light.direction[0], style.light.direction[1], style.light.direction[2]);
    std::unordered_set<long> shown;
    for (const ZoneStyle& zone : style.zones) {
        shown.insert(zone.zone);
    }
    std::erase_if(m_zones, [&](const auto& entry) { return !shown.contains(entry.first); });
    for (const ZoneStyle& zone : style.zones) {
        updateZone(dataSet, style, zone, context);
    }
    const auto groupOf = [&](long number) {
        const auto index = std::size_t(number - 1);
        const bool isThere = index < m_groups.size() && !m_groups[index].colors.levels.empty();
        return isThere ? std::optional(StreamtraceLayers::Group{m_groups[index].style.variable, m_groups[index].colors})
                       : std::nullopt;
    };
    m_streamtraces->update(dataSet, m_traced, logarithmicAxes(style), style.streamtraces, groupOf, context);
    place(Placement(m_placement));
}

void FieldScene::updateZone(const kernel::DataSet& dataSet, const PlotStyle& style, const ZoneStyle& zoneStyle,
                            const LayerContext& context)
{
    const long zVariable = context.isThreeD ? style.axes[2].variable : 0;
    const vtkSmartPointer<vtkDataSet> source =
        kernel::zoneShape(dataSet, zoneStyle.zone, {style.axes[0].variable, style.axes[1].variable, zVariable});
    if (!source) {
        m_zones.erase(zoneStyle.zone);
        return;
    }
    Zone& zone = m_zones[zoneStyle.zone];
    if (!zone.layers) {
        zone.layers = std::make_unique<ZoneLayers>(m_renderer);
    }
    const std::array<bool, 3> isLogarithmic = logarithmicAxes(style);
    const bool isFlat = !context.isThreeD;
    if (!zone.shape || isLogarithmic != zone.isLogarithmic || isFlat != zone.isFlat ||
        !kernel::haveSameShape(zone.source, source)) {
        zone.shape = shapeOf(source, isFlat, isLogarithmic);
        zone.isLogarithmic = isLogarithmic;
        zone.isFlat = isFlat;
    }
    zone.source = source;

    zone.contours.clear();
    ZoneValues values;
    values.contour = [&](long group) -> const ContourValues* {
        if (group < 1 || group > static_cast<long>(m_groups.size())) {
            return nullptr;
        }
        const auto [entry, isNew] = zone.contours.try_emplace(group);
        if (isNew) {
            const Group& colored = m_groups[std::size_t(group - 1)];
            entry->second = {loaded(dataSet.field(zoneStyle.zone, colored.style.variable)), colored.colors};
        }
        return entry->second.colors.levels.empty() ? nullptr : &entry->second;
    };
    if (zoneStyle.contour.isFloodedByRgb()) {
        values.rgb = {{}, style.rgb.minimum, style.rgb.maximum};
        for (std::size_t color = 0; color < values.rgb.fields.size(); ++color) {
            values.rgb.fields[color] = loaded(dataSet.field(zoneStyle.zone, style.rgb.variables[color]));
        }
    }
    if (zoneStyle.vector.isShown) {
        for (std::size_t axis = 0; axis < values.vectors.size(); ++axis) {
            values.vectors[axis] = loaded(dataSet.field(zoneStyle.zone, style.vectors.variables[axis]));
        }
    }
    if (zoneStyle.scatter.isShown && zoneStyle.scatter.isSizedByVariable) {
        values.sizes = loaded(dataSet.field(zoneStyle.zone, style.scatter.variable));
    }
    for (const BlankingBoundaryStyle& boundary : style.blankingBoundaries) {
        values.boundaries.push_back({boundary, loaded(dataSet.field(zoneStyle.zone, boundary.constraint.variable)),
                                     loaded(dataSet.field(zoneStyle.zone, boundary.constraint.otherVariable))});
    }
    const auto blanked = style.blanking.isActive() ? style.blanking.of(dataSet, zoneStyle.zone) : nullptr;
    const bool hasLabels = zoneStyle.contour.hasLines() &&
                           style.contourGroups[std::size_t(zoneStyle.contour.lineGroup - 1)].labels.isShown;
    zone.labelledGroup = hasLabels ? zoneStyle.contour.lineGroup : 0;
    zone.layers->update(zone.shape, blanked, zoneStyle, values, context);
    zone.layers->place(m_placement);
}

void FieldScene::release(GraphicsCache cache)
{
    constexpr long lightCells = 10'000;
    if (cache != GraphicsCache::All) {
        std::erase_if(m_zones, [&](const auto& entry) {
            return cache == GraphicsCache::None || entry.second.layers->surfaceCellCount() > lightCells;
        });
    }
}

void FieldScene::place(const Placement& placement)
{
    m_placement = placement;
    for (auto& [number, zone] : m_zones) {
        zone.layers->place(placement);
    }
    m_streamtraces->place(placement);
}

QImage FieldScene::rendered(QSize pixels)
{
    m_pixels = pixels;
    const QImage image = m_renderer->GetUseDepthPeeling() ? m_window.renderTranslucent(m_renderer, pixels, m_samples)
                                                          : m_window.render(m_renderer, pixels, m_samples);
    return m_oversampling == 1 || image.isNull()
               ? image
               : image.scaled(pixels / m_oversampling, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
}

QImage FieldScene::picture(const AxisScale& x, const AxisScale& y, QSize size)
{
    const QSize pixels = size * m_oversampling;
    // The world of a flat plot is the picture itself: one unit a pixel.
    Placement placement;
    placement.scale[2] = 0.0;
    placement.size = {double(pixels.width()), double(pixels.height())};
    placement.diagonal = std::hypot(placement.size[0], placement.size[1]);
    const std::array<const AxisScale*, 2> axes{&x, &y};
    const std::array<double, 2> lengths{double(pixels.width()), double(pixels.height())};
    for (std::size_t i = 0; i < 2; ++i) {
        const double from = placed(axes[i]->minimum(), axes[i]->isLogarithmic());
        const double to = placed(axes[i]->maximum(), axes[i]->isLogarithmic());
        placement.scale[i] = lengths[i] / (to - from) * (axes[i]->isReversed() ? -1.0 : 1.0);
        placement.shift[i] = -(axes[i]->isReversed() ? to : from) * placement.scale[i];
    }
    place(placement);
    vtkCamera* camera = m_renderer->GetActiveCamera();
    camera->SetParallelProjection(true);
    camera->SetFocalPoint(0.5 * lengths[0], 0.5 * lengths[1], 0.0);
    camera->SetPosition(0.5 * lengths[0], 0.5 * lengths[1], 100.0);
    camera->SetViewUp(0.0, 1.0, 0.0);
    camera->SetParallelScale(0.5 * lengths[1]);
    camera->SetClippingRange(1.0, 200.0);
    return rendered(pixels);
}

QImage FieldScene::picture(const Camera3D& view, QSize size)
{
    const QSize pixels = size * m_oversampling;
    vtkCamera* camera = m_renderer->GetActiveCamera();
    view.apply(*camera);
    Placement placement;
    placement.scale = m_scale;
    placement.shift = m_shift;
    placement.diagonal = m_boxDiagonal;
    const double height =
        camera->GetParallelProjection()
            ? 2.0 * camera->GetParallelScale()
            : 2.0 * camera->GetDistance() * std::tan(0.5 * vtkMath::RadiansFromDegrees(camera->GetViewAngle()));
    placement.pixelSize = height / std::max(1, pixels.height());
    placement.toViewer = view.toward();
    camera->GetViewUp(placement.up.data());
    place(placement);
    m_renderer->ResetCameraClippingRange();
    return rendered(pixels);
}

bool FieldScene::pick(vtkCellPicker& picker, double across, double up) const
{
    picker.SetTolerance(0.0005);
    if (!m_renderer->GetRenderWindow()) {
        return false;
    }
    // Another frame may have been rendered since, in another size.
    m_renderer->GetRenderWindow()->SetSize(m_pixels.width(), m_pixels.height());
    return picker.Pick(across * m_pixels.width(), up * m_pixels.height(), 0.0, m_renderer) != 0;
}

std::optional<Point3> FieldScene::pick(double across, double up) const
{
    const auto picker = vtkSmartPointer<vtkCellPicker>::New();
    if (!pick(*picker, across, up)) {
        return std::nullopt;
    }
    Point3 point{};
    picker->GetPickPosition(point.data());
    for (std::size_t i = 0; i < 3; ++i) {
        point[i] = (point[i] - m_shift[i]) / (m_scale[i] != 0.0 ? m_scale[i] : 1.0);
    }
    return point;
}

long FieldScene::zoneAt(double across, double up) const
{
    const auto picker = vtkSmartPointer<vtkCellPicker>::New();
    if (pick(*picker, across, up)) {
        for (const auto& [number, zone] : m_zones) {
            if (zone.layers->hasProp(picker->GetViewProp())) {
                return number;
            }
        }
    }
    return 0;
}

std::vector<QPointF> FieldScene::zoneCorners(long zone) const
{
    std::vector<QPointF> corners;
    const auto found = m_zones.find(zone);
    std::array<double, 6> bounds{};
    if (found == m_zones.end() || m_pixels.isEmpty() || !found->second.layers->worldBounds(bounds)) {
        return corners;
    }
    for (std::size_t corner = 0; corner < (found->second.isFlat ? 4U : 8U); ++corner) {
        corners.push_back(
            seenAt({bounds[corner & 1U], bounds[2 + (corner >> 1U & 1U)], bounds[4 + (corner >> 2U)]}).place);
    }
    return corners;
}

FieldScene::Seen FieldScene::seenAt(const Point3& world) const
{
    const double aspect = double(m_pixels.width()) / m_pixels.height();
    vtkMatrix4x4* toView = m_renderer->GetActiveCamera()->GetCompositeProjectionTransformMatrix(aspect, -1.0, 1.0);
    const std::array<double, 4> from{world[0], world[1], world[2], 1.0};
    std::array<double, 4> to{}; /* -1 to 1 in the picture */
    toView->MultiplyPoint(from.data(), to.data());
    return {QPointF(0.5 + 0.5 * to[0] / to[3], 0.5 + 0.5 * to[1] / to[3]), to[2] / to[3]};
}

long FieldScene::streamtraceAt(double across, double up, double reach) const
{
    const StreamPaths& paths = m_streamtraces->paths();
    if (m_pixels.isEmpty()) {
        return 0;
    }
    const double aspect = double(m_pixels.width()) / m_pixels.height();
    struct Candidate
    {
        double distance;
        QPointF place;
        double depth;
        long handle;
    };
    std::vector<Candidate> candidates; /* of each way that is near the place nearest to it */
    for (std::size_t path = 0; path < paths.count(); ++path) {
        Candidate nearest{reach, {}, 0.0, 0};
        std::optional<Seen> before;
        for (const Point3& point : paths.points(path)) {
            const Seen now = seenAt(m_placement.place(point));
            const Seen from = before.value_or(now);
            const QPointF along((now.place.x() - from.place.x()) * aspect, now.place.y() - from.place.y());
            const QPointF way((across - from.place.x()) * aspect, up - from.place.y());
            const double length = QPointF::dotProduct(along, along);
            const double part = length > 0.0 ? std::clamp(QPointF::dotProduct(way, along) / length, 0.0, 1.0) : 0.0;
            const QPointF beside = way - part * along;
            const double distance = std::hypot(beside.x(), beside.y());
            if (distance < nearest.distance) {
                nearest = {distance, from.place + part * (now.place - from.place),
                           std::lerp(from.depth, now.depth, part), paths.streamtrace(path).handle};
            }
            before = now;
        }
        if (nearest.handle != 0) {
            candidates.push_back(nearest);
        }
    }
    std::ranges::sort(candidates, {}, &Candidate::distance);
    const auto found = std::ranges::find_if(
        candidates, [&](const Candidate& candidate) { return isInFront(candidate.place, candidate.depth); });
    return found != candidates.end() ? found->handle : 0;
}

std::vector<QPointF> FieldScene::streamtracePlaces(long handle) const
{
    constexpr std::size_t most = 8;
    const StreamPaths& paths = m_streamtraces->paths();
    std::vector<QPointF> places;
    for (std::size_t path = 0; path < paths.count() && !m_pixels.isEmpty(); ++path) {
        const std::vector<Point3>& points = paths.points(path);
        const std::size_t count = paths.streamtrace(path).handle == handle ? std::min(points.size(), most) : 0;
        for (std::size_t i = 0; i < count; ++i) {
            places.push_back(
                seenAt(m_placement.place(points[count == 1 ? 0 : i * (points.size() - 1) / (count - 1)])).place);
        }
    }
    return places;
}

std::vector<SeenContourLine> FieldScene::contourLines() const
{
    std::vector<SeenContourLine> seen;
    if (m_pixels.isEmpty()) {
        return seen;
    }
    for (const auto& [number, zone] : m_zones) {
        ContourLineLayer& layer = zone.layers->contourLines();
        vtkPolyData* lines = layer.lines();
        vtkDataArray* levels = lines ? lines->GetPointData()->GetScalars() : nullptr;
        if (!levels || zone.labelledGroup < 1) {
            continue;
        }
        for (const LineChain& chain : layer.chains()) {
            SeenContourLine line;
            line.group = std::size_t(zone.labelledGroup - 1);
            line.level = levels->GetComponent(chain.points.front(), 0);
            for (const vtkIdType point : chain.points) {
                Point3 place{};
                lines->GetPoint(point, place.data());
                const Seen at = seenAt(m_placement.place(place));
                line.places << at.place;
                line.depths.push_back(at.depth);
            }
            seen.push_back(std::move(line));
        }
    }
    return seen;
}

bool FieldScene::isInFront(QPointF place, double depth) const
{
    constexpr double tolerance = 0.01; /* of the depth of the picture, -1 to 1 */
    const auto picker = vtkSmartPointer<vtkCellPicker>::New();
    if (m_placement.isFlat() || !pick(*picker, place.x(), place.y())) {
        return true;
    }
    const double* hit = picker->GetPickPosition();
    return depth <= seenAt({hit[0], hit[1], hit[2]}).depth + tolerance;
}

long FieldScene::geometryCount() const
{
    long count = 0;
    for (const auto& [number, zone] : m_zones) {
        count += zone.layers->geometryCount();
    }
    return count + m_streamtraces->geometryCount();
}

long FieldScene::surfacePointCount() const
{
    long count = 0;
    for (const auto& [number, zone] : m_zones) {
        count += zone.layers->surfacePointCount();
    }
    return count;
}

} // namespace vantrix::view
