#pragma once

#include "ui/QtDialogAbstract.h"

namespace vantrix::sdk::ui::dialogs {

/// "Edit Active Frame": place, border, header, background and name of the active frame. Edits are seen at once.
class FrameEditDialog : public vantrix::dialogs::common::QtDialogAbstract
{
    Q_OBJECT

public:
    /// The one dialog of the process. The first call creates it as a child of the parent; it goes with the parent.
    static FrameEditDialog& getInstance(QWidget& parent);

    /// When the dialog may be used.
    static Relevance relevance();

    ~FrameEditDialog() override;

private:
    explicit FrameEditDialog(QWidget& parent);

    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace vantrix::sdk::ui::dialogs
