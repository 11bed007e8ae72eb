#pragma once

#include "propertybindings/PlainText.h"
#include "propertybindings/UIPropertyBindingAbstract.h"

#include <QLabel>
#include <QPointer>

namespace vantrix::sdk::ui::dialogs::propertybindings {

/// Shows a property's value in a label, in the text form of a text field.
template<typename T>
class LabelPropertyBinding : public UIPropertyBindingAbstract<T>
{
public:
    using typename BindingInterface::WidgetUpdateMode_e;

    /// @param label  not null
    LabelPropertyBinding(QLabel* label, boost::shared_ptr<PropertyAbstract<T>> property, WidgetUpdateMode_e updateMode)
        : UIPropertyBindingAbstract<T>(std::move(property), updateMode)
        , m_label(label)
    {
        this->initWidget();
    }

    LabelPropertyBinding(QLabel* label, propertymanager::UIStylePropertyAbstract<T>& property,
                         WidgetUpdateMode_e updateMode)
        : UIPropertyBindingAbstract<T>(property, updateMode)
        , m_label(label)
    {
        this->initWidget();
    }

    void updateWidget() override
    {
        if (m_label) {
            m_label->setText(plainText(this->property().retrieveValue()));
        }
    }

    QLabel* widget() const override { return m_label; }

private:
    QPointer<QLabel> m_label;
};

} // namespace vantrix::sdk::ui::dialogs::propertybindings
