#include "kernel/ProbeService.h"

#include "kernel/ApplicationLock.h"
#include "kernel/DataError.h"
#include "kernel/Document.h"
#include "kernel/FrontEnd.h"
#include "kernel/Kernel.h"
#include "kernel/MouseModes.h"
#include "kernel/StateChanges.h"
#include "kernel/StyleStore.h"
#include "kernel/UndoStack.h"
#include "kernel/macro/MacroRecorder.h"
#include "kernel/macro/ProbeCommand.h"

#include <utility>

namespace vantrix::kernel {

namespace {

bool isNearestPoint(const ProbeRequest& request)
{
    const auto* position = std::get_if<FieldPositionRequest>(&request);
    return (position && position->isNearestPoint) || std::holds_alternative<LineNearestRequest>(request);
}

const Frame& activeFrame(const Kernel& kernel)
{
    const Frame* frame = kernel.document().activeFrame();
    if (!frame) {
        throw DataError("There is no frame to probe.");
    }
    return *frame;
}

} // namespace

ProbeService::ProbeService(Kernel& kernel)
    : m_kernel(kernel)
    , m_meshes(kernel.document())
{
    m_kernel.stateChanges().addListener(&ProbeService::stateChanged, this);
}

/* Something was probed. */
class ProbeService::Change : public UndoableChange
{
public:
    explicit Change(ProbeService& probes)
        : m_probes(probes)
        , m_before(probes.m_found)
    {}

    void undo() override { m_probes.restore(m_before); }
    void redo() override {}
    std::size_t memory(bool /*isDone*/) const override { return 0; }
    bool isTransient() const override { return true; }

private:
    ProbeService& m_probes;
    Found m_before;
};

ProbeService::~ProbeService()
{
    m_kernel.stateChanges().removeListener(&ProbeService::stateChanged, this);
}

void ProbeService::stateChanged(VtxStateChangeHandle change, void* service)
{
    auto* self = static_cast<ProbeService*>(service);
    if (change->kind != StateChange_MouseMode) {
        return;
    }
    const bool wasOn = std::exchange(self->m_isModeOn, self->m_kernel.mouseModes().current() == MouseMode_Probe);
    if (wasOn && !self->m_isModeOn) {
        self->m_kernel.frontEnd().showStatus(""); // what it tells is about probing
    }
}

void ProbeService::install(VtxProbeFunction receiver, long clientData, std::string statusLineText)
{
    if (receiver && !m_kernel.mouseModes().set(MouseMode_Probe)) {
        throw DataError("There is nothing to probe: the active frame shows no plot of data.");
    }
    m_function = receiver;
    m_clientData = clientData;
    m_statusLineText = std::move(statusLineText);
    if (!m_statusLineText.empty()) {
        m_kernel.frontEnd().showStatus(m_statusLineText);
    }
}

ProbeService::Result ProbeService::resultOf(const ProbeRequest& request, const Frame& frame)
{
    return std::visit(
        [&](const auto& asked) -> Result {
            using Request = std::decay_t<decltype(asked)>;
            using OneOf = std::conditional_t<std::is_same_v<Request, FieldPositionRequest> ||
                                                 std::is_same_v<Request, FieldIndexRequest>,
                                             FieldProbeResult, LineProbeResult>;
            std::optional<OneOf> found;
            if constexpr (std::is_same_v<OneOf, FieldProbeResult>) {
                found = fieldProbe().probe(asked);
            } else {
                found = LineProbe(m_kernel.style(), frame).probe(asked);
            }
            return found ? Result(std::move(*found)) : Result();
        },
        request);
}

bool ProbeService::perform(const ProbeRequest& request, VtxProbeFunction told)
{
    const Frame& frame = activeFrame(m_kernel);
    // NOLINTNEXTLINE(performance-unnecessary-copy-initialization): it may be the one that is kept
    const ProbeRequest asked = request;
    MacroRecorder::Call call(m_kernel.macroRecorder(), m_kernel.lock().isRecorded());
    Result result = resultOf(asked, frame);
    const bool isFound = !std::holds_alternative<std::monostate>(result);
    if (isFound) {
        m_kernel.undoStack().record(std::make_unique<Change>(*this));
        m_found = {asked,
                   static_cast<PlotType_e>(m_kernel.style().integer(frame.id(), m_kernel.style().entry("PlotType"))),
                   frame.id(), std::move(result)};
        if (lineResult() && lineResult()->pickedMap != 0) {
            m_found.request = lineResult()->picked; // what is nearest may be another point in another view
        } else if (fieldResult() && fieldResult()->picked) {
            m_found.request = *fieldResult()->picked;
        }
    }
    if (isFound && call.isDescribed()) {
        call.succeeded(probeCommand(*m_found.request));
    }
    if (told) {
        told(isFound ? 1 : 0, isNearestPoint(asked) ? 1 : 0, m_clientData);
    }
    tellListeners();
    return isFound;
}

void ProbeService::restore(const Found& found)
{
    m_found = found;
    tellListeners();
}

void ProbeService::tellListeners() const
{
    for (const auto& [owner, listener] : m_listeners) {
        listener();
    }
}

void ProbeService::addListener(const void* owner, std::function<void()> listener)
{
    m_listeners[owner] = std::move(listener);
}

void ProbeService::removeListener(const void* owner)
{
    m_listeners.erase(owner);
}

const FieldProbeResult* ProbeService::fieldResult() const
{
    return std::get_if<FieldProbeResult>(&m_found.result);
}

const LineProbeResult* ProbeService::lineResult() const
{
    return std::get_if<LineProbeResult>(&m_found.result);
}

FieldProbe& ProbeService::fieldProbe()
{
    const Frame& frame = activeFrame(m_kernel);
    const FieldContext present{frame.id(), m_kernel.style().scopeStamp(frame.id()), frame.dataSet()};
    if (!m_fieldProbe || present != m_fieldContext) {
        m_fieldProbe.reset();
        m_fieldProbe.emplace(m_kernel.style(), frame, m_meshes);
        m_fieldContext = present;
    }
    return *m_fieldProbe;
}

void ProbeService::reset()
{
    m_fieldProbe.reset();
    m_fieldContext = {};
    m_meshes.clear();
    m_found = {};
}

} // namespace vantrix::kernel
