#pragma once

/// The member functions of RadioButtonPropertyBinding, for a dialog whose choices are of a type of its own.

#include "propertybindings/RadioButtonPropertyBinding.h"

#include "propertybindings/EditRefusal.h"
#include "sdk/AppLock.h"

namespace vantrix::sdk::ui::dialogs::propertybindings {

/// Unchecks a button, also the only checked one of an exclusive group, which Qt refuses to: a property may have a value
/// of no button.
void uncheck(QAbstractButton& button);

template<typename T>
RadioButtonPropertyBinding<T>::RadioButtonPropertyBinding(QAbstractButton* button,
                                                          boost::shared_ptr<PropertyAbstract<T>> property,
                                                          T const& buttonValue)
    : UIPropertyBindingAbstract<T>(std::move(property), BindingInterface::OnIdle)
    , m_buttonValue(buttonValue)
    , m_observable(*button)
{
    init();
}

template<typename T>
RadioButtonPropertyBinding<T>::RadioButtonPropertyBinding(QAbstractButton* button,
                                                          propertymanager::UIStylePropertyAbstract<T>& property,
                                                          T const& buttonValue)
    : UIPropertyBindingAbstract<T>(property, BindingInterface::OnIdle)
    , m_buttonValue(buttonValue)
    , m_observable(*button)
{
    init();
}

template<typename T>
RadioButtonPropertyBinding<T>::~RadioButtonPropertyBinding() = default;

template<typename T>
void RadioButtonPropertyBinding<T>::init()
{
    m_observable.addListener(m_listener);
    this->initWidget();
}

template<typename T>
void RadioButtonPropertyBinding<T>::updateWidget()
{
    QAbstractButton* const button = widget();
    if (!button) {
        return;
    }
    if (this->property().value() == m_buttonValue) {
        button->setChecked(true);
    } else {
        uncheck(*button);
    }
}

template<typename T>
void RadioButtonPropertyBinding<T>::QButtonListener::buttonToggled(qwidgetobservable::QButtonObservable& button)
{
    if (button.button()->isChecked()) {
        AppLock const lock(false);
        try {
            m_binding.property().setValue(m_binding.m_buttonValue);
        } catch (InvalidPropertyValueException const& exception) {
            // The button stays as the user left it until the property changes: which one was checked is not known here.
            showRefusal(exception);
        }
    }
}

} // namespace vantrix::sdk::ui::dialogs::propertybindings
