#pragma once

#include "dialogs/ModalDialogAbstract.h"

namespace vantrix::sdk::ui::dialogs {

class PaperSetupDialogImpl;

/// "Paper Setup": size, orientation and fill of the paper.
class PaperSetupDialog : public ModalDialogAbstract
{
    Q_OBJECT

public:
    /// The one dialog of the process. The first call creates it as a child of the parent; it goes with the parent.
    static PaperSetupDialog& getInstance(QWidget& parent);

    /// When the dialog may be used.
    static Relevance relevance();

    ~PaperSetupDialog() override;

protected:
    void init() override;
    bool submit() override;

private:
    explicit PaperSetupDialog(QWidget& parent);

    std::unique_ptr<PaperSetupDialogImpl> m_impl;
};

} // namespace vantrix::sdk::ui::dialogs
