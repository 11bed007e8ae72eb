#pragma once

#include "api/VtxEnumerations.h"

#include <QTabWidget>
#include <QWidget>

#include <memory>

namespace vantrix::sdk::ui::dialogs {

/// Shows what the host's last probe found: of a field plot the values of all variables at the place and at the centre
/// of the cell, the zone, the cell and its neighbours; of a line plot the values of the line maps.
///
/// Whoever embeds it tells it of every probe by probeCallback(). It follows the host's state by itself: while the mouse
/// probes, the last probe is done again after a change that may give it another result. The tab shown, and a width that
/// the user gave the names, are shared by all probe widgets of the process.
class ProbeWidget : public QWidget
{
    Q_OBJECT

public:
    /// What the host is given to tell of a probe: whether it found something, whether it was for the nearest point, and
    /// the client data given when it was installed.
    using Callback = void (*)(char wasSuccessful, char isNearestPoint, long clientData);

    explicit ProbeWidget(QWidget* parent);
    ~ProbeWidget() override;

    /// The function that the host calls when the widget probes again; null, and no probing again, at first.
    void setCallback(Callback callback);
    Callback callback() const;

    void setCurrentPage(FieldProbeDialogPage_e page);
    void changeTabPosition(QTabWidget::TabPosition position);

    /// Whether there was a probe whose result can be shown.
    bool probeWidgetHasInfo() const;

    /// True while the widget does the last probe again.
    bool isReprobing() const;

    /// To be called after every probe.
    void probeCallback(bool isNearestPoint, bool probeSucceeded);

public Q_SLOTS:
    /// Opens the probe-at dialog when it applies.
    void probeAtButtonClicked();
    void cartesianTabWidgetPageChanged(int page);
    void varValues_tableWidget_resized(int column, int oldSize, int newSize);
    void createContextMenu(QPoint const& place);

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace vantrix::sdk::ui::dialogs
