#pragma once

#include "ui/QtDialogAbstract.h"

namespace vantrix::sdk::ui::dialogs {

class CreateRectangularZoneDialogImpl;

/// "Create Rectangular Zone": creates a rectangular (in 3D a box-shaped) ordered zone in the current data set.
class CreateRectangularZoneDialog : public vantrix::dialogs::common::QtDialogAbstract
{
    Q_OBJECT

public:
    /// The one dialog of the process. The first call creates it as a child of the parent; it goes with the parent.
    static CreateRectangularZoneDialog& getInstance(QWidget& parent);

    /// When the dialog may be used.
    static Relevance relevance();

    ~CreateRectangularZoneDialog() override;

    /// The first launch builds the form.
    void launch() override;
    void drop() override;

public Q_SLOTS:
    void reject() override;

private:
    explicit CreateRectangularZoneDialog(QWidget& parent);

    std::unique_ptr<CreateRectangularZoneDialogImpl> m_impl;
};

} // namespace vantrix::sdk::ui::dialogs
