#pragma once

#include "propertybindings/UIPropertyBindingAbstract.h"
#include "ui/ColorButton.h"

#include <QPointer>

namespace vantrix::sdk::ui::dialogs::propertybindings {

/// Ties a colour button to the number of a basic colour. A colour that the property refuses is told to the user, and
/// the button shows the property's colour again.
class ColorButtonPropertyBinding : public UIPropertyBindingAbstract<int>
{
public:
    ColorButtonPropertyBinding(common::ColorButton* button, boost::shared_ptr<PropertyAbstract<int>> property,
                               WidgetUpdateMode_e updateMode);
    ColorButtonPropertyBinding(common::ColorButton* button, propertymanager::UIStylePropertyAbstract<int>& property,
                               WidgetUpdateMode_e updateMode);

    common::ColorButton* widget() const override { return m_button; }
    void updateWidget() override;

private:
    void init();

    QPointer<common::ColorButton> m_button;
    QObject m_context; ///< ends the connection to the button
};

} // namespace vantrix::sdk::ui::dialogs::propertybindings
