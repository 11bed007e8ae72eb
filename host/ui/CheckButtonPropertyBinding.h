#pragma once

#include "propertybindings/UIPropertyBindingAbstract.h"

#include <QAbstractButton>
#include <QPointer>

namespace vantrix::sdk::ui::dialogs::propertybindings {

/// Ties a check box, or another button that can be checked, to a flag. A refusal of the property is told to the user
/// and the button shows the property's value again.
class CheckButtonPropertyBinding : public UIPropertyBindingAbstract<bool>
{
public:
    /// @param button  checkable, not null
    CheckButtonPropertyBinding(QAbstractButton* button, boost::shared_ptr<PropertyAbstract<bool>> property,
                               WidgetUpdateMode_e updateMode);
    CheckButtonPropertyBinding(QAbstractButton* button, propertymanager::UIStylePropertyAbstract<bool>& property,
                               WidgetUpdateMode_e updateMode);

    void updateWidget() override;
    QAbstractButton* widget() const override { return m_button; }

private:
    void connectToButton();
    void toggled(bool checked);

    QPointer<QAbstractButton> m_button;
    QObject m_connectionContext;
};

} // namespace vantrix::sdk::ui::dialogs::propertybindings
