#pragma once

#include "kernel/Frame.h"
#include "kernel/probe/ProbeMesh.h"
#include "kernel/streamtrace/VelocityField.h"

#include <optional>
#include <set>
#include <variant>
#include <vector>

namespace vantrix::kernel {

class Kernel;

/* A point of a zone, from 1; of a finite-element zone `i` is the number of the point. */
struct ZonePoint
{
    long zone = 1;
    long i = 1;
    long j = 1;
    long k = 1;
};

/* See VtxUtilStreamtraceAddX(); what is left out has the frame's default. */
struct PlacementRequest
{
    using Place = std::variant<Position, ZonePoint>;

    std::optional<long> type;
    std::optional<long> direction;
    std::optional<long> region;
    std::optional<long> count;
    std::optional<Place> from;
    std::optional<Place> to; /* of a rake */
};

/* Finds where new streamtraces of the active frame start. */
class StreamtracePlacement
{
public:
    /* Throws DataError when the frame's plot cannot have streamtraces. */
    explicit StreamtracePlacement(Kernel& kernel);

    /* Throws DataError that names what is wrong with the request. */
    std::vector<Streamtrace> place(const PlacementRequest& request) const;

    /* Whether a frame has a plot that can show streamtraces. */
    static bool canShow(const StyleStore& style, const Frame& frame);

private:
    Position position(const PlacementRequest::Place& place) const;
    std::vector<Position> onRake(const Position& from, const Position& to, long count, Streamtrace_e type) const;
    std::vector<Position> onSurfaces(const std::set<long>& zones, long count) const;
    std::optional<Position> belowSurface(const Position& position) const;
    std::optional<Position> inData(const Position& position, Streamtrace_e type) const;
    std::set<long> pickedZones() const;

    Kernel& m_kernel;
    const Frame& m_frame;
    PlotType_e m_plotType;
};

} // namespace vantrix::kernel
