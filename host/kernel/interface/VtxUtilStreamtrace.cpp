#include "api/VtxUtilStreamtrace.h"

#include "kernel/DataError.h"
#include "kernel/Document.h"
#include "kernel/FrameObjects.h"
#include "kernel/Progress.h"
#include "kernel/StyleStore.h"
#include "kernel/UndoStack.h"
#include "kernel/interface/ArgumentList.h"
#include "kernel/interface/Boundary.h"
#include "kernel/streamtrace/StreamtracePaths.h"
#include "kernel/streamtrace/StreamtracePlacement.h"

#include <algorithm>
#include <array>

using namespace vantrix::kernel;

namespace {

const Frame* activeFrame()
{
    return Kernel::instance().document().activeFrame();
}

const Streamtrace* streamtraceAt(long number)
{
    const Frame* frame = activeFrame();
    const bool isThere = frame && number >= 1 && number <= static_cast<long>(frame->streamtraces().size());
    if (!isThere) {
        const std::size_t count = frame ? frame->streamtraces().size() : 0;
        boundary::fail("There is no streamtrace " + std::to_string(number) + "; the active frame has " +
                       std::to_string(count) + '.');
    }
    return isThere ? frame->streamtraces()[static_cast<std::size_t>(number - 1)].get() : nullptr;
}

/* The arguments of VtxUtilStreamtraceAddX(), each asked for by its name. */
class Arguments
{
public:
    explicit Arguments(const VtxArgList& list)
        : m_list(list)
    {
        static constexpr std::array integers{
            "StreamType", "StreamDirection", "DistributionRegion", "NumPts", "Zone", "I1", "J1", "K1", "I2", "J2",
            "K2"};
        static constexpr std::array reals{"X1", "Y1", "Z1", "X2", "Y2", "Z2"};
        for (const VtxArgList::Argument& argument : list.arguments) {
            const bool isKnown =
                (std::ranges::find(integers, argument.name) != integers.end() &&
                 std::holds_alternative<long>(argument.value)) ||
                (std::ranges::find(reals, argument.name) != reals.end() && number(argument.value).has_value());
            if (!isKnown) {
                throw DataError("The argument \"" + argument.name + "\" is unknown or has a wrong type.");
            }
        }
    }

    std::optional<long> integer(const char* name) const
    {
        const long* value = m_list.findAs<long>(name);
        return value ? std::optional(*value) : std::nullopt;
    }

    /* The place with a digit, '1' or '2', behind its names. */
    std::optional<PlacementRequest::Place> place(char digit) const
    {
        const auto named = [&](char letter) { return std::string{letter, digit}; };
        if (m_list.find(named('X')) || m_list.find(named('Y'))) {
            return Position{needed(named('X')), needed(named('Y')), real(named('Z')).value_or(0.0)};
        }
        if (const auto i = integer(named('I').c_str())) {
            return ZonePoint{integer("Zone").value_or(1), *i, integer(named('J').c_str()).value_or(1),
                             integer(named('K').c_str()).value_or(1)};
        }
        return std::nullopt;
    }

private:
    static std::optional<double> number(const VtxArgList::Value& value)
    {
        const long* whole = std::get_if<long>(&value);
        const double* real = std::get_if<double>(&value);
        return real ? std::optional(*real) : whole ? std::optional(static_cast<double>(*whole)) : std::nullopt;
    }
    std::optional<double> real(const std::string& name) const
    {
        const VtxArgList::Value* value = m_list.find(name);
        return value ? number(*value) : std::nullopt;
    }
    double needed(const std::string& name) const
    {
        const auto value = real(name);
        if (!value) {
            throw DataError("A position needs the argument \"" + name + "\".");
        }
        return *value;
    }

