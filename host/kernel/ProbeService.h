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
 * the frame that was active then, and stays as it was when data or style change, or a probe finds nothing. A probe is
 * no part of a step, but goes with a step that is rolled back.
 */
class ProbeService
{
public:
    using Result = std::variant<std::monostate, FieldProbeResult, LineProbeResult>;

    /* A probe and what it found; as it is made, of none. */
    struct Found
    {
        std::optional<ProbeRequest> request;
        PlotType_e plotType = PlotType_Sketch;
        long frameId = 0;
        Result result;
    };

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
     * null. False when the position is outside the data; what was found before is kept then. Throws DataError, and
     * changes nothing, for what cannot be probed.
     */
    bool perform(const ProbeRequest& request) { return perform(request, m_function); }
    bool perform(const ProbeRequest& request, VtxProbeFunction told);

    /* The last probe that found something. */
    const Found& found() const { return m_found; }

    /* Lets an earlier probe be the last one again, without probing. */
    void restore(const Found& found);

    PlotType_e plotType() const { return m_found.plotType; }

    /* The frame that was probed; 0 where nothing was. */
    long frameId() const { return m_found.frameId; }

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
    class Change;
    static void stateChanged(VtxStateChangeHandle change, void* service);

    void tellListeners() const;
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
    Found m_found;
    std::map<const void*, std::function<void()>> m_listeners;
};

} // namespace vantrix::kernel
