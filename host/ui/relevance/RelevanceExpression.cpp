#include "ui/relevance/RelevanceExpression.h"

#include "sdk/SignalConnectionCollection.h"

#include <boost/make_shared.hpp>

#include <vector>

namespace vantrix::sdk::ui::propertymanager {

class RelevanceExpression::Result : public virtual RelevanceInterface
{
public:
    enum class Operator
    {
        And,
        Or
    };

    void append(Operator op, boost::shared_ptr<RelevanceInterface const> relevance)
    {
        m_connections.add(relevance->connectToRelevanceChangedSignal([this] { emitRelevanceChangedSignal(); }));
        m_operands.push_back({op, std::move(relevance)});
        emitRelevanceChangedSignal();
    }

    // The first operand is joined to `true` by AND.
    bool isRelevant() const override
    {
        bool answer = true;
        for (Operand const& operand : m_operands) {
            answer = operand.op == Operator::And ? answer && operand.relevance->isRelevant()
                                                 : answer || operand.relevance->isRelevant();
        }
        return answer;
    }

    std::string reason() const override
    {
        if (isRelevant()) {
            return {};
        }
        for (Operand const& operand : m_operands) {
            std::string reason = operand.relevance->reason();
            if (!reason.empty()) {
                return reason;
            }
        }
        return {};
    }

private:
    struct Operand
    {
        Operator op;
        boost::shared_ptr<RelevanceInterface const> relevance;
    };

    std::vector<Operand> m_operands;
    SignalConnectionCollection m_connections;
};

RelevanceExpression::RelevanceExpression(boost::shared_ptr<RelevanceInterface const> operand)
    : m_built(boost::make_shared<Result>())
    , m_result(m_built)
{
    aand(std::move(operand));
}

RelevanceExpression::Result& RelevanceExpression::result() const
{
    return *boost::shared_ptr<Result>(m_result);
}

RelevanceExpression& RelevanceExpression::aand(boost::shared_ptr<RelevanceInterface const> operand)
{
    result().append(Result::Operator::And, std::move(operand));
    return *this;
}

RelevanceExpression& RelevanceExpression::oor(boost::shared_ptr<RelevanceInterface const> operand)
{
    result().append(Result::Operator::Or, std::move(operand));
    return *this;
}

RelevanceExpression::operator boost::shared_ptr<RelevanceInterface const>()
{
    boost::shared_ptr<Result> const result(m_result);
    m_built.reset();
    return result;
}

} // namespace vantrix::sdk::ui::propertymanager
