#include "kernel/streamtrace/StreamTracing.h"

#include "kernel/StyleStore.h"

#include <vtkDataArray.h>
#include <vtkMath.h>
#include <vtkPointData.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>
#include <vtkStreamTracer.h>

#include <algorithm>
#include <limits>

namespace vantrix::kernel {

namespace {

constexpr double relativeError = 1e-6; /* of one step, in sizes of the field */

/* How far a way that closes may miss its start, in lengths of the way: less than a line is thick. */
constexpr double closingGap = 2e-4;

constexpr int closed = vtkStreamTracer::FIXED_REASONS_FOR_TERMINATION_COUNT;

} // namespace

/* Watches one way for its return to where it began. */
struct StreamTracing::ClosingWatch
{
    vtkIdType seen = 1;
    double length = 0.0;
    bool isClosed = false;
};

bool StreamTracing::hasClosed(void* data, vtkPoints* points, vtkDataArray* /*velocity*/, int /*direction*/)
{
    auto& watch = *static_cast<ClosingWatch*>(data);
    const vtkIdType count = points->GetNumberOfPoints();
    Position start{};
    Position first{};
    Position from{};
    Position to{};
    for (; watch.seen < count; ++watch.seen) {
        points->GetPoint(watch.seen - 1, from.data());
        points->GetPoint(watch.seen, to.data());
        watch.length += std::sqrt(vtkMath::Distance2BetweenPoints(from.data(), to.data()));
    }
    if (count < 5) {
        return false;
    }
    points->GetPoint(0, start.data());
    points->GetPoint(1, first.data());
    // The last step passes the plane that stands on the way at its start, in the direction of the first step.
    Position way{};
    Position before{};
    Position after{};
    vtkMath::Subtract(first.data(), start.data(), way.data());
    vtkMath::Subtract(from.data(), start.data(), before.data());
    vtkMath::Subtract(to.data(), start.data(), after.data());
    const double behind = vtkMath::Dot(before.data(), way.data());
    const double ahead = vtkMath::Dot(after.data(), way.data());
    if (behind >= 0.0 || ahead < 0.0) {
        return false;
    }
    double gap2 = 0.0;
    for (std::size_t axis = 0; axis < 3; ++axis) {
        const double at = std::lerp(before[axis], after[axis], -behind / (ahead - behind));
        gap2 += at * at;
    }
    watch.isClosed = gap2 < closingGap * closingGap * watch.length * watch.length;
    return watch.isClosed;
}

/* What was traced in one direction, from the start on. */
struct StreamTracing::Half
{
    StreamtracePath path;
    bool isClosed = false;
};

TracingSettings TracingSettings::read(const StyleStore& style, long frame)
{
    const auto entry = [&](const char* path) { return style.entry(path); };
    return {style.real(frame, entry("StreamAttributes/CellFraction")),
            style.real(frame, entry("StreamAttributes/MinCellFraction")),
            style.integer(frame, entry("StreamAttributes/MaxSteps")),
            style.flag(frame, entry("StreamAttributes/ObeySourceZoneBlanking"))};
}

StreamTracing::StreamTracing(std::shared_ptr<const VelocityField> field, TracedPart part,
                             const TracingSettings& settings)
    : m_field(std::move(field))
    , m_watch(std::make_unique<ClosingWatch>())
    , m_tracer(vtkSmartPointer<vtkStreamTracer>::New())
{
    m_tracer->SetInputDataObject(&m_field->dataSet());
    m_tracer->SetInputArrayToProcess(0, 0, 0, vtkDataObject::FIELD_ASSOCIATION_POINTS, VelocityField::arrayName);
    m_tracer->SetIntegratorTypeToRungeKutta45();
    if (part == TracedPart::Surface) { // the other one loses surfaces that are curved
        m_tracer->SetInterpolatorTypeToDataSetPointLocator();
    } else {
        m_tracer->SetInterpolatorTypeToCellLocator();
    }
    m_tracer->SetIntegrationStepUnit(vtkStreamTracer::CELL_LENGTH_UNIT);
    m_tracer->SetInitialIntegrationStep(settings.largestStep);
    m_tracer->SetMaximumIntegrationStep(settings.largestStep);
    m_tracer->SetMinimumIntegrationStep(std::min(settings.smallestStep, settings.largestStep));
    m_tracer->SetMaximumError(relativeError * m_field->size());
    m_tracer->SetMaximumNumberOfSteps(settings.maxSteps);
    m_tracer->SetMaximumPropagation(std::numeric_limits<double>::max());
    m_tracer->SetSurfaceStreamlines(part == TracedPart::Surface);
    m_tracer->AddCustomTerminationCallback(&hasClosed, m_watch.get(), closed);
    m_tracer->SetRotationScale(0.5); // a fluid turns half as fast as its vorticity says
}

StreamTracing::~StreamTracing() = default;
StreamTracing::StreamTracing(StreamTracing&&) noexcept = default;
StreamTracing& StreamTracing::operator=(StreamTracing&&) noexcept = default;

StreamTracing::Half StreamTracing::half(const Position& start, bool isForward, bool isRibbon)
{
    *m_watch = {};
    m_tracer->SetStartPosition(start[0], start[1], start[2]);
    m_tracer->SetComputeVorticity(isRibbon);
    m_tracer->SetIntegrationDirection(isForward ? vtkStreamTracer::FORWARD : vtkStreamTracer::BACKWARD);
    m_tracer->Modified();
    m_tracer->Update();
    vtkPolyData* traced = m_tracer->GetOutput();
    Half result;
    result.isClosed = m_watch->isClosed;
    vtkDataArray* times = traced->GetPointData()->GetArray("IntegrationTime");
    vtkDataArray* turns = isRibbon ? traced->GetPointData()->GetArray("AngularVelocity") : nullptr;
    const vtkIdType count = times ? traced->GetNumberOfPoints() : 0;
    double twist = 0.0;
    for (vtkIdType i = 0; i < count; ++i) {
        result.path.points.emplace_back();
        traced->GetPoint(i, result.path.points.back().data());
        result.path.times.push_back(times->GetComponent(i, 0));
        if (turns) {
            const double passed = i > 0 ? times->GetComponent(i, 0) - times->GetComponent(i - 1, 0) : 0.0;
            twist += i > 0 ? 0.5 * (turns->GetComponent(i, 0) + turns->GetComponent(i - 1, 0)) * passed : 0.0;
            result.path.twists.push_back(twist);
        }
    }
    return result;
}

StreamtracePath StreamTracing::path(const Streamtrace& streamtrace)
{
    const Position start{streamtrace.x, streamtrace.y, streamtrace.type == Streamtrace_TwoDLine ? 0.0 : streamtrace.z};
    const bool isRibbon = streamtrace.type == Streamtrace_VolumeRibbon;
    StreamtracePath path;
    if (m_field->blocks().empty()) {
        return path;
    }
    Half forward;
    if (streamtrace.direction != StreamDir_Reverse) {
        forward = half(start, true, isRibbon);
    }
    if (streamtrace.direction != StreamDir_Forward && !forward.isClosed) {
        path = half(start, false, isRibbon).path;
        std::ranges::reverse(path.points);
        std::ranges::reverse(path.times);
        std::ranges::reverse(path.twists);
    }
    const auto append = [](auto& to, const auto& from) {
        to.insert(to.end(), from.begin() + (to.empty() || from.empty() ? 0 : 1), from.end());
    };
    append(path.points, forward.path.points);
    append(path.times, forward.path.times);
    append(path.twists, forward.path.twists);
    return path;
}

} // namespace vantrix::kernel
