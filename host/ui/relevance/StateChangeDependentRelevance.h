#pragma once

#include "propertymanager/RelevanceInterface.h"
#include "toolbox/StateChangeEventInterface.h"

#include <functional>

namespace vantrix::sdk::ui::propertymanager {

/// Relevant while a predicate on the host's state is true. Signals after each state change that passes a filter;
/// without one, after every state change. Lets go of the host when the application ends.
class StateChangeDependentRelevance : public virtual RelevanceInterface
{
public:
    // Unlike boost::function this tells from the argument which constructor is meant.
    using Filter = std::function<bool(toolbox::StateChangeEventInterface const&)>;
    using Predicate = std::function<bool()>;

    explicit StateChangeDependentRelevance(Predicate predicate, std::string reason = {});
    StateChangeDependentRelevance(Filter filter, Predicate predicate, std::string reason = {});

    /// Asks the predicate, under the application lock.
    bool isRelevant() const override;

private:
    void stateChanged(toolbox::StateChangeEventInterface const& event);

    Filter m_filter;
    Predicate m_predicate;
    boost::signals2::scoped_connection m_connection;
};

} // namespace vantrix::sdk::ui::propertymanager
