#include "ui/relevance/LinePatternDependentRelevance.h"

namespace vantrix::sdk::ui::propertymanager {

LinePatternDependentRelevance::LinePatternDependentRelevance(
    boost::shared_ptr<PropertyAbstract<LinePattern_e> const> property)
    : m_property(std::move(property))
    , m_connection(
          m_property->connectToValueChangedSignal([this](LinePattern_e const&) { emitRelevanceChangedSignal(); }))
{
    setReason("A solid line has no pattern that repeats.");
}

bool LinePatternDependentRelevance::isRelevant() const
{
    return m_property->value() != LinePattern_Solid;
}

} // namespace vantrix::sdk::ui::propertymanager
