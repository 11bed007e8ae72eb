#include "kernel/streamtrace/StreamTracing.h"

#include "kernel/StyleStore.h"

#include <vtkCellData.h>
#include <vtkDataArray.h>
#include <vtkMath.h>
#include <vtkPointData.h>
#include <vtkPoints.h>
#include <vtkPolyData.h>
#include <vtkStreamTracer.h>

#include <algorithm>
#include <cmath>
#include <limits>

namespace vantrix::kernel {

namespace {

constexpr double relativeError = 1e-6; /* of one step, in sizes of the field */

/* How far a way that closes may miss its start, in lengths of the way: less than a line is thick. */
constexpr double closingGap = 2e-4;

/* The shortest piece of a way on a surface that is worth going on from, in sizes of the field. */
constexpr double shortestPiece = 1e-4;

/* A way that stays within a step and a half for so many steps only goes to and fro, as beside a line where the flow
 * leaves a surface. */
constexpr vtkIdType stuckSteps = 64;
constexpr double stuckReach = 1.5;

constexpr int closed = vtkStreamTracer::FIXED_REASONS_FOR_TERMINATION_COUNT;

} // namespace

/* Watches one way, which may be traced in pieces, for its return to where it began, and for getting stuck. */
struct StreamTracing::ClosingWatch
{
    Position start{};
    std::optional<Position> way; /* from the start to the first point behind it */
    double length = 0.0;
    vtkIdType points = 0; /* passed */
    vtkIdType seen = 1;   /* of the piece under way */
    bool isClosed = false;

    Position marked{}; /* the last place from which it is watched for getting stuck */
    double markedLength = 0.0;
    vtkIdType markedPoints = 0;
    double reach2 = 0.0; /* the farthest that it came since */

