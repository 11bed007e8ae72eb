#include "ui/relevance/InvertingRelevance.h"

namespace vantrix::sdk::ui::propertymanager {

InvertingRelevance::InvertingRelevance(boost::shared_ptr<RelevanceInterface const> inner, std::string reason)
    : m_inner(std::move(inner))
    , m_connection(m_inner->connectToRelevanceChangedSignal([this] { emitRelevanceChangedSignal(); }))
{
    setReason(std::move(reason));
}

InvertingRelevance::InvertingRelevance(RelevanceInterface const* inner, std::string reason)
    // A shared pointer that owns nothing.
    : InvertingRelevance(boost::shared_ptr<RelevanceInterface const>(boost::shared_ptr<void>(), inner),
                         std::move(reason))
{}

bool InvertingRelevance::isRelevant() const
{
    return !m_inner->isRelevant();
}

} // namespace vantrix::sdk::ui::propertymanager
