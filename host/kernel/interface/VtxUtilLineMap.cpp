#include "api/VtxUtilLineMap.h"

#include "kernel/DataError.h"
#include "kernel/Document.h"
#include "kernel/LineMaps.h"
#include "kernel/interface/ArgumentList.h"
#include "kernel/interface/Boundary.h"

#include <optional>

using namespace vantrix::kernel;
using vantrix::kernel::boundary::setIfNotNull;

namespace {

/* Those of the active frame; nothing without one. */
std::optional<LineMaps> lineMaps()
{
    const Kernel& kernel = Kernel::instance();
    const Frame* frame = kernel.document().activeFrame();
    return frame ? std::optional<LineMaps>(std::in_place, kernel.style(), *frame) : std::nullopt;
}

LineMaps expectLineMaps()
{
    if (auto maps = lineMaps()) {
        return *maps;
    }
    throw DataError("There is no frame, and therefore there are no line maps.");
}

bool noSuch(const LineMaps& maps, long lineMap)
{
    return boundary::fail("There is no line map " + std::to_string(lineMap) + " in this frame, which has " +
                          std::to_string(maps.count()) + ".");
}

} // namespace

long VtxUtilLineMapGetCount(void)
{
    return boundary::guarded(0L, [] {
        const auto maps = lineMaps();
        return maps ? maps->count() : 0;
    });
}

bool VtxUtilLineMapGetName(long lineMap, char** name)
{
    *name = nullptr;
    return boundary::guarded(false, [&] {
        const LineMaps maps = expectLineMaps();
        if (!maps.has(lineMap)) {
            return noSuch(maps, lineMap);
        }
        *name = boundary::copyString(maps.name(lineMap));
        return *name != nullptr;
    });
}

VtxSetHandle VtxUtilLineMapGetActive(void)
{
    return boundary::guarded(VtxSetHandle{}, [] {
        const auto maps = lineMaps();
        if (!maps) {
            return VtxSetHandle{};
        }
        const std::vector<long> active = maps->active();
        auto set = std::make_unique<VtxSet>();
        set->members = {active.begin(), active.end()};
        return set.release();
    });
}

bool VtxUtilLineMapGetAssignment(long lineMap, long* zone, long* xVariable, long* yVariable, int* xAxis, int* yAxis)
{
    return boundary::guarded(false, [&] {
        const LineMaps maps = expectLineMaps();
        if (!maps.has(lineMap)) {
            return noSuch(maps, lineMap);
        }
        const LineMapAssignment assignment = maps.assignment(lineMap);
        setIfNotNull(zone, assignment.zone);
        setIfNotNull(xVariable, assignment.xVariable);
        setIfNotNull(yVariable, assignment.yVariable);
        setIfNotNull(xAxis, assignment.xAxis);
        setIfNotNull(yAxis, assignment.yAxis);
        return true;
    });
}

bool VtxUtilLineMapCreate(long zone, long xVariable, long yVariable)
{
    const auto add = [&] {
        boundary::nameStep("Add Line Map");
        expectLineMaps().add({{.zone = zone, .xVariable = xVariable, .yVariable = yVariable}});
        return true;
    };
    return boundary::change<&VtxUtilLineMapCreate>(false, add, zone, xVariable, yVariable);
}

bool VtxUtilLineMapDelete(VtxSetHandle lineMaps)
{
    const auto remove = [&] {
        boundary::nameStep("Delete Line Maps");
        expectLineMaps().remove(lineMaps ? lineMaps->members : std::set<long>());
        return true;
    };
    return boundary::change<&VtxUtilLineMapDelete>(false, remove, lineMaps);
}