    bool isStuck(const Position& at)
    {
        if (points == markedPoints + stuckSteps) {
            const double step = (length - markedLength) / double(stuckSteps);
            if (reach2 < stuckReach * stuckReach * step * step) {
                return true;
            }
            marked = at;
            markedLength = length;
            markedPoints = points;
            reach2 = 0.0;
        }
        reach2 = std::max(reach2, vtkMath::Distance2BetweenPoints(marked.data(), at.data()));
        return false;
    }
};

bool StreamTracing::hasEnded(void* data, vtkPoints* points, vtkDataArray* /*velocity*/, int /*direction*/)
{
    auto& watch = *static_cast<ClosingWatch*>(data);
    Position from{};
    Position to{};
    bool isStuck = false;
    for (; watch.seen < points->GetNumberOfPoints(); ++watch.seen) {
        points->GetPoint(watch.seen - 1, from.data());
        points->GetPoint(watch.seen, to.data());
        watch.length += std::sqrt(vtkMath::Distance2BetweenPoints(from.data(), to.data()));
        if (!watch.way) {
            watch.start = watch.marked = from;
            watch.way.emplace();
            vtkMath::Subtract(to.data(), from.data(), watch.way->data());
        }
        ++watch.points;
        isStuck = watch.isStuck(to) || isStuck;
    }
    if (watch.points < 4 || isStuck) {
        return isStuck;
    }
    // The last step passes the plane that stands on the way at its start, in the direction of the first step.
    Position before{};
    Position after{};
    vtkMath::Subtract(from.data(), watch.start.data(), before.data());
    vtkMath::Subtract(to.data(), watch.start.data(), after.data());
    const double behind = vtkMath::Dot(before.data(), watch.way->data());
    const double ahead = vtkMath::Dot(after.data(), watch.way->data());
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
    , m_part(part)
    , m_maxSteps(settings.maxSteps)
    , m_watch(std::make_unique<ClosingWatch>())
    , m_tracer(vtkSmartPointer<vtkStreamTracer>::New())
{
    m_tracer->SetInputDataObject(&m_field->dataSet());
    m_tracer->SetInputArrayToProcess(0, 0, 0, vtkDataObject::FIELD_ASSOCIATION_POINTS, VelocityField::arrayName);
    if (part == TracedPart::Surface) {
        // Steps that adapt themselves get tiny at every edge of the surface, where the vectors' part along it jumps;
        // and the locator of cells loses surfaces that are curved.
        m_tracer->SetIntegratorTypeToRungeKutta4();
        m_tracer->SetInterpolatorTypeToDataSetPointLocator();
    } else {
        m_tracer->SetIntegratorTypeToRungeKutta45();
        m_tracer->SetInterpolatorTypeToCellLocator();
    }
    m_tracer->SetIntegrationStepUnit(vtkStreamTracer::CELL_LENGTH_UNIT);
    m_tracer->SetInitialIntegrationStep(settings.largestStep);
    m_tracer->SetMaximumIntegrationStep(settings.largestStep);
    m_tracer->SetMinimumIntegrationStep(std::min(settings.smallestStep, settings.largestStep));
    m_tracer->SetMaximumError(relativeError * m_field->size());
    m_tracer->SetMaximumPropagation(std::numeric_limits<double>::max());
    m_tracer->SetSurfaceStreamlines(part == TracedPart::Surface);
    m_tracer->AddCustomTerminationCallback(&hasEnded, m_watch.get(), closed);
    m_tracer->SetRotationScale(0.5); // a fluid turns half as fast as its vorticity says
}

StreamTracing::~StreamTracing() = default;
StreamTracing::StreamTracing(StreamTracing&&) noexcept = default;
StreamTracing& StreamTracing::operator=(StreamTracing&&) noexcept = default;

/* Traces as far as the tracer comes; returns why it ended there. */
int StreamTracing::addPiece(const Position& start, bool isForward, bool isRibbon, Half& half)
{
    StreamtracePath& path = half.path;
    m_watch->seen = 1;
    m_tracer->SetStartPosition(start[0], start[1], start[2]);
    m_tracer->SetMaximumNumberOfSteps(std::max(0L, m_maxSteps - static_cast<long>(path.points.size()) + 1));
    m_tracer->SetComputeVorticity(isRibbon);
    m_tracer->SetIntegrationDirection(isForward ? vtkStreamTracer::FORWARD : vtkStreamTracer::BACKWARD);
    m_tracer->Modified();
    m_tracer->Update();
    vtkPolyData* traced = m_tracer->GetOutput();
    half.isClosed = m_watch->isClosed;
    vtkDataArray* times = traced->GetPointData()->GetArray("IntegrationTime");
    vtkDataArray* turns = isRibbon ? traced->GetPointData()->GetArray("AngularVelocity") : nullptr;
    vtkDataArray* reasons = traced->GetCellData()->GetArray("ReasonForTermination");
    const vtkIdType count = times ? traced->GetNumberOfPoints() : 0;
    const double passed = path.times.empty() ? 0.0 : path.times.back();
    double twist = path.twists.empty() ? 0.0 : path.twists.back();
    for (vtkIdType i = path.points.empty() ? 0 : 1; i < count; ++i) {
        path.points.emplace_back();
        traced->GetPoint(i, path.points.back().data());
        path.times.push_back(passed + times->GetComponent(i, 0));
        if (turns) {
            const double step = i > 0 ? times->GetComponent(i, 0) - times->GetComponent(i - 1, 0) : 0.0;
            twist += i > 0 ? 0.5 * (turns->GetComponent(i, 0) + turns->GetComponent(i - 1, 0)) * step : 0.0;
            path.twists.push_back(twist);
        }
    }
    return reasons && reasons->GetNumberOfTuples() > 0 ? static_cast<int>(reasons->GetComponent(0, 0))
                                                       : vtkStreamTracer::NOT_INITIALIZED;
}

StreamTracing::Half StreamTracing::half(const Position& start, bool isForward, bool isRibbon)
{
    Half result;
    *m_watch = {};
    Position from = start;
    for (;;) {
        const std::size_t before = result.path.points.size();
        const double length = m_watch->length;
        const int reason = addPiece(from, isForward, isRibbon, result);
        const std::vector<Position>& points = result.path.points;
        if (m_part != TracedPart::Surface || points.size() <= std::max<std::size_t>(before, 1)) {
            return result;
        }
        // Step by step a way leaves a surface that is curved, until the tracer takes that for its end.
        VelocityField::CellSearch search(*m_field);
        for (std::size_t i = before; i < points.size(); ++i) {
            if (const auto onSurface = search.closest(points[i])) {
                result.path.points[i] = *onSurface;
            }
        }
        if (reason != vtkStreamTracer::OUT_OF_DOMAIN || result.isClosed ||
            static_cast<long>(points.size()) > m_maxSteps ||
            m_watch->length - length < shortestPiece * m_field->size()) {
            return result;
        }
        from = points.back();
    }
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
