#pragma once

#include "api/VtxUtilProbe.h"
#include "kernel/probe/FieldProbe.h"
#include "kernel/probe/LineProbe.h"

#include <functional>
#include <map>
#include <optional>
#include <string>
#include <variant>

namespace vantrix::kernel {

class Kernel;

using ProbeRequest =
    std::variant<FieldPositionRequest, FieldIndexRequest, LinePositionRequest, LineIndexRequest, LineNearestRequest>;

/*
 * Probes the active frame, keeps what was found last, and tells the installed function of it. What was found is about
 * the frame that was active then, and stays as it was when data or style change.
 */
class ProbeService
{
public:
    explicit ProbeService(Kernel& kernel);
    ~ProbeService();
    ProbeService(const ProbeService&) = delete;
    ProbeService& operator=(const ProbeService&) = delete;

    /* See VtxUtilProbeInstallCallbackX(). Throws DataError, and changes nothing, when the plot cannot be probed. */
    void install(VtxProbeFunction receiver, long clientData, std::string statusLineText);
    VtxProbeFunction function() const { return m_function; }

    /* Empty until a function is installed with one. When the mouse leaves probe mode, the status line is emptied. */
    const std::string& statusLineText() const { return m_statusLineText; }

    /*
     * Probes, keeps request and result, and tells the installed function, or in its place `told`, which may be
     * null. False when the position is outside the data; there is no result then. Throws DataError, and changes
     * nothing, for what cannot be probed.
     */
    bool perform(const ProbeRequest& request) { return perform(request, m_function); }
    bool perform(const ProbeRequest& request, VtxProbeFunction told);

    /* What was probed last; null where nothing was. */
    const ProbeRequest* request() const { return m_request ? &*m_request : nullptr; }
    PlotType_e plotType() const { return m_plotType; }

    /* The frame that was probed; 0 where nothing was. */
    long frameId() const { return m_frameId; }

    /* What was found; null where nothing was, or the last probe was of another kind. */
    const FieldProbeResult* fieldResult() const;
    const LineProbeResult* lineResult() const;

    /* Probes the active frame without a result that is kept, for searches by the thousand; stays until data or style
     * change. Throws as FieldProbe does. */
    FieldProbe& fieldProbe();

    /* Calls back after every probe, whoever made it; for a view that marks what was found. One for an owner. */
    void addListener(const void* owner, std::function<void()> listener);
    void removeListener(const void* owner);

    /* Nothing was probed. The function stays. */
    void reset();

private:
    static void stateChanged(VtxStateChangeHandle change, void* service);

    using Result = std::variant<std::monostate, FieldProbeResult, LineProbeResult>;
    Result resultOf(const ProbeRequest& request, const Frame& frame);

    /* What a FieldProbe was made for. */
    struct FieldContext
    {
        long frame = 0;
        unsigned long style = 0;
        std::shared_ptr<const DataSet> dataSet;
        bool operator==(const FieldContext&) const = default;
    };

    Kernel& m_kernel;
    ProbeMeshes m_meshes;
    FieldContext m_fieldContext;
    std::optional<FieldProbe> m_fieldProbe;
    VtxProbeFunction m_function = nullptr;
    long m_clientData = 0;
    std::string m_statusLineText;
    bool m_isModeOn = false;
    std::optional<ProbeRequest> m_request;
    PlotType_e m_plotType = PlotType_Sketch;
    long m_frameId = 0;
    Result m_result;
    std::map<const void*, std::function<void()>> m_listeners;
};

} // namespace vantrix::kernel
