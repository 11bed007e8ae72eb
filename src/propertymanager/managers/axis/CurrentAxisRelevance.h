#pragma once

#include "propertymanager/RelevanceInterface.h"

#include <functional>

namespace vantrix::sdk::ui::propertymanager {

/// Relevant while a predicate holds for the axis that is being edited. Signals when it is told that the axis, or the
/// type of the plot, is another.
class CurrentAxisRelevance : public virtual RelevanceInterface
{
public:
    explicit CurrentAxisRelevance(std::function<bool()> predicate)
        : m_predicate(std::move(predicate))
    {}

    bool isRelevant() const override { return m_predicate(); }
    void update() const { emitRelevanceChangedSignal(); }

private:
    std::function<bool()> m_predicate;
};

} // namespace vantrix::sdk::ui::propertymanager
