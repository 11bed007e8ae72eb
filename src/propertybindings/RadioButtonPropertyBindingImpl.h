#pragma once

/// The member functions of RadioButtonPropertyBinding, for a dialog whose choices are of a type of its own.

#include "propertybindings/RadioButtonPropertyBinding.h"

#include "sdk/AppLock.h"

#include <QButtonGroup>

namespace vantrix::sdk::ui::dialogs::propertybindings {

/// Qt refuses to uncheck the only checked button of an exclusive group; a property may have a value of no button.
inline void uncheck(QAbstractButton& button)
{
    if (!button.isChecked()) {
        return;
    }
    if (QButtonGroup* group = button.group(); group && group->exclusive()) {
        group->setExclusive(false);
        button.setChecked(false);
        group->setExclusive(true);
    } else {
        bool const isExclusive = button.autoExclusive();
        button.setAutoExclusive(false);
        button.setChecked(false);
        button.setAutoExclusive(isExclusive);
    }
}

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
        m_binding.setProperty(m_binding.m_buttonValue);
    }
}

} // namespace vantrix::sdk::ui::dialogs::propertybindings
