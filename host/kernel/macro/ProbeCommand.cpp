#include "kernel/macro/ProbeCommand.h"

#include <stdexcept>

namespace vantrix::kernel {

namespace {

struct Describe
{
    MacroCommand operator()(const FieldPositionRequest& request) const
    {
        MacroCommand command{"ProbeAtFieldPosition",
                             {{"X", request.position[0]}, {"Y", request.position[1]}, {"Z", request.position[2]}}};
        if (request.isInVolume) {
            command.add("SearchVolume", 1L);
        }
        if (request.isNearestPoint) {
            command.add("NearestPoint", 1L);
        }
        return command;
    }
    MacroCommand operator()(const FieldIndexRequest& request) const
    {
        return {"ProbeAtFieldIndex", {{"I", request.i}, {"J", request.j}, {"K", request.k}, {"Zone", request.zone}}};
    }
    MacroCommand operator()(const LinePositionRequest& request) const
    {
        return {"ProbeAtLinePosition",
                {{"Axis", std::string(1, request.axis)},
                 {"AxisNum", static_cast<long>(request.axisNumber)},
                 {"Position", request.position}}};
    }
    MacroCommand operator()(const LineIndexRequest& request) const
    {
        return {"ProbeAtLineIndex",
                {{"I", request.i}, {"J", request.j}, {"K", request.k}, {"LineMap", request.lineMap}}};
    }
    MacroCommand operator()(const LineNearestRequest& /*request*/) const
    {
        throw std::logic_error("A probe of the nearest point is kept as the point that it found.");
    }
};

} // namespace

MacroCommand probeCommand(const ProbeRequest& request)
{
    return std::visit(Describe(), request);
}

} // namespace vantrix::kernel