    const VtxArgList& m_list;
};

/* What is traced at once can be stopped, and is then not added: what was done since the mark is taken back. */
void trace(const Frame& frame, std::size_t mark)
{
    Kernel& kernel = Kernel::instance();
    const Progress progress(kernel.frontEnd(), "Tracing streamtraces");
    try {
        kernel.streamtracePaths().of(frame, progress.report());
    } catch (...) {
        kernel.undoStack().rollBackStep(mark);
        throw;
    }
}

} // namespace

bool VtxUtilQueryCanPlotStreamtraces(void)
{
    const Frame* frame = activeFrame();
    return frame && StreamtracePlacement::canShow(Kernel::instance().style(), *frame);
}

bool VtxUtilQueryZoneCanPlotVolumeStreamtraces(long zone)
{
    const Frame* frame = activeFrame();
    const Zone* found = frame && frame->dataSet() ? frame->dataSet()->zone(zone) : nullptr;
    const StyleStore& style = Kernel::instance().style();
    return found && found->topologicalDimension() == 3 &&
           style.integer(frame->id(), style.entry("FieldMap/Surfaces/SurfacesToPlot"), zone) == SurfacesToPlot_None;
}

long VtxUtilStreamtraceGetCount(void)
{
    const Frame* frame = activeFrame();
    return frame ? static_cast<long>(frame->streamtraces().size()) : 0;
}

bool VtxUtilStreamtraceAddX(VtxArgListHandle arguments)
{
    const auto add = [&] {
        Kernel& kernel = Kernel::instance();
        boundary::nameStep("Add Streamtraces");
        const Arguments given(*arguments);
        const StreamtracePlacement placement(kernel);
        const std::size_t before = kernel.undoStack().mark();
        kernel.streamtraces().add(*kernel.document().activeFrame(),
                                  placement.place({given.integer("StreamType"), given.integer("StreamDirection"),
                                                   given.integer("DistributionRegion"), given.integer("NumPts"),
                                                   given.place('1'), given.place('2')}));
        trace(*activeFrame(), before);
        return true;
    };
    return boundary::change<&VtxUtilStreamtraceAddX>(false, add, arguments);
}

bool VtxUtilStreamtraceDeleteRange(long first, long last)
{
    const auto remove = [&] {
        if (!streamtraceAt(first) || !streamtraceAt(last)) {
            return false;
        }
        if (first > last) {
            return boundary::fail("A range of streamtraces runs from the smaller number to the larger.");
        }
        boundary::nameStep("Delete Streamtraces");
        std::set<long> handles;
        for (long number = first; number <= last; ++number) {
            handles.insert(streamtraceAt(number)->handle);
        }
        Kernel::instance().streamtraces().remove(handles);
        return true;
    };
    return boundary::change<&VtxUtilStreamtraceDeleteRange>(false, remove, first, last);
}

bool VtxUtilStreamtraceDeleteAll(void)
{
    const auto remove = [] {
        std::set<long> handles;
        if (const Frame* frame = activeFrame()) {
            for (const auto& streamtrace : frame->streamtraces()) {
                handles.insert(streamtrace->handle);
            }
        }
        boundary::nameStep("Delete Streamtraces");
        Kernel::instance().streamtraces().remove(handles);
        return true;
    };
    return boundary::change<&VtxUtilStreamtraceDeleteAll>(false, remove);
}

bool VtxUtilStreamtraceGetPosition(long streamtrace, double* x, double* y, double* z)
{
    const Streamtrace* found = streamtraceAt(streamtrace);
    if (!found) {
        return false;
    }
    boundary::setIfNotNull(x, found->x);
    boundary::setIfNotNull(y, found->y);
    boundary::setIfNotNull(z, found->z);
    return true;
}

bool VtxUtilStreamtraceGetFormat(long streamtrace, Streamtrace_e* type, StreamDir_e* direction)
{
    const Streamtrace* found = streamtraceAt(streamtrace);
    if (!found) {
        return false;
    }
    boundary::setIfNotNull(type, found->type);
    boundary::setIfNotNull(direction, found->direction);
    return true;
}
