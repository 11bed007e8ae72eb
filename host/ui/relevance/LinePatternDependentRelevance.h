#pragma once

#include "api/VtxEnumerations.h"
#include "property/PropertyAbstract.h"
#include "propertymanager/RelevanceInterface.h"

namespace vantrix::sdk::ui::propertymanager {

/// Relevant while a line pattern is one that repeats: every pattern but the solid one. For the length of the pattern.
class LinePatternDependentRelevance : public virtual RelevanceInterface
{
public:
    /// @param property  not null; kept by the relevance
    explicit LinePatternDependentRelevance(boost::shared_ptr<PropertyAbstract<LinePattern_e> const> property);

    bool isRelevant() const override;

private:
    boost::shared_ptr<PropertyAbstract<LinePattern_e> const> m_property;
    boost::signals2::scoped_connection m_connection;
};

} // namespace vantrix::sdk::ui::propertymanager
