#pragma once

#include "ui/QtDialogAbstract.h"

class QAbstractButton;

namespace vantrix::sdk::ui::dialogs {

/// "Probe At": probes the plot at a position or an index that is typed.
class ProbeAtDialog : public vantrix::dialogs::common::QtDialogAbstract
{
    Q_OBJECT

public:
    /// The one dialog of the process. The first call creates it as a child of the parent; it goes with the parent.
    static ProbeAtDialog& getInstance(QWidget& parent);

    /// When the dialog may be used.
    static Relevance relevance();

    /// Shows the choices as they were left when the dialog was closed.
    void launch() override;

    ~ProbeAtDialog() override;

public Q_SLOTS:
    /// Probes what the current tab says, and tells the user when that finds nothing.
    void doProbe();
    void onPageFormCurrentChanged(int page);
    void onLineAxisXYClicked(QAbstractButton* button);
    void onLineAxisPolarClicked(QAbstractButton* button);

protected:
    void closeEvent(QCloseEvent* event) override;
    void hideEvent(QHideEvent* event) override;

private:
    explicit ProbeAtDialog(QWidget& parent);

    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace vantrix::sdk::ui::dialogs
