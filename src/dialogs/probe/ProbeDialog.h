#pragma once

#include "api/VtxEnumerations.h"
#include "ui/QtDialogAbstract.h"

namespace vantrix::sdk::ui::dialogs {

/// "Probe": shows what probes of the plot find. Launching it makes it the receiver of probes and lets the mouse probe.
class ProbeDialog : public vantrix::dialogs::common::QtDialogAbstract
{
    Q_OBJECT

public:
    /// The one dialog of the process. The first call creates it as a child of the parent; it goes with the parent.
    static ProbeDialog& getInstance(QWidget& parent);

    /// When the dialog may be used.
    static Relevance relevance();

    /// Makes the dialog the receiver of probes, and shows it. Tells the user when the plot cannot be probed.
    void launch() override;

    /// Makes the dialog the receiver of probes without showing it; it opens with the first one that finds something.
    bool receiveProbes();

    /// What the host calls; `clientData` is the dialog. A probe that found nothing does not open a hidden dialog.
    static void probeCallbackProxy(char wasSuccessful, char isNearestPoint, long clientData);

    /// Shows the result of a probe.
    void probeCallback(bool isNearestPoint, bool wasSuccessful);

    void setCurrentPage(FieldProbeDialogPage_e page);

    ~ProbeDialog() override;

public Q_SLOTS:
    void probeAtButtonClicked();
    void dialog_dropped();

private:
    explicit ProbeDialog(QWidget& parent);

    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace vantrix::sdk::ui::dialogs
