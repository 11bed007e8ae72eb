#include "propertybindings/LineEditPropertyBindingAbstract.h"

#include "api/VtxUtil.h"
#include "property/InvalidArgumentException.h"
#include "propertybindings/NumberLocale.h"
#include "propertybindings/StringConverter.h"
#include "sdk/AppLock.h"

#include <QFocusEvent>

#include <limits>

namespace vantrix::sdk::ui::dialogs::propertybindings {

template<typename T>
QString const LineEditPropertyBindingAbstract<T>::ValidationInstaller::m_installedValidatorMarker =
    QStringLiteral("VantrixBindingInstalledValidator");

template<typename T>
void LineEditPropertyBindingAbstract<T>::ValidationInstaller::install(QLineEdit& lineEdit)
{
    QValidator const* const present = lineEdit.validator();
    if (present && present->objectName() != m_installedValidatorMarker) {
        return;
    }
    QValidator* validator = nullptr;
    if constexpr (std::is_integral_v<T>) {
        validator = newIntValidator(std::numeric_limits<int>::min(), std::numeric_limits<int>::max(), &lineEdit);
    } else if constexpr (std::is_floating_point_v<T>) {
        QDoubleValidator const defaults;
        validator = newDoubleValidator(defaults.bottom(), defaults.top(), defaults.decimals(), &lineEdit);
    }
    if (validator) {
        validator->setObjectName(m_installedValidatorMarker);
    }
    lineEdit.setValidator(validator);
    if (present && present->parent() == &lineEdit) {
        delete present;
    }
}

/// QLineEdit does not tell that editing is finished while its text is not acceptable: such a text would stay in the
/// field when the user leaves it.
template<typename T>
class LineEditPropertyBindingAbstract<T>::FocusOutFilter : public QObject
{
public:
    explicit FocusOutFilter(LineEditPropertyBindingAbstract& binding)
        : m_binding(binding)
    {}

    bool eventFilter(QObject* watched, QEvent* event) override
    {
        // When another window or a popup comes to the front the user is not done with the field. A field that is being
        // destroyed loses the focus when it is a line edit no more.
        if (event->type() == QEvent::FocusOut && !isTemporary(static_cast<QFocusEvent*>(event)->reason()) &&
            qobject_cast<QLineEdit*>(watched)) {
            m_binding.focusLost();
        }
        return QObject::eventFilter(watched, event);
    }

private:
    static bool isTemporary(Qt::FocusReason reason)
    {
        return reason == Qt::ActiveWindowFocusReason || reason == Qt::PopupFocusReason;
    }

    LineEditPropertyBindingAbstract& m_binding;
};

template<typename T>
LineEditPropertyBindingAbstract<T>::LineEditPropertyBindingAbstract(QLineEdit* lineEdit,
                                                                    boost::shared_ptr<PropertyAbstract<T>> property,
                                                                    WidgetUpdateMode_e updateMode)
    : UIPropertyBindingAbstract<T>(std::move(property), updateMode)
    , m_lineEdit(lineEdit)
{
    connectToLineEdit();
}

template<typename T>
LineEditPropertyBindingAbstract<T>::LineEditPropertyBindingAbstract(
    QLineEdit* lineEdit, propertymanager::UIStylePropertyAbstract<T>& property, WidgetUpdateMode_e updateMode)
    : UIPropertyBindingAbstract<T>(property, updateMode)
    , m_lineEdit(lineEdit)
{
    connectToLineEdit();
}

template<typename T>
void LineEditPropertyBindingAbstract<T>::connectToLineEdit()
{
    ValidationInstaller::install(*m_lineEdit);
    m_focusOutFilter = std::make_unique<FocusOutFilter>(*this);
    m_lineEdit->installEventFilter(m_focusOutFilter.get());
    QObject::connect(m_lineEdit, &QLineEdit::editingFinished, m_focusOutFilter.get(), [this] { editingFinished(); });
}

template<typename T>
bool LineEditPropertyBindingAbstract<T>::editingFinished()
{
    if (!m_lineEdit) {
        return false;
    }
    AppLock const lock(false);
    if (!hasAcceptableText()) {
        restore();
        returnToRefusedEdit(*m_lineEdit);
        return false;
    }
    QString const text = m_lineEdit->text();
    // The field may show fewer digits than the property holds: leaving it as it is must not round the property.
    if (text == textOf(this->property().retrieveValue())) {
        return true;
    }
    return setPropertyFromText(text);
}

template<typename T>
bool LineEditPropertyBindingAbstract<T>::hasAcceptableText() const
{
    QValidator const* const validator = m_lineEdit->validator();
    if (!validator) {
        return true;
    }
    QString text = m_lineEdit->text();
    int position = m_lineEdit->cursorPosition();
    if (validator->validate(text, position) == QValidator::Acceptable) {
        return true;
    }
    validator->fixup(text);
    if (validator->validate(text, position) != QValidator::Acceptable) {
        return false;
    }
    m_lineEdit->setText(text);
    return true;
}

template<typename T>
bool LineEditPropertyBindingAbstract<T>::setPropertyFromText(QString text)
{
    if constexpr (std::is_same_v<T, double>) {
        this->prepareText(this->property(), text);
    }
    T value{};
    try {
        intern::StringConverter(text.toStdString()).convert(value);
    } catch (InvalidArgumentException const&) {
        return false;
    }
    if (!this->setProperty(value)) {
        return false;
    }
    this->updateWidget();
    return true;
}

/// Brings the property's value back and tells in the status line what was dropped.
template<typename T>
void LineEditPropertyBindingAbstract<T>::restore()
{
    QString const refused = m_lineEdit->text();
    this->updateWidget();
    if (!refused.isEmpty()) {
        QString const message = QStringLiteral("\"%1\" is not a value for this field; it shows %2 again.");
        VtxUtilStatusMessage(message.arg(refused, m_lineEdit->text()).toUtf8().constData());
    }
}

template<typename T>
void LineEditPropertyBindingAbstract<T>::focusLost()
{
    if (!m_lineEdit->hasAcceptableInput() && !hasAcceptableText()) {
        restore();
    }
}

template class LineEditPropertyBindingAbstract<int>;
template class LineEditPropertyBindingAbstract<long>;
template class LineEditPropertyBindingAbstract<double>;
template class LineEditPropertyBindingAbstract<std::string>;

} // namespace vantrix::sdk::ui::dialogs::propertybindings
