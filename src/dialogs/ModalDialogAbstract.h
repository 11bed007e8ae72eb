#pragma once

#include "ui/QtDialogAbstract.h"

namespace vantrix::sdk::ui::propertymanager {
class MemberRefusedException;
}

namespace vantrix::sdk::ui::dialogs {

namespace propertybindings {
class ButtonBinding;
}
class FormBindings;

/// Base of the dialogs whose edits wait for OK. Opening one takes the host's present values; OK submits and closes when
/// that succeeds; Cancel drops the edits. The rest of the application cannot be used meanwhile.
class ModalDialogAbstract : public vantrix::dialogs::common::QtDialogAbstract
{
    Q_OBJECT

public:
    ~ModalDialogAbstract() override;

    void launch() override;

public Q_SLOTS:
    /// What OK does, unless an edit was refused on the way to it. When the host refuses a value, nothing is applied: a
    /// message names the field by its label, and the field gets the focus.
    void accept() override;

protected:
    ModalDialogAbstract(QWidget& parent, Relevance relevance);

    /// Lets the OK button of the form accept. To be called once the form is there.
    void setOkButton(QAbstractButton* button);

    /// Lets a refusal of the host be told by the field that is bound to the property. They live as long as the dialog.
    void setBindings(FormBindings const& bindings) { m_bindings = &bindings; }

    /// Takes the host's present values.
    virtual void init() = 0;

    /// Applies the edits. False, after the user was told why, when nothing was applied.
    /// @throws propertymanager::MemberRefusedException where the host refuses a value; accept() tells the user
    virtual bool submit() = 0;

private:
    void tellRefusal(propertymanager::MemberRefusedException const& refusal);

    FormBindings const* m_bindings = nullptr;
    std::unique_ptr<propertybindings::ButtonBinding> m_okBinding;
};

} // namespace vantrix::sdk::ui::dialogs
