#pragma once

#include "propertybindings/BindingInterface.h"
#include "propertymanager/managers/zone/CreateRectangularZonePropertiesManager.h"
#include "ui_CreateRectangularZoneDialog.h"

#include <QSize>

#include <boost/ptr_container/ptr_vector.hpp>

namespace vantrix::sdk::ui::dialogs {

class CreateRectangularZoneDialog;

/// The inner part of the dialog, made at its first launch.
class CreateRectangularZoneDialogImpl
{
public:
    explicit CreateRectangularZoneDialogImpl(CreateRectangularZoneDialog& dialog);
    ~CreateRectangularZoneDialogImpl();

    void setupPropertyBindings();

    /// After the bindings, whose validators these replace.
    void setupValidators();

    /// Records the dialog's size for the next inner part of the process.
    void saveSize();

    /// saveSize(), then closes the dialog.
    void saveAndCloseDialog();

private:
    CreateRectangularZoneDialog& m_dialog;
    propertymanager::CreateRectangularZonePropertiesManager m_manager;
    Ui::CreateRectangularZoneDialogClass m_form;
    boost::ptr_vector<propertybindings::BindingInterface> m_bindings;

    static bool m_sizeInitialized;
    static QSize m_dialogSize;
    static CreateRectangularZoneDialog* dialogInstance;
};

} // namespace vantrix::sdk::ui::dialogs
