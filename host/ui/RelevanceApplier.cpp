#include "ui/RelevanceApplier.h"

#include <QStackedWidget>
#include <QTabWidget>
#include <QVariant>

namespace vantrix::sdk::ui::dialogs::propertybindings {

namespace {

/// The stack that the control is a page of; null for any other control. A tab widget keeps its pages in a stack, too,
/// but which of them is shown is the user's choice.
QStackedWidget* stackOf(QObject const& control)
{
    auto* const stack = qobject_cast<QStackedWidget*>(control.parent());
    return stack && !qobject_cast<QTabWidget*>(stack->parent()) ? stack : nullptr;
}

} // namespace

RelevanceApplier::RelevanceApplier(boost::shared_ptr<propertymanager::RelevanceInterface const> relevance,
                                   std::vector<QObject*> const& controls, Manifestation manifestation,
                                   WidgetUpdateMode_e updateMode)
    : m_relevance(std::move(relevance))
    , m_manifestation(manifestation)
    , m_applyOnIdle([this] { apply(); })
{
    for (QObject* const control : controls) {
        m_controls.push_back({control, control->property("toolTip").toString()});
    }
    m_connection = m_relevance->connectToRelevanceChangedSignal([this, updateMode] {
        if (updateMode == BindingInterface::Immediate) {
            apply();
        } else {
            m_applyOnIdle.enableNotification();
        }
    });
    apply();
}

void RelevanceApplier::apply()
{
    bool const relevant = m_relevance->isRelevant();
    char const* const state = m_manifestation == Visibility ? "visible" : "enabled";
    for (Control const& control : m_controls) {
        if (!control.object) {
            continue;
        }
        auto* const stack = m_manifestation == Visibility ? stackOf(*control.object) : nullptr;
        if (!stack) {
            control.object->setProperty(state, relevant);
        } else if (relevant) {
            stack->setCurrentWidget(qobject_cast<QWidget*>(control.object));
        }
    }
    if (m_manifestation == Sensitivity) {
        setToolTips(relevant);
    }
}

void RelevanceApplier::setToolTips(bool relevant)
{
    QString const reason = relevant ? QString() : QString::fromStdString(m_relevance->reason());
    for (Control const& control : m_controls) {
        if (control.object) {
            control.object->setProperty("toolTip", reason.isEmpty() ? control.toolTip : reason);
        }
    }
}

} // namespace vantrix::sdk::ui::dialogs::propertybindings
