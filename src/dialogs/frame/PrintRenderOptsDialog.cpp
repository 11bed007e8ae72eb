#include "dialogs/frame/PrintRenderOptsDialog.h"

#include "dialogs/DialogInstance.h"
#include "dialogs/FormBindings.h"
#include "propertymanager/managers/frame/PrintRenderOptsPropertiesManager.h"
#include "ui/LaunchHelpAction.h"
#include "ui_PrintRenderOptsDialog.h"

namespace vantrix::sdk::ui::dialogs {

using propertymanager::PrintRenderOptsPropertiesManager;

class PrintRenderOptsDialog::Impl
{
public:
    explicit Impl(PrintRenderOptsDialog& dialog);

    PrintRenderOptsPropertiesManager manager;
    Ui::PrintRenderOpts form;
    FormBindings bindings;
};

PrintRenderOptsDialog::Impl::Impl(PrintRenderOptsDialog& dialog)
{
    form.setupUi(&dialog);
    auto& set = manager.properties();

    bindings.bindChoice(form.printRender_Vector_RadioButton, set.getRenderType(), PrintRenderType_Vector);
    bindings.bindChoice(form.printRender_Image_RadioButton, set.getRenderType(), PrintRenderType_Image);
    bindings.bindField(form.printRender_Resolution_1Text, set.getImageResolution());
    bindings.bindChoice(form.printRender_Color_RadioButton, set.getColor(), Palette_Color);
    bindings.bindChoice(form.printRender_Monochrome_RadioButton, set.getColor(), Palette_Monochrome);
    bindings.bindCheck(form.printRender_Force3DSorting_ToggleButton, set.getForceExtra3DSorting());
}

PrintRenderOptsDialog& PrintRenderOptsDialog::getInstance(QWidget& parent)
{
    return dialogInstance<PrintRenderOptsDialog>([&parent] { return new PrintRenderOptsDialog(parent); });
}

PrintRenderOptsDialog::PrintRenderOptsDialog(QWidget& parent)
    : ModalDialogAbstract(parent, PrintRenderOptsPropertiesManager::relevance())
    , m_impl(std::make_unique<Impl>(*this))
{
    setOkButton(m_impl->form.buttonBox->button(QDialogButtonBox::Ok));
    setBindings(m_impl->bindings);
    setHelpAction(new vantrix::dialogs::common::LaunchHelpAction(QStringLiteral("print_render_options.html"), this));
}

PrintRenderOptsDialog::~PrintRenderOptsDialog() = default;

void PrintRenderOptsDialog::init()
{
    m_impl->manager.init();
}

bool PrintRenderOptsDialog::submit()
{
    return m_impl->manager.submit();
}

} // namespace vantrix::sdk::ui::dialogs
