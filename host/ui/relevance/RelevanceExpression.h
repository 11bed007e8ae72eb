#pragma once

#include "propertymanager/RelevanceInterface.h"

namespace vantrix::sdk::ui::propertymanager {

/// Builds a relevance out of others by AND and OR, applied from left to right:
///
///     boost::shared_ptr<RelevanceInterface const> const both = RelevanceExpression(first).aand(second);
///
/// The result signals when any operand signals, and keeps its operands. It tells the reason of the first operand that
/// keeps it from holding.
class RelevanceExpression
{
public:
    /// @param operand  not null, as all operands
    explicit RelevanceExpression(boost::shared_ptr<RelevanceInterface const> operand);

    RelevanceExpression& aand(boost::shared_ptr<RelevanceInterface const> operand);
    RelevanceExpression& oor(boost::shared_ptr<RelevanceInterface const> operand);

    /// The result. It is held weakly once it was handed out: convert once, and share what you get.
    /// @throws boost::bad_weak_ptr when the result was handed out and has been released
    operator boost::shared_ptr<RelevanceInterface const>();

private:
    class Result;

    Result& result() const;

    // Kept until the first conversion; from then on the caller's pointer keeps the result.
    boost::shared_ptr<Result> m_built;
    boost::weak_ptr<Result> m_result;
};

} // namespace vantrix::sdk::ui::propertymanager
