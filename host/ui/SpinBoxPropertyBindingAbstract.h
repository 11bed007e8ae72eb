#pragma once

#include "propertybindings/UIPropertyBindingAbstract.h"
#include "sdk/AppLock.h"

#include <QPointer>

namespace vantrix::sdk::ui::dialogs::propertybindings {

/// Ties a spin box to a property. The value counts when editing is finished or a step is made. A value that the
/// property refuses is told to the user, and the spin box shows the property's value again.
///
/// @tparam SpinBox  a QSpinBox or QDoubleSpinBox, or derived from one
template<typename T, typename SpinBox>
class SpinBoxPropertyBindingAbstract : public UIPropertyBindingAbstract<T>
{
public:
    using typename BindingInterface::WidgetUpdateMode_e;

    SpinBox* widget() const override { return m_spinBox; }

    void updateWidget() override
    {
        if (m_spinBox) {
            using Shown = decltype(m_spinBox->value());
            // Told apart from the user's steps by the flag, since a clamped value must not become the property's.
            m_isUpdating = true;
            m_spinBox->setValue(static_cast<Shown>(this->property().value()));
            m_isUpdating = false;
        }
    }

protected:
    template<typename Property>
    SpinBoxPropertyBindingAbstract(SpinBox* spinBox, Property&& property, WidgetUpdateMode_e updateMode)
        : UIPropertyBindingAbstract<T>(std::forward<Property>(property), updateMode)
        , m_spinBox(spinBox)
    {
        spinBox->setKeyboardTracking(false);
        QObject::connect(spinBox, &SpinBox::valueChanged, &m_context, [this] { valueEntered(); });
        this->initWidget();
    }

private:
    void valueEntered()
    {
        if (m_isUpdating) {
            return;
        }
        AppLock const lock(false);
        if (this->setProperty(static_cast<T>(m_spinBox->value()))) {
            updateWidget();
        }
    }

    QPointer<SpinBox> m_spinBox;
    bool m_isUpdating = false;
    QObject m_context; ///< ends the connection to the spin box
};

} // namespace vantrix::sdk::ui::dialogs::propertybindings
