#include "ui/QtDialogAbstract.h"

#include "ui/PlaceBeside.h"
#include "ui/ReadingOrder.h"
#include "ui/WheelGuard.h"

#include <QAction>
#include <QDialogButtonBox>
#include <QEvent>
#include <QGuiApplication>
#include <QHideEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSettings>
#include <QStyle>
#include <QVBoxLayout>

namespace vantrix::dialogs::common {

namespace {
QString const geometryKey = QStringLiteral("geometry");
}

QtDialogAbstract::QtDialogAbstract(QWidget& parent, Relevance relevance)
    : QDialog(&parent)
    , m_relevance(std::move(relevance))
    , m_applyRelevanceOnIdle([this] { applyRelevance(); })
{
    if (m_relevance) {
        m_relevanceConnection = m_relevance->connectToRelevanceChangedSignal(
            boost::bind(&vantrix::sdk::OnIdleActionPerformerSingleShot::enableNotification, &m_applyRelevanceOnIdle));
    }
}

QtDialogAbstract::~QtDialogAbstract()
{
    if (isVisible()) {
        savePersistentState();
    }
}

void QtDialogAbstract::launch()
{
    bool const wasVisible = isVisible();
    show();
    raise();
    activateWindow();
    if (!wasVisible) {
        focusFirstField();
    }
}

void QtDialogAbstract::drop()
{
    if (focusWidget()) {
        focusWidget()->clearFocus();
    }
    hide();
}

void QtDialogAbstract::setHelpAction(QAction* action)
{
    action->setShortcut(QKeySequence::HelpContents);
    addAction(action);
    auto* const box = findChild<QDialogButtonBox*>();
    if (!box) {
        return;
    }
    if (!box->button(QDialogButtonBox::Help)) {
        box->addButton(QDialogButtonBox::Help);
    }
    connect(box, &QDialogButtonBox::helpRequested, action, &QAction::trigger);
}

void QtDialogAbstract::addPersistentState(std::unique_ptr<PersistentStateInterface> state)
{
    m_persistentStates.push_back(std::move(state));
}

void QtDialogAbstract::setVisible(bool visible)
{
    if (visible && !m_prepared) {
        prepare();
    }
    if (visible && !isVisible()) {
        applyRelevance();
    }
    QDialog::setVisible(visible);
}

void QtDialogAbstract::reject()
{
    QWidget* const edited = focusWidget();
    auto* field = qobject_cast<QLineEdit*>(edited);
    if (!field && edited) { // in a spin box or combo box
        field = edited->findChild<QLineEdit*>();
    }
    if (field) {
        while (field->isUndoAvailable()) {
            field->undo();
        }
    }
    QDialog::reject();
}

bool QtDialogAbstract::event(QEvent* event)
{
    bool const result = QDialog::event(event);
    if (m_prepared && (event->type() == QEvent::LayoutRequest || event->type() == QEvent::Resize)) {
        limitHeight();
    }
    return result;
}

/// While the dialog is not relevant its buttons stay disabled, whoever enables them; the wish is kept for later.
bool QtDialogAbstract::eventFilter(QObject* watched, QEvent* event)
{
    if (event->type() == QEvent::EnabledChange && !m_relevant) {
        auto const button = m_buttonStates.find(qobject_cast<QAbstractButton*>(watched));
        if (button != m_buttonStates.end() && button->first->isEnabled()) {
            button->second = true;
            button->first->setEnabled(false);
        }
    }
    return QDialog::eventFilter(watched, event);
}

void QtDialogAbstract::hideEvent(QHideEvent* event)
{
    if (!event->spontaneous()) {
        savePersistentState();
    }
    QDialog::hideEvent(event);
}

void QtDialogAbstract::prepare()
{
    m_buttonBox = findChild<QDialogButtonBox*>();
    wrapContent();
    leaveRoomForTitle();
    setUpButtons();
    setUpKeyboard();
    (new WheelGuard(this))->guard(*this);
    if (m_opensBesidePlot) {
        if (!testAttribute(Qt::WA_Resized)) {
            adjustSize();
        }
        placeBesidePlot(*this);
    }
    restorePersistentState();
    m_prepared = true;
    limitHeight();
}

/// Window managers show the name of the program, icons and buttons beside the title.
void QtDialogAbstract::leaveRoomForTitle()
{
    constexpr int buttonsAndMargins = 120;
    QString const title = windowTitle() + QStringLiteral(" - ") + QGuiApplication::applicationDisplayName();
    m_content->setMinimumWidth(
        std::max(m_content->minimumWidth(), fontMetrics().horizontalAdvance(title) + buttonsAndMargins));
}

/// Puts the form into a widget of its own, so that it is disabled as a whole and each control keeps a state of its own.
void QtDialogAbstract::wrapContent()
{
    m_content = new QWidget;
    if (QLayout* const form = layout()) {
        m_content->setLayout(form);
        form->setContentsMargins(0, 0, 0, style()->pixelMetric(QStyle::PM_LayoutVerticalSpacing));
    }
    m_reason = new QLabel;
    m_reason->setObjectName(QStringLiteral("relevanceReason"));
    m_reason->setWordWrap(true);
    m_reason->setFrameShape(QFrame::StyledPanel);
    m_reason->setBackgroundRole(QPalette::ToolTipBase);
    m_reason->setForegroundRole(QPalette::ToolTipText);
    m_reason->setAutoFillBackground(true);
    m_reason->setMargin(6);
    m_reason->hide();

    auto* const outer = new QVBoxLayout(this);
    outer->addWidget(m_reason);
    outer->addWidget(m_content);
    if (m_buttonBox) {
        outer->addWidget(m_buttonBox);
    }
}

void QtDialogAbstract::setUpButtons()
{
    if (!m_buttonBox) {
        return;
    }
    connect(m_buttonBox, &QDialogButtonBox::rejected, this, &QtDialogAbstract::reject, Qt::UniqueConnection);
    for (QAbstractButton* const button : m_buttonBox->buttons()) {
        auto const role = m_buttonBox->buttonRole(button);
        if (role != QDialogButtonBox::RejectRole && role != QDialogButtonBox::HelpRole) {
            m_buttonStates[button] = button->isEnabledTo(this);
            button->installEventFilter(this);
        }
    }
}

void QtDialogAbstract::setUpKeyboard()
{
    applyTabOrder(widgetsInReadingOrder(*this));
    if (!isModal()) {
        for (QPushButton* const button : findChildren<QPushButton*>()) {
            button->setAutoDefault(false);
            button->setDefault(false);
        }
    }
}

void QtDialogAbstract::focusFirstField()
{
    for (QWidget* const widget : widgetsInReadingOrder(*this)) {
        if (widget->isEnabled() && widget->isVisible()) {
            widget->setFocus(Qt::TabFocusReason);
            return;
        }
    }
}

void QtDialogAbstract::limitHeight()
{
    bool const grows = layout()->expandingDirections() & Qt::Vertical;
    int const needed =
        layout()->hasHeightForWidth() ? layout()->totalHeightForWidth(width()) : layout()->totalSizeHint().height();
    setMaximumHeight(grows ? QWIDGETSIZE_MAX : needed);
    // A layout whose height depends on its width does not keep its window high enough by itself.
    if (!grows && height() < needed) {
        resize(width(), needed);
    }
}

void QtDialogAbstract::applyRelevance()
{
    if (!m_prepared || !m_relevance) {
        return;
    }
    bool const relevant = m_relevance->isRelevant();
    if (relevant == m_relevant) {
        return;
    }
    setActionButtonsEnabled(relevant);
    m_content->setEnabled(relevant);
    QString const reason = QString::fromStdString(m_relevance->reason());
    m_reason->setText(reason.isEmpty() ? tr("This does not apply to the present plot.") : reason);
    m_reason->setVisible(!relevant);
}

void QtDialogAbstract::setActionButtonsEnabled(bool enabled)
{
    if (!enabled) {
        for (auto& [button, wasEnabled] : m_buttonStates) {
            wasEnabled = button->isEnabledTo(this);
            button->setEnabled(false);
        }
    }
    m_relevant = enabled;
    if (enabled) {
        for (auto const& [button, wasEnabled] : m_buttonStates) {
            button->setEnabled(wasEnabled);
        }
    }
}

void QtDialogAbstract::savePersistentState()
{
    // What is set is written to the file, also where it is there already.
    QByteArray const geometry = saveGeometry();
    if (m_settings->value(geometryKey).toByteArray() != geometry) {
        m_settings->setValue(geometryKey, geometry);
    }
    for (auto const& state : m_persistentStates) {
        state->save(*m_settings);
    }
}

void QtDialogAbstract::restorePersistentState()
{
    m_settings = std::make_unique<QSettings>(QSettings::IniFormat, QSettings::UserScope, QStringLiteral("vantrix"),
                                             QStringLiteral("dialogs"));
    m_settings->beginGroup(objectName());
    restoreGeometry(m_settings->value(geometryKey).toByteArray());
    for (auto const& state : m_persistentStates) {
        state->restore(*m_settings);
    }
}

} // namespace vantrix::dialogs::common
