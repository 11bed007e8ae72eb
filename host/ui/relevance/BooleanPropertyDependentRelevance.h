#pragma once

#include "propertymanager/RelevanceInterface.h"
#include "propertymanager/UIStylePropertyAbstract.h"

namespace vantrix::sdk::ui::propertymanager {

/// Relevant while a flag is true.
class BooleanPropertyDependentRelevance : public virtual RelevanceInterface
{
public:
    /// @param property  not null; kept by the relevance
    explicit BooleanPropertyDependentRelevance(boost::shared_ptr<PropertyAbstract<bool> const> property,
                                               std::string reason = {});

    /// @param property  not owned; must outlive the relevance
    explicit BooleanPropertyDependentRelevance(UIStylePropertyAbstract<bool> const& property, std::string reason = {});

    bool isRelevant() const override;

private:
    boost::shared_ptr<PropertyAbstract<bool> const> m_property;
    boost::signals2::scoped_connection m_connection;
};

} // namespace vantrix::sdk::ui::propertymanager
