#include "dialogs/zone/CreateCircularZoneDialog.h"

#include "dialogs/DialogInstance.h"
#include "propertybindings/NumberLocale.h"
#include "propertybindings/TextFieldPropertyBinding.h"
#include "propertymanager/managers/zone/CreateCircularZonePropertiesManager.h"
#include "ui/ButtonBinding.h"
#include "ui/LaunchHelpAction.h"
#include "ui/RelevanceApplier.h"
#include "ui_CreateCircularZoneDialog.h"

#include <boost/ptr_container/ptr_vector.hpp>

namespace vantrix::sdk::ui::dialogs {

using namespace propertybindings;
using propertymanager::CreateCircularZonePropertiesManager;

class CreateCircularZoneDialog::Impl
{
public:
    explicit Impl(CreateCircularZoneDialog& dialog);

private:
    void setupCreateButton();
    void setupPropertyBindings();
    void installValidators();
    void bindRelevanciesToControls();

    template<typename T>
    void bind(QLineEdit* field, boost::shared_ptr<PropertyAbstract<T>> const& property)
    {
        using Binding = TextFieldPropertyBinding<T>;
        m_bindings.push_back(new Binding(field, property, BindingInterface::OnIdle, Binding::CursorAtEnd));
    }

    CreateCircularZonePropertiesManager m_manager;
    Ui::CreateCircularZoneDialog m_form;
    boost::ptr_vector<BindingInterface> m_bindings;
    std::vector<std::unique_ptr<RelevanceApplier>> m_relevanceAppliers;
};

CreateCircularZoneDialog::Impl::Impl(CreateCircularZoneDialog& dialog)
{
    m_form.setupUi(&dialog);
    setupCreateButton();
    setupPropertyBindings();
    installValidators();
    bindRelevanciesToControls();
}

void CreateCircularZoneDialog::Impl::setupCreateButton()
{
    QPushButton* const button = m_form.buttonBox->addButton(tr("Cr&eate"), QDialogButtonBox::ActionRole);
    m_bindings.push_back(new ButtonBinding(button, [this] { m_manager.createCircularZone(); }));
}

void CreateCircularZoneDialog::Impl::setupPropertyBindings()
{
    bind(m_form.createCircularZone_IDim_1Text, m_manager.IDim());
    bind(m_form.createCircularZone_JDim_1Text, m_manager.JDim());
    bind(m_form.createCircularZone_KDim_1Text, m_manager.KDim());
    bind(m_form.createCircularZone_Radius_1Text, m_manager.Radius());
    bind(m_form.createCircularZone_XOrigin_1Text, m_manager.XOrg());
    bind(m_form.createCircularZone_YOrigin_1Text, m_manager.YOrg());
    bind(m_form.createCircularZone_ZMin_1Text, m_manager.ZMin());
    bind(m_form.createCircularZone_ZMax_1Text, m_manager.ZMax());
}

void CreateCircularZoneDialog::Impl::installValidators()
{
    constexpr int largestDimension = 2147483646;
    auto const limitDimension = [](QLineEdit* field, int smallest) {
        field->setValidator(newIntValidator(smallest, largestDimension, field));
    };
    limitDimension(m_form.createCircularZone_IDim_1Text, 2);
    limitDimension(m_form.createCircularZone_JDim_1Text, 4);
    limitDimension(m_form.createCircularZone_KDim_1Text, 1);

    QValidator* const coordinate =
        newDoubleValidator(-1e150, 1e150, 15, m_form.createCircularZone_Radius_1Text->window());
    for (QLineEdit* const field : {m_form.createCircularZone_Radius_1Text, m_form.createCircularZone_XOrigin_1Text,
                                   m_form.createCircularZone_YOrigin_1Text, m_form.createCircularZone_ZMin_1Text,
                                   m_form.createCircularZone_ZMax_1Text}) {
        field->setValidator(coordinate);
    }
}

void CreateCircularZoneDialog::Impl::bindRelevanciesToControls()
{
    m_relevanceAppliers.push_back(std::make_unique<RelevanceApplier>(
        m_manager.threeDElementsRelevance(), m_form.createCircularZone_TopToBottom_Label,
        m_form.createCircularZone_KDim_1Text, m_form.createCircularZone_ZMin_Label,
        m_form.createCircularZone_ZMin_1Text, m_form.createCircularZone_ZMax_Label,
        m_form.createCircularZone_ZMax_1Text, RelevanceApplier::Sensitivity, BindingInterface::OnIdle));
}

CreateCircularZoneDialog& CreateCircularZoneDialog::getInstance(QWidget& parent)
{
    return dialogInstance<CreateCircularZoneDialog>([&parent] { return new CreateCircularZoneDialog(parent); });
}

CreateCircularZoneDialog::Relevance CreateCircularZoneDialog::relevance()
{
    return CreateCircularZonePropertiesManager::relevance();
}

CreateCircularZoneDialog::CreateCircularZoneDialog(QWidget& parent)
    : QtDialogAbstract(parent, relevance())
    , m_impl(std::make_unique<Impl>(*this))
{
    setHelpAction(new vantrix::dialogs::common::LaunchHelpAction(QStringLiteral("create_zone_circular.html"), this));
}

CreateCircularZoneDialog::~CreateCircularZoneDialog() = default;

} // namespace vantrix::sdk::ui::dialogs
