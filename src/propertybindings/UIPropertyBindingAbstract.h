#pragma once

#include "property/PropertyAbstract.h"
#include "propertybindings/EditRefusal.h"
#include "propertybindings/PropertyBindingInterface.h"
#include "propertybindings/WidgetUpdateScheduler.h"
#include "propertymanager/UIStylePropertyAbstract.h"

#include <QWidget>

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

    void updateVisibility() override { m_scheduler.updateVisibility(widget()); }
    void updateSensitivity() override { m_scheduler.updateSensitivity(widget()); }
    void updateValueOnIdle() override { m_scheduler.updateValueOnIdle(); }

    /// Follows the property from now on. Calling it again changes nothing.
    void startListeningToProperty();

protected:
    /// Brings the widget up to date with the property.
    void initWidget();

    /// Sets the property from the widget. A refusal is shown to the user, brings the property's value back to the
    /// widget, gives it the focus and returns false; other exceptions pass on.
    bool setProperty(T const& value);

private:
    PropertyAbstract<T>* m_property;
    boost::shared_ptr<PropertyAbstract<T>> m_propertyOwner;
    WidgetUpdateScheduler m_scheduler;
    boost::signals2::scoped_connection m_valueConnection;
};

template<typename T>
UIPropertyBindingAbstract<T>::UIPropertyBindingAbstract(boost::shared_ptr<PropertyAbstract<T>> property,
                                                        WidgetUpdateMode_e updateMode)
    : m_property(property.get())
    , m_propertyOwner(std::move(property))
    , m_scheduler(*this, updateMode, nullptr)
{
    startListeningToProperty();
}

template<typename T>
UIPropertyBindingAbstract<T>::UIPropertyBindingAbstract(propertymanager::UIStylePropertyAbstract<T>& property,
                                                        WidgetUpdateMode_e updateMode)
    : m_property(&property)
    , m_scheduler(*this, updateMode, &property)
{
    startListeningToProperty();
}

template<typename T>
void UIPropertyBindingAbstract<T>::startListeningToProperty()
{
    m_valueConnection =
        m_property->connectToValueChangedSignal(boost::bind(&WidgetUpdateScheduler::valueChanged, &m_scheduler));
    m_scheduler.followStates();
}

template<typename T>
void UIPropertyBindingAbstract<T>::initWidget()
{
    updateWidget();
    m_scheduler.initStates();
}

template<typename T>
bool UIPropertyBindingAbstract<T>::setProperty(T const& value)
{
    try {
        m_property->setValue(value);
        return true;
    } catch (InvalidPropertyValueException const& exception) {
        showRefusal(exception);
        updateWidget();
        if (QWidget* const edited = widget()) {
            returnToRefusedEdit(*edited);
        }
        return false;
    }
}

} // namespace vantrix::sdk::ui::dialogs::propertybindings
