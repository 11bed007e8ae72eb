#pragma once

#include "propertybindings/ComboBoxPropertyBinding.h"
#include "propertybindings/RadioButtonPropertyBinding.h"
#include "propertybindings/TextFieldPropertyBinding.h"
#include "ui/ButtonBinding.h"
#include "ui/CheckButtonPropertyBinding.h"
#include "ui/ColorButtonPropertyBinding.h"
#include "ui/LabelPropertyBinding.h"
#include "ui/RelevanceApplier.h"
#include "ui/SpinBoxDoublePropertyBinding.h"
#include "ui/SpinBoxIntPropertyBinding.h"
#include "ui/WidgetPropertyBinding.h"

#include <QPointer>

#include <boost/ptr_container/ptr_vector.hpp>

#include <functional>
#include <map>
#include <memory>
#include <type_traits>
#include <vector>

namespace vantrix::sdk::ui::dialogs {

/// The bindings and relevances of one form, made in the way that is usual for dialogs: every widget follows on the next
/// idle turn, a text field shows the end of its text, and a control that is not relevant is disabled. Lives as long as
/// the dialog.
class FormBindings
{
public:
    template<typename T>
    using Shared = boost::shared_ptr<PropertyAbstract<T>>;
    using Relevance = boost::shared_ptr<propertymanager::RelevanceInterface const>;

    /// The first control that was bound to a property; null where none was.
    QWidget* controlOf(PropertyItemInterface const& property) const
    {
        auto const found = m_controls.find(&property);
        return found != m_controls.end() ? found->second.data() : nullptr;
    }

    /// Tells the control of a property that is bound by way of another one, such as a member of a set.
    void remember(QWidget* control, PropertyItemInterface const& property) { m_controls.emplace(&property, control); }

    template<typename T>
    using Followed = propertymanager::UIStylePropertyAbstract<T>;

    template<typename T>
    void bindField(QLineEdit* field, Shared<T> const& property)
    {
        remember(field, *property);
        using Binding = propertybindings::TextFieldPropertyBinding<T>;
        m_bindings.push_back(new Binding(field, property, BindingInterface::OnIdle, Binding::CursorAtEnd));
    }

    /// As for the other widgets: a property that is given by reference outlives the bindings, and its visible and
    /// sensitive state is followed.
    template<typename T>
    void bindField(QLineEdit* field, Followed<T>& property)
    {
        using Binding = propertybindings::TextFieldPropertyBinding<T>;
        m_bindings.push_back(new Binding(field, property, BindingInterface::OnIdle, Binding::CursorAtEnd));
    }

    /// @param stepCalculator  decides the next value up and down; null for steps of the spin box
    template<typename Property>
    void bindSpinBox(common::QScientificSpinBox* spinBox, Property&& property,
                     common::QScientificSpinBox::StepCalculator stepCalculator = {})
    {
        using Binding = propertybindings::SpinBoxDoublePropertyBinding;
        m_bindings.push_back(new Binding(spinBox, std::forward<Property>(property), BindingInterface::OnIdle,
                                         std::move(stepCalculator)));
    }

    void bindSpinBox(QSpinBox* spinBox, Shared<int> const& property)
    {
        using Binding = propertybindings::SpinBoxIntPropertyBinding;
        m_bindings.push_back(new Binding(spinBox, property, BindingInterface::OnIdle));
    }

    /// Lets a label show a text.
    void bindText(QLabel* label, Followed<std::string>& property)
    {
        using Binding = propertybindings::LabelPropertyBinding<std::string>;
        m_bindings.push_back(new Binding(label, property, BindingInterface::OnIdle));
    }

    void bindCheck(QAbstractButton* button, Shared<bool> const& property)
    {
        remember(button, *property);
        using Binding = propertybindings::CheckButtonPropertyBinding;
        m_bindings.push_back(new Binding(button, property, BindingInterface::OnIdle));
    }

    void bindCheck(QAbstractButton* button, Followed<bool>& property)
    {
        using Binding = propertybindings::CheckButtonPropertyBinding;
        m_bindings.push_back(new Binding(button, property, BindingInterface::OnIdle));
    }

    /// One button of a group and the value that it stands for.
    template<typename T>
    void bindChoice(QAbstractButton* button, Shared<T> const& property, std::type_identity_t<T> value)
    {
        remember(button, *property);
        m_bindings.push_back(new propertybindings::RadioButtonPropertyBinding<T>(button, property, value));
    }

    template<typename T>
    void bindChoice(QAbstractButton* button, Followed<T>& property, std::type_identity_t<T> value)
    {
        m_bindings.push_back(new propertybindings::RadioButtonPropertyBinding<T>(button, property, value));
    }

    template<typename T, typename Model>
    void bindList(QComboBox* box, Shared<T> const& property, boost::shared_ptr<Model> const& model)
    {
        remember(box, *property);
        using Binding = propertybindings::ComboBoxPropertyBinding<T>;
        m_bindings.push_back(new Binding(*box, property, model, BindingInterface::UpdateAlways));
    }

    /// Runs an action when the button is clicked, once the edit under way has been taken over.
    void bindAction(QAbstractButton* button, std::function<void()> action)
    {
        m_bindings.push_back(new propertybindings::ButtonBinding(button, std::move(action)));
    }

    template<typename Property>
    void bindColor(common::ColorButton* button, Property&& property)
    {
        using Binding = propertybindings::ColorButtonPropertyBinding;
        m_bindings.push_back(new Binding(button, std::forward<Property>(property), BindingInterface::OnIdle));
    }

    /// Lets a label follow the sensitivity of the property that it names.
    void bindLabel(QLabel* label, propertymanager::UIPropertyInterface& property)
    {
        m_bindings.push_back(new propertybindings::WidgetPropertyBinding(label, property));
    }

    /// Disables the controls while the relevance does not hold.
    void apply(Relevance const& relevance, std::vector<QObject*> const& controls)
    {
        apply(relevance, controls, propertybindings::RelevanceApplier::Sensitivity);
    }

    /// Hides the controls while the relevance does not hold.
    void show(Relevance const& relevance, std::vector<QObject*> const& controls)
    {
        apply(relevance, controls, propertybindings::RelevanceApplier::Visibility);
    }

private:
    using BindingInterface = propertybindings::BindingInterface;

    void apply(Relevance const& relevance, std::vector<QObject*> const& controls,
               propertybindings::RelevanceApplier::Manifestation manifestation)
    {
        m_appliers.push_back(std::make_unique<propertybindings::RelevanceApplier>(relevance, controls, manifestation,
                                                                                  BindingInterface::OnIdle));
    }

    boost::ptr_vector<BindingInterface> m_bindings;
    std::map<PropertyItemInterface const*, QPointer<QWidget>> m_controls;
    std::vector<std::unique_ptr<propertybindings::RelevanceApplier>> m_appliers;
};

} // namespace vantrix::sdk::ui::dialogs
