#include "dialogs/zone/CreateRectangularZoneDialogImpl.h"

#include "dialogs/zone/CreateRectangularZoneDialog.h"
#include "propertybindings/NumberLocale.h"
#include "propertybindings/TextFieldPropertyBinding.h"
#include "ui/ButtonBinding.h"
#include "ui/WidgetPropertyBinding.h"

namespace vantrix::sdk::ui::dialogs {

using namespace propertybindings;

bool CreateRectangularZoneDialogImpl::m_sizeInitialized = false;
QSize CreateRectangularZoneDialogImpl::m_dialogSize;
CreateRectangularZoneDialog* CreateRectangularZoneDialogImpl::dialogInstance = nullptr;

CreateRectangularZoneDialogImpl::CreateRectangularZoneDialogImpl(CreateRectangularZoneDialog& dialog)
    : m_dialog(dialog)
{
    dialogInstance = &dialog;
    m_form.setupUi(&dialog);
    QPushButton* const button =
        m_form.buttonBox->addButton(CreateRectangularZoneDialog::tr("C&reate"), QDialogButtonBox::ActionRole);
    m_bindings.push_back(new ButtonBinding(button, [this] { m_manager.createRectangularZone(); }));
    if (m_sizeInitialized) {
        dialog.resize(m_dialogSize);
    }
}

CreateRectangularZoneDialogImpl::~CreateRectangularZoneDialogImpl()
{
    dialogInstance = nullptr;
}

void CreateRectangularZoneDialogImpl::setupPropertyBindings()
{
    auto const bind = [this]<typename T>(QLineEdit* field, propertymanager::UILocalStyleProperty<T>& property) {
        using Binding = TextFieldPropertyBinding<T>;
        m_bindings.push_back(new Binding(field, property, BindingInterface::OnIdle, Binding::CursorAtEnd));
    };
    bind(m_form.xMin_lineEdit, m_manager.XMin());
    bind(m_form.yMin_lineEdit, m_manager.YMin());
    bind(m_form.zMin_lineEdit, m_manager.ZMin());
    bind(m_form.xMax_lineEdit, m_manager.XMax());
    bind(m_form.yMax_lineEdit, m_manager.YMax());
    bind(m_form.zMax_lineEdit, m_manager.ZMax());
    bind(m_form.iDimension_lineEdit, m_manager.I());
    bind(m_form.jDimension_lineEdit, m_manager.J());
    bind(m_form.kDimension_lineEdit, m_manager.K());
    m_bindings.push_back(new WidgetPropertyBinding(m_form.zMin_label, m_manager.ZMin()));
    m_bindings.push_back(new WidgetPropertyBinding(m_form.zMax_label, m_manager.ZMax()));
    m_bindings.push_back(new WidgetPropertyBinding(m_form.kDimension_label, m_manager.K()));
}

void CreateRectangularZoneDialogImpl::setupValidators()
{
    for (QLineEdit* const field :
         {m_form.iDimension_lineEdit, m_form.jDimension_lineEdit, m_form.kDimension_lineEdit}) {
        field->setValidator(newIntValidator(1, 2147483646, field));
    }
    for (QLineEdit* const field : {m_form.xMin_lineEdit, m_form.yMin_lineEdit, m_form.zMin_lineEdit,
                                   m_form.xMax_lineEdit, m_form.yMax_lineEdit, m_form.zMax_lineEdit}) {
        field->setValidator(newDoubleValidator(-1e150, 1e150, 15, field));
    }
}

void CreateRectangularZoneDialogImpl::saveSize()
{
    m_sizeInitialized = true;
    m_dialogSize = dialogInstance->size();
}

void CreateRectangularZoneDialogImpl::saveAndCloseDialog()
{
    saveSize();
    m_dialog.QtDialogAbstract::reject();
}

} // namespace vantrix::sdk::ui::dialogs
