#pragma once

#include "propertymanager/RelevanceInterface.h"

namespace vantrix::test {

/// A relevance that a test switches by hand.
class FlagRelevance : public virtual sdk::ui::propertymanager::RelevanceInterface
{
public:
    explicit FlagRelevance(bool relevant, std::string reason = {})
        : m_relevant(relevant)
    {
        setReason(std::move(reason));
    }

    void set(bool relevant)
    {
        m_relevant = relevant;
        emitRelevanceChangedSignal();
    }

    bool isRelevant() const override { return m_relevant; }

    void signalRelevanceChangedConnected() const override { ++connections; }

    mutable int connections = 0;

private:
    bool m_relevant;
};

} // namespace vantrix::test
