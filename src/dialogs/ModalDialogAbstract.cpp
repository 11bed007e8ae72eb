#include "dialogs/ModalDialogAbstract.h"

#include "api/VtxUtil.h"
#include "dialogs/FormBindings.h"
#include "propertymanager/generated/MemberRefusedException.h"
#include "ui/ButtonBinding.h"

#include <QAbstractButton>
#include <QGroupBox>
#include <QLabel>
#include <QRadioButton>
#include <QRegularExpression>

namespace vantrix::sdk::ui::dialogs {

namespace {

/// The group that a radio button is one of; null for other controls.
QGroupBox const* groupOf(QWidget const& control)
{
    QWidget const* box = qobject_cast<QRadioButton const*>(&control);
    while (box && !qobject_cast<QGroupBox const*>(box)) {
        box = box->parentWidget();
    }
    return qobject_cast<QGroupBox const*>(box);
}

/// What stands beside a control, or above the group that it is one of, without access key and colon.
QString labelOf(QWidget const& control)
{
    QString text;
    if (auto const* const group = groupOf(control)) {
        text = group->title();
    } else if (auto const* const button = qobject_cast<QAbstractButton const*>(&control)) {
        text = button->text();
    }
    for (QLabel const* const label : control.window()->findChildren<QLabel*>()) {
        if (label->buddy() == &control) {
            text = label->text();
        }
    }
    return text.remove(QLatin1Char('&')).simplified().remove(QRegularExpression(QStringLiteral(":$")));
}

} // namespace

ModalDialogAbstract::ModalDialogAbstract(QWidget& parent, Relevance relevance)
    : QtDialogAbstract(parent, std::move(relevance))
{
    setModal(true);
}

ModalDialogAbstract::~ModalDialogAbstract() = default;

void ModalDialogAbstract::setOkButton(QAbstractButton* button)
{
    m_okBinding = std::make_unique<propertybindings::ButtonBinding>(button, [this] { accept(); });
}

void ModalDialogAbstract::launch()
{
    if (!isVisible()) {
        init();
    }
    QtDialogAbstract::launch();
}

void ModalDialogAbstract::accept()
{
    try {
        if (submit()) {
            QtDialogAbstract::accept();
        }
    } catch (propertymanager::MemberRefusedException const& refusal) {
        tellRefusal(refusal);
    }
}

void ModalDialogAbstract::tellRefusal(propertymanager::MemberRefusedException const& refusal)
{
    QWidget* const control = m_bindings ? m_bindings->controlOf(refusal.member()) : nullptr;
    QString const label = control ? labelOf(*control) : QString();
    std::string const message =
        label.isEmpty() ? refusal.message() : '"' + label.toStdString() + "\": " + refusal.message();
    VtxUtilDialogMessageBox(message.c_str(), MessageBox_Error);
    if (control) {
        control->setFocus(Qt::OtherFocusReason);
    }
}

} // namespace vantrix::sdk::ui::dialogs
