#pragma once

#include "dialogs/ModalDialogAbstract.h"

namespace vantrix::sdk::ui::dialogs {

class PerformanceDialogImpl;

/// "Performance": settings that trade looks and memory for speed.
class PerformanceDialog : public ModalDialogAbstract
{
    Q_OBJECT

public:
    /// The one dialog of the process. The first call creates it as a child of the parent; it goes with the parent.
    static PerformanceDialog& getInstance(QWidget& parent);

    ~PerformanceDialog() override;

protected:
    void init() override;
    bool submit() override;

private:
    explicit PerformanceDialog(QWidget& parent);

    std::unique_ptr<PerformanceDialogImpl> m_impl;
};

} // namespace vantrix::sdk::ui::dialogs
