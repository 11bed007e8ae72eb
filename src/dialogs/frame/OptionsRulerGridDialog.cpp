#include "dialogs/frame/OptionsRulerGridDialog.h"

#include "dialogs/DialogInstance.h"
#include "dialogs/FormBindings.h"
#include "propertymanager/managers/frame/OptionsRulerGridPropertiesManager.h"
#include "ui/LaunchHelpAction.h"
#include "ui_OptionsRulerGridDialog.h"

namespace vantrix::sdk::ui::dialogs {

using propertymanager::OptionsRulerGridPropertiesManager;

class OptionsRulerGridDialog::Impl
{
public:
    explicit Impl(OptionsRulerGridDialog& dialog);

    OptionsRulerGridPropertiesManager manager;
    Ui::OptionsRulerGrid form;
    FormBindings bindings;
};

OptionsRulerGridDialog::Impl::Impl(OptionsRulerGridDialog& dialog)
{
    form.setupUi(&dialog);
    auto& set = manager.properties();

    bindings.bindCheck(form.rulerGrid_ShowRuler_ToggleButton, set.showRuler());
    bindings.bindList(form.rulerGrid_RulerSpacing_ComboBox, set.rulerSpacing(), manager.rulerSpacingModel());
    bindings.bindCheck(form.rulerGrid_ShowGrid_ToggleButton, set.showGrid());
    bindings.bindList(form.rulerGrid_GridSpacing_ComboBox, set.gridSpacing(), manager.gridSpacingModel());
    bindings.bindCheck(form.rulerGrid_ShowPaper_ToggleButton, set.showPaper());

    bindings.apply(manager.showGridRelevance(),
                   {form.rulerGrid_GridSpacing_Label, form.rulerGrid_GridSpacing_ComboBox});
}

OptionsRulerGridDialog& OptionsRulerGridDialog::getInstance(QWidget& parent)
{
    return dialogInstance<OptionsRulerGridDialog>([&parent] { return new OptionsRulerGridDialog(parent); });
}

OptionsRulerGridDialog::Relevance OptionsRulerGridDialog::relevance()
{
    return OptionsRulerGridPropertiesManager::relevance();
}

OptionsRulerGridDialog::OptionsRulerGridDialog(QWidget& parent)
    : ModalDialogAbstract(parent, relevance())
    , m_impl(std::make_unique<Impl>(*this))
{
    setOkButton(m_impl->form.buttonBox->button(QDialogButtonBox::Ok));
    setBindings(m_impl->bindings);
    setHelpAction(new vantrix::dialogs::common::LaunchHelpAction(QStringLiteral("options_ruler_grid.html"), this));
}

OptionsRulerGridDialog::~OptionsRulerGridDialog() = default;

void OptionsRulerGridDialog::init()
{
    m_impl->manager.init();
}

bool OptionsRulerGridDialog::submit()
{
    return m_impl->manager.submit();
}

} // namespace vantrix::sdk::ui::dialogs
