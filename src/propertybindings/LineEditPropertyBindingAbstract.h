#pragma once

#include "propertybindings/StringMassager.h"
#include "propertybindings/UIPropertyBindingAbstract.h"

#include <QLineEdit>
#include <QPointer>

namespace vantrix::sdk::ui::dialogs::propertybindings {

/// Ties a line edit to a property: installs the field's validator and takes the text over when editing is finished.
/// How the value is written into the field is up to the subclass.
///
/// A text that the field's validator does not accept, or that holds no value of the property's type, changes nothing
/// and the field shows the property's value again. A value that the property refuses is told to the user as well, who
/// is sent back to the field.
template<typename T>
class LineEditPropertyBindingAbstract : public UIPropertyBindingAbstract<T>, public virtual StringMassager
{
public:
    using typename BindingInterface::WidgetUpdateMode_e;

    /// Gives a field the validator that suits T. A validator that the form's designer set is left alone; one that an
    /// earlier binding installed is replaced.
    class ValidationInstaller
    {
    public:
        static void install(QLineEdit& lineEdit);

        /// The object name of every validator that a binding installs.
        static QString const m_installedValidatorMarker;
    };

    LineEditPropertyBindingAbstract(QLineEdit* lineEdit, boost::shared_ptr<PropertyAbstract<T>> property,
                                    WidgetUpdateMode_e updateMode);
    LineEditPropertyBindingAbstract(QLineEdit* lineEdit, propertymanager::UIStylePropertyAbstract<T>& property,
                                    WidgetUpdateMode_e updateMode);

    QLineEdit* widget() const override { return m_lineEdit; }

    /// Takes the text of the field over into the property. Returns whether the property took the value.
    bool editingFinished();

protected:
    /// The text that shows a value.
    virtual QString textOf(T const& value) const = 0;

private:
    class FocusOutFilter;

    void connectToLineEdit();
    bool hasAcceptableText() const;
    bool setPropertyFromText(QString text);
    void restore();
    void focusLost();

    QPointer<QLineEdit> m_lineEdit;
    std::unique_ptr<QObject> m_focusOutFilter; ///< also the context of the connection to the line edit
};

extern template class LineEditPropertyBindingAbstract<int>;
extern template class LineEditPropertyBindingAbstract<long>;
extern template class LineEditPropertyBindingAbstract<double>;
extern template class LineEditPropertyBindingAbstract<std::string>;

} // namespace vantrix::sdk::ui::dialogs::propertybindings
