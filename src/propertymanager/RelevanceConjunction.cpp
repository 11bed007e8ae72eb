#include "propertymanager/RelevanceConjunction.h"

#include <algorithm>

namespace vantrix::sdk::ui::propertymanager {

RelevanceConjunction::RelevanceConjunction(UIPropertyInterface::StateChangedSignal& changed)
    : m_changed(changed)
{}

void RelevanceConjunction::add(RelevanceInterface const& relevance)
{
    std::erase_if(m_members, [](Member const& member) { return member.life.expired(); });
    bool const known = std::any_of(m_members.begin(), m_members.end(),
                                   [&relevance](Member const& member) { return member.relevance == &relevance; });
    if (known) {
        return;
    }
    m_members.push_back({&relevance, relevance.lifeToken(), {}});
    if (m_listening) {
        listenTo(m_members.back());
        update();
    }
}

void RelevanceConjunction::remove(RelevanceInterface const& relevance)
{
    std::erase_if(m_members, [&relevance](Member const& member) { return member.relevance == &relevance; });
    if (m_listening) {
        update();
    }
}

bool RelevanceConjunction::holds() const
{
    return std::all_of(m_members.begin(), m_members.end(),
                       [](Member const& member) { return member.life.expired() || member.relevance->isRelevant(); });
}

void RelevanceConjunction::listenWhileHeard()
{
    bool const heard = !m_changed.empty();
    if (heard == m_listening) {
        return;
    }
    m_listening = heard;
    m_lastAnswer = holds();
    for (Member& member : m_members) {
        member.connection.disconnect();
        if (heard && !member.life.expired()) {
            listenTo(member);
        }
    }
}

void RelevanceConjunction::listenTo(Member& member)
{
    member.connection = member.relevance->connectToRelevanceChangedSignal([this] { update(); });
}

void RelevanceConjunction::update()
{
    if (m_changed.empty()) {
        listenWhileHeard();
        return;
    }
    bool const answer = holds();
    if (answer != m_lastAnswer) {
        m_lastAnswer = answer;
        m_changed();
    }
}

} // namespace vantrix::sdk::ui::propertymanager
