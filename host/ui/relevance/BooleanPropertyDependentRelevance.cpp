#include "ui/relevance/BooleanPropertyDependentRelevance.h"

namespace vantrix::sdk::ui::propertymanager {

BooleanPropertyDependentRelevance::BooleanPropertyDependentRelevance(
    boost::shared_ptr<PropertyAbstract<bool> const> property, std::string reason)
    : m_property(std::move(property))
    , m_connection(m_property->connectToValueChangedSignal([this](bool const&) { emitRelevanceChangedSignal(); }))
{
    setReason(std::move(reason));
}

BooleanPropertyDependentRelevance::BooleanPropertyDependentRelevance(UIStylePropertyAbstract<bool> const& property,
                                                                     std::string reason)
    // A shared pointer that owns nothing.
    : BooleanPropertyDependentRelevance(
          boost::shared_ptr<PropertyAbstract<bool> const>(boost::shared_ptr<void>(), &property), std::move(reason))
{}

bool BooleanPropertyDependentRelevance::isRelevant() const
{
    return m_property->value();
}

} // namespace vantrix::sdk::ui::propertymanager
