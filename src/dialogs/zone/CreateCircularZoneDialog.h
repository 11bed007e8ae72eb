#pragma once

#include "ui/QtDialogAbstract.h"

namespace vantrix::sdk::ui::dialogs {

/// "Create Circular Zone": creates a circular (in 3D a cylindrical) ordered zone in the current data set.
class CreateCircularZoneDialog : public vantrix::dialogs::common::QtDialogAbstract
{
    Q_OBJECT

public:
    /// The one dialog of the process. The first call creates it as a child of the parent; it goes with the parent.
    /// @throws InvalidPropertyValueException when the data have no extent in X and Y
    static CreateCircularZoneDialog& getInstance(QWidget& parent);

    /// When the dialog may be used.
    static Relevance relevance();

    ~CreateCircularZoneDialog() override;

private:
    explicit CreateCircularZoneDialog(QWidget& parent);

    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace vantrix::sdk::ui::dialogs
