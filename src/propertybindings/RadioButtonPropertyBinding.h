#pragma once

#include "propertybindings/ListedTypes.h"
#include "propertybindings/QButtonListenerInterface.h"
#include "propertybindings/QButtonObservable.h"
#include "propertybindings/UIPropertyBindingAbstract.h"

#include <QAbstractButton>

namespace vantrix::sdk::ui::dialogs::propertybindings {

/// Ties a button to one value of a property: it is checked exactly when the property has that value, and checking it
/// sets the property. One binding for each button of a group; unchecking sets nothing. The button follows the property
/// on the next idle turn.
///
/// When the property refuses the value, the user is told and the button stays checked until the property next changes.
template<typename T>
class RadioButtonPropertyBinding : public UIPropertyBindingAbstract<T>
{
public:
    RadioButtonPropertyBinding(QAbstractButton* button, boost::shared_ptr<PropertyAbstract<T>> property,
                               T const& buttonValue);
    RadioButtonPropertyBinding(QAbstractButton* button, propertymanager::UIStylePropertyAbstract<T>& property,
                               T const& buttonValue);
    ~RadioButtonPropertyBinding() override;

    QAbstractButton* widget() const override { return m_observable.button(); }
    void updateWidget() override;

private:
    class QButtonListener : public qwidgetobservable::QButtonListenerInterface
    {
    public:
        explicit QButtonListener(RadioButtonPropertyBinding& binding)
            : m_binding(binding)
        {}

        void buttonToggled(qwidgetobservable::QButtonObservable& button) override;

    private:
        RadioButtonPropertyBinding& m_binding;
    };

    void init();

    T m_buttonValue;
    qwidgetobservable::QButtonObservable m_observable;
    QButtonListener m_listener{*this};
};

#define VX_DECLARE_RADIOBUTTON_BINDING(Type) extern template class RadioButtonPropertyBinding<Type>;
VX_FOR_EACH_LISTED_TYPE(VX_DECLARE_RADIOBUTTON_BINDING)
#undef VX_DECLARE_RADIOBUTTON_BINDING

} // namespace vantrix::sdk::ui::dialogs::propertybindings
