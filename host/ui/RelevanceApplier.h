#pragma once

#include "propertybindings/BindingInterface.h"
#include "propertymanager/RelevanceInterface.h"
#include "sdk/OnIdleActionPerformerSingleShot.h"

#include <QPointer>
#include <QString>

#include <tuple>
#include <utility>
#include <vector>

namespace vantrix::sdk::ui::dialogs::propertybindings {

/// Shows by the state of controls whether a relevance holds: at construction, and again whenever the relevance signals.
/// A control that is disabled by a relevance that tells a reason has the reason as its tool tip.
class RelevanceApplier
{
public:
    /// What becomes of a control that is not relevant.
    enum Manifestation
    {
        Visibility = 0, ///< it is hidden; a page of a stack is instead brought to the front while it is relevant
        Sensitivity = 1 ///< it is disabled
    };
    using WidgetUpdateMode_e = BindingInterface::WidgetUpdateMode_e;

    /// @param relevance   not null
    /// @param controls    widgets or actions, not null; a control that is deleted later is left out
    /// @param updateMode  whether a signal is answered at once or on the next idle turn
    RelevanceApplier(boost::shared_ptr<propertymanager::RelevanceInterface const> relevance,
                     std::vector<QObject*> const& controls, Manifestation manifestation, WidgetUpdateMode_e updateMode);

    /// The same for one to seven controls: RelevanceApplier(relevance, label, field, manifestation, updateMode).
    template<typename... Arguments>
    requires(sizeof...(Arguments) >= 2 && sizeof...(Arguments) <= 8)
        RelevanceApplier(boost::shared_ptr<propertymanager::RelevanceInterface const> relevance, QObject* first,
                         Arguments... arguments)
        : RelevanceApplier(std::move(relevance), std::make_tuple(first, arguments...),
                           std::make_index_sequence<sizeof...(Arguments) - 1>())
    {}

private:
    struct Control
    {
        QPointer<QObject> object;
        QString toolTip; ///< the control's own
    };

    template<typename Arguments, std::size_t... ControlIndex>
    RelevanceApplier(boost::shared_ptr<propertymanager::RelevanceInterface const> relevance, Arguments arguments,
                     std::index_sequence<ControlIndex...>)
        : RelevanceApplier(std::move(relevance), std::vector<QObject*>{std::get<ControlIndex>(arguments)...},
                           std::get<sizeof...(ControlIndex)>(arguments),
                           std::get<sizeof...(ControlIndex) + 1>(arguments))
    {}

    void apply();
    void setToolTips(bool relevant);

    boost::shared_ptr<propertymanager::RelevanceInterface const> m_relevance;
    std::vector<Control> m_controls;
    Manifestation m_manifestation;
    OnIdleActionPerformerSingleShot m_applyOnIdle;
    boost::signals2::scoped_connection m_connection;
};

} // namespace vantrix::sdk::ui::dialogs::propertybindings
