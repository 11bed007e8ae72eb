#pragma once

#include "kernel/Streamtrace.h"
#include "kernel/probe/ProbeMesh.h"
#include "kernel/streamtrace/VelocityField.h"

#include <vtkSmartPointer.h>

#include <memory>
#include <vector>

class vtkDataArray;
class vtkPoints;
class vtkStreamTracer;

namespace vantrix::kernel {

/* The way of one streamtrace, with the flow. */
struct StreamtracePath
{
    std::vector<Position> points; /* fewer than two where there is nothing to follow */
    std::vector<double> times;    /* of each point; 0 at the start, below it where the flow comes from */
    std::vector<double> twists;   /* of a ribbon: how far the flow turned it about its way, in radians */
};

/* How exactly streamtraces are traced; steps are in parts of the cell that is passed. */
struct TracingSettings
{
    double largestStep = 0.25;
    double smallestStep = 1e-5;
    long maxSteps = 10000; /* in each direction */
    bool obeysBlanking = false;

    bool operator==(const TracingSettings&) const = default;

    static TracingSettings read(const StyleStore& style, long frame);
};

/*
 * Follows a velocity field by a Runge-Kutta method of fifth order that adapts its steps (VTK's). A way ends where the
 * cells end, where the velocity is 0, after the largest number of steps, where it closes, and where it only goes to and
 * fro. On surfaces the vectors' part along the surface counts, and steps are of fourth order and the largest size.
 */
class StreamTracing
{
public:
    StreamTracing(std::shared_ptr<const VelocityField> field, TracedPart part, const TracingSettings& settings);
    ~StreamTracing();
    StreamTracing(StreamTracing&&) noexcept;
    StreamTracing& operator=(StreamTracing&&) noexcept;

    StreamtracePath path(const Streamtrace& streamtrace);

private:
    struct Half;
    struct ClosingWatch;
    static bool hasEnded(void* watch, vtkPoints* points, vtkDataArray* velocity, int direction);
    int addPiece(const Position& start, bool isForward, bool isRibbon, Half& half);
    Half half(const Position& start, bool isForward, bool isRibbon);

    std::shared_ptr<const VelocityField> m_field;
    TracedPart m_part;
    long m_maxSteps;
    std::unique_ptr<ClosingWatch> m_watch;
    vtkSmartPointer<vtkStreamTracer> m_tracer;
};

} // namespace vantrix::kernel
