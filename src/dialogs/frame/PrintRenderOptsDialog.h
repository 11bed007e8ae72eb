#pragma once

#include "dialogs/ModalDialogAbstract.h"

namespace vantrix::sdk::ui::dialogs {

/// "Print Render Options": how the paper is printed.
class PrintRenderOptsDialog : public ModalDialogAbstract
{
    Q_OBJECT

public:
    /// The one dialog of the process. The first call creates it as a child of the parent; it goes with the parent.
    static PrintRenderOptsDialog& getInstance(QWidget& parent);

    ~PrintRenderOptsDialog() override;

protected:
    void init() override;
    bool submit() override;

private:
    explicit PrintRenderOptsDialog(QWidget& parent);

    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace vantrix::sdk::ui::dialogs
