#pragma once

#include "propertymanager/UIPropertyInterface.h"

#include <vector>

namespace vantrix::sdk::ui::propertymanager {

/// The relevances of one state of a property, and whether all of them hold. It listens to them only while its signal
/// has slots, and then sends it when the common answer changes.
class RelevanceConjunction
{
public:
    /// @param changed  must outlive this object
    explicit RelevanceConjunction(UIPropertyInterface::StateChangedSignal& changed);

    RelevanceConjunction(RelevanceConjunction const&) = delete;
    RelevanceConjunction& operator=(RelevanceConjunction const&) = delete;

    /// Not owned; a relevance that has gone is forgotten.
    void add(RelevanceInterface const& relevance);
    void remove(RelevanceInterface const& relevance);

    bool holds() const;

    /// Starts to listen when the signal has slots, stops when it has none.
    void listenWhileHeard();

private:
    struct Member
    {
        RelevanceInterface const* relevance;
        boost::weak_ptr<void const> life;
        boost::signals2::scoped_connection connection;
    };

    void listenTo(Member& member);
    void update();

    UIPropertyInterface::StateChangedSignal& m_changed;
    std::vector<Member> m_members;
    bool m_listening = false;
    bool m_lastAnswer = true;
};

} // namespace vantrix::sdk::ui::propertymanager
