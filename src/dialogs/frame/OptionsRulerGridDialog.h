#pragma once

#include "dialogs/ModalDialogAbstract.h"

namespace vantrix::sdk::ui::dialogs {

/// "Ruler/Grid Options": rulers and grid of the paper on the screen.
class OptionsRulerGridDialog : public ModalDialogAbstract
{
    Q_OBJECT

public:
    /// The one dialog of the process. The first call creates it as a child of the parent; it goes with the parent.
    static OptionsRulerGridDialog& getInstance(QWidget& parent);

    /// When the dialog may be used.
    static Relevance relevance();

    ~OptionsRulerGridDialog() override;

protected:
    void init() override;
    bool submit() override;

private:
    explicit OptionsRulerGridDialog(QWidget& parent);

    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace vantrix::sdk::ui::dialogs
