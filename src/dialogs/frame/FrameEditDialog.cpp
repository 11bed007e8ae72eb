#include "dialogs/frame/FrameEditDialog.h"

#include "dialogs/DialogInstance.h"
#include "dialogs/FormBindings.h"
#include "propertybindings/models/PremappedListModel.h"
#include "propertymanager/managers/frame/FrameEditPropertiesManager.h"
#include "ui/LaunchHelpAction.h"
#include "ui_FrameEditDialog.h"

namespace vantrix::sdk::ui::dialogs {

using propertymanager::FrameEditPropertiesManager;

class FrameEditDialog::Impl
{
public:
    explicit Impl(FrameEditDialog& dialog);

private:
    void setupBindings();
    void bindRelevanciesToControls();

    FrameEditPropertiesManager m_manager;
    Ui::FrameEdit m_form;
    FormBindings m_bindings;
};

FrameEditDialog::Impl::Impl(FrameEditDialog& dialog)
{
    m_form.setupUi(&dialog);
    setupBindings();
    bindRelevanciesToControls();
}

void FrameEditDialog::Impl::setupBindings()
{
    using YesNoModel = propertybindings::models::PremappedListModel<bool>;
    auto& frame = m_manager.properties();

    m_bindings.bindField(m_form.frameEdit_XPos_1Text, frame.framelayoutXYposX());
    m_bindings.bindField(m_form.frameEdit_YPos_1Text, frame.framelayoutXYposY());
    m_bindings.bindField(m_form.frameEdit_Width_1Text, frame.framelayoutWidth());
    m_bindings.bindField(m_form.frameEdit_Height_1Text, frame.framelayoutHeight());
    m_bindings.bindCheck(m_form.frameEdit_ShowBorder_ToggleButton, frame.framelayoutShowBorder());
    m_bindings.bindField(m_form.frameEdit_BorderThickness_1Text, frame.framelayoutBorderThickness());
    m_bindings.bindCheck(m_form.frameEdit_ShowHeader_ToggleButton, frame.framelayoutShowHeader());
    m_bindings.bindColor(m_form.frameEdit_HeaderColor_ColorButton, frame.framelayoutHeaderColor());
    m_bindings.bindCheck(m_form.frameEdit_ShowBackground_ToggleButton, frame.framelayoutShowBackground());
    m_bindings.bindColor(m_form.frameEdit_BackgroundColor_ColorButton, frame.framelayoutBackgroundColor());
    m_bindings.bindList(m_form.frameEdit_ChangeForegroundColor_ComboBox, m_manager.modifyBackgroundColors(),
                        boost::make_shared<YesNoModel>(YesNoModel::Rows{{"Yes", true}, {"No", false}}));
    m_bindings.bindField(m_form.frameEdit_FrameName_1Text, frame.frameName());
}

void FrameEditDialog::Impl::bindRelevanciesToControls()
{
    m_bindings.apply(m_manager.showBorderRelevance(),
                     {m_form.frameEdit_BorderThickness_Label, m_form.frameEdit_BorderThickness_1Text});
    m_bindings.apply(m_manager.showHeaderRelevance(),
                     {m_form.frameEdit_HeaderColor_Label, m_form.frameEdit_HeaderColor_ColorButton});
    m_bindings.apply(m_manager.showBackgroundColorRelevance(),
                     {m_form.frameEdit_BackgroundColor_Label, m_form.frameEdit_BackgroundColor_ColorButton,
                      m_form.frameEdit_ChangeForegroundColor_Label, m_form.frameEdit_ChangeForegroundColor_ComboBox});
}

FrameEditDialog& FrameEditDialog::getInstance(QWidget& parent)
{
    return dialogInstance<FrameEditDialog>([&parent] { return new FrameEditDialog(parent); });
}

FrameEditDialog::Relevance FrameEditDialog::relevance()
{
    return FrameEditPropertiesManager::relevance();
}

FrameEditDialog::FrameEditDialog(QWidget& parent)
    : QtDialogAbstract(parent, relevance())
    , m_impl(std::make_unique<Impl>(*this))
{
    setHelpAction(new vantrix::dialogs::common::LaunchHelpAction(QStringLiteral("frame_edit.html"), this));
}

FrameEditDialog::~FrameEditDialog() = default;

} // namespace vantrix::sdk::ui::dialogs
