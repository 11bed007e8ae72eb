#pragma once

#include "property/PropertyAbstract.h"
#include "propertymanager/SensitivityStrategyInterface.h"
#include "propertymanager/UIPropertyInterface.h"

#include <memory>

namespace vantrix::sdk::ui::propertymanager {

/// Makes the sensitivity of properties follow a flag: sensitive while it is true, or as a strategy decides. Their other
/// sensitivity relevances count as before. With the manager the dependency ends.
class SensitivityDependencyManager
{
public:
    /// @param controller  not owned; must outlive the manager
    explicit SensitivityDependencyManager(PropertyAbstract<bool>& controller);

    /// @param strategy  not null
    SensitivityDependencyManager(PropertyAbstract<bool>& controller,
                                 std::unique_ptr<SensitivityStrategyInterface> strategy);

    ~SensitivityDependencyManager();
    SensitivityDependencyManager(SensitivityDependencyManager const&) = delete;
    SensitivityDependencyManager& operator=(SensitivityDependencyManager const&) = delete;

    void addDependentProperty(UIPropertyInterface& property);

    /// @param strategy  not null
    void setSensitivityStrategy(std::unique_ptr<SensitivityStrategyInterface> strategy);

private:
    class StrategyRelevance;

    std::unique_ptr<StrategyRelevance> m_relevance;
};

} // namespace vantrix::sdk::ui::propertymanager
