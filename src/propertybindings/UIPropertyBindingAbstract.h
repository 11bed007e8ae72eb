#pragma once

#include "property/PropertyAbstract.h"
#include "propertybindings/BindingInterface.h"
#include "propertybindings/EditRefusal.h"
#include "propertybindings/PropertyBindingInterface.h"
#include "propertymanager/UIStylePropertyAbstract.h"
#include "sdk/OnIdleActionPerformerSingleShot.h"

#include <QWidget>

#include <memory>

namespace vantrix::sdk::ui::dialogs::propertybindings {

/// What all bindings share: they listen to the property and bring its value, and for a UI style property its
/// sensitivity and visibility, to the widget.
///
/// A concrete binding supplies updateWidget() and widget(), calls initWidget() at the end of its constructor, and calls
/// setProperty() when its widget tells that an edit is complete. The property must outlive a binding that was made with
/// a reference to it.
template<typename T>
class UIPropertyBindingAbstract : public virtual BindingInterface, public PropertyBindingInterface
{
public:
    /// Binds a plain property: only its value is followed.
    /// @param property  not null; kept alive by the binding
    UIPropertyBindingAbstract(boost::shared_ptr<PropertyAbstract<T>> property, WidgetUpdateMode_e updateMode);

    /// Binds a UI style property: value, sensitivity and visibility are followed.
    UIPropertyBindingAbstract(propertymanager::UIStylePropertyAbstract<T>& property, WidgetUpdateMode_e updateMode);

    PropertyAbstract<T>& property() const override { return *m_property; }

    void updateVisibility() override;
    void updateSensitivity() override;
    void updateValueOnIdle() override { m_valueOnIdle.enableNotification(); }

    /// Follows the property from now on. Calling it again changes nothing.
    void startListeningToProperty();

protected:
    /// Brings the widget up to date with the property.
    void initWidget();

    /// Sets the property from the widget. A refusal is shown to the user and gives false; other exceptions pass on.
    bool setProperty(T const& value);

private:
    using Performer = OnIdleActionPerformerSingleShot;

    void notify(Performer& onIdle, void (BindingInterface::*update)());
    void valueChanged() { notify(m_valueOnIdle, &BindingInterface::updateWidget); }
    void visibilityChanged() { notify(*m_visibilityOnIdle, &BindingInterface::updateVisibility); }
    void sensitivityChanged() { notify(*m_sensitivityOnIdle, &BindingInterface::updateSensitivity); }

    WidgetUpdateMode_e m_updateMode;
    PropertyAbstract<T>* m_property;
    boost::shared_ptr<PropertyAbstract<T>> m_propertyOwner;
    propertymanager::UIPropertyInterface* m_uiProperty = nullptr;
    Performer m_valueOnIdle;
    std::unique_ptr<Performer> m_visibilityOnIdle;
    std::unique_ptr<Performer> m_sensitivityOnIdle;
    boost::signals2::scoped_connection m_valueConnection;
    boost::signals2::scoped_connection m_visibilityConnection;
    boost::signals2::scoped_connection m_sensitivityConnection;
};

template<typename T>
UIPropertyBindingAbstract<T>::UIPropertyBindingAbstract(boost::shared_ptr<PropertyAbstract<T>> property,
                                                        WidgetUpdateMode_e updateMode)
    : m_updateMode(updateMode)
    , m_property(property.get())
    , m_propertyOwner(std::move(property))
    , m_valueOnIdle([this] { updateWidget(); })
{
    startListeningToProperty();
}

template<typename T>
UIPropertyBindingAbstract<T>::UIPropertyBindingAbstract(propertymanager::UIStylePropertyAbstract<T>& property,
                                                        WidgetUpdateMode_e updateMode)
    : m_updateMode(updateMode)
    , m_property(&property)
    , m_uiProperty(&property)
    , m_valueOnIdle([this] { updateWidget(); })
    , m_visibilityOnIdle(std::make_unique<Performer>([this] { updateVisibility(); }))
    , m_sensitivityOnIdle(std::make_unique<Performer>([this] { updateSensitivity(); }))
{
    startListeningToProperty();
}

template<typename T>
void UIPropertyBindingAbstract<T>::startListeningToProperty()
{
    m_valueConnection =
        m_property->connectToValueChangedSignal(boost::bind(&UIPropertyBindingAbstract::valueChanged, this));
    if (m_uiProperty) {
        m_visibilityConnection = m_uiProperty->connectToVisibilityChangedSignal(
            boost::bind(&UIPropertyBindingAbstract::visibilityChanged, this));
        m_sensitivityConnection = m_uiProperty->connectToSensitivityChangedSignal(
            boost::bind(&UIPropertyBindingAbstract::sensitivityChanged, this));
    }
}

template<typename T>
void UIPropertyBindingAbstract<T>::updateVisibility()
{
    if (m_uiProperty && widget()) {
        widget()->setVisible(m_uiProperty->isVisible());
    }
}

template<typename T>
void UIPropertyBindingAbstract<T>::updateSensitivity()
{
    if (m_uiProperty && widget()) {
        widget()->setEnabled(m_uiProperty->isSensitive());
    }
}

template<typename T>
void UIPropertyBindingAbstract<T>::initWidget()
{
    updateWidget();
    // A widget that somebody else has hidden or disabled stays so: only the property's refusal counts here.
    if (m_uiProperty && !m_uiProperty->isVisible()) {
        updateVisibility();
    }
    if (m_uiProperty && !m_uiProperty->isSensitive()) {
        updateSensitivity();
    }
}

template<typename T>
bool UIPropertyBindingAbstract<T>::setProperty(T const& value)
{
    try {
        m_property->setValue(value);
        return true;
    } catch (InvalidPropertyValueException const& exception) {
        showRefusal(exception);
        return false;
    }
}

template<typename T>
void UIPropertyBindingAbstract<T>::notify(Performer& onIdle, void (BindingInterface::*update)())
{
    if (m_updateMode == Immediate) {
        (this->*update)();
    } else {
        onIdle.enableNotification();
    }
}

} // namespace vantrix::sdk::ui::dialogs::propertybindings
