#pragma once

#include "propertymanager/RelevanceInterface.h"

namespace vantrix::sdk::ui::propertymanager {

/// Relevant while another relevance is not.
class InvertingRelevance : public virtual RelevanceInterface
{
public:
    /// @param inner  not null; kept by the relevance
    explicit InvertingRelevance(boost::shared_ptr<RelevanceInterface const> inner, std::string reason = {});

    /// @param inner  not null, not owned; must outlive the relevance
    explicit InvertingRelevance(RelevanceInterface const* inner, std::string reason = {});

    bool isRelevant() const override;

private:
    boost::shared_ptr<RelevanceInterface const> m_inner;
    boost::signals2::scoped_connection m_connection;
};

} // namespace vantrix::sdk::ui::propertymanager
