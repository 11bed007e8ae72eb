#include "propertymanager/SensitivityDependencyManager.h"

namespace vantrix::sdk::ui::propertymanager {

namespace {

class FollowController : public SensitivityStrategyInterface
{
public:
    bool isSensitive(bool controllerValue) const override { return controllerValue; }
};

} // namespace

class SensitivityDependencyManager::StrategyRelevance : public RelevanceInterface
{
public:
    StrategyRelevance(PropertyAbstract<bool> const& controller, std::unique_ptr<SensitivityStrategyInterface> strategy)
        : m_controller(controller)
        , m_strategy(std::move(strategy))
        , m_connection(controller.connectToValueChangedSignal([this](bool const&) { emitRelevanceChangedSignal(); }))
    {}

    bool isRelevant() const override { return m_strategy->isSensitive(m_controller.value()); }

    void setStrategy(std::unique_ptr<SensitivityStrategyInterface> strategy)
    {
        m_strategy = std::move(strategy);
        emitRelevanceChangedSignal();
    }

private:
    PropertyAbstract<bool> const& m_controller;
    std::unique_ptr<SensitivityStrategyInterface> m_strategy;
    boost::signals2::scoped_connection m_connection;
};

SensitivityDependencyManager::SensitivityDependencyManager(PropertyAbstract<bool>& controller)
    : SensitivityDependencyManager(controller, std::make_unique<FollowController>())
{}

SensitivityDependencyManager::SensitivityDependencyManager(PropertyAbstract<bool>& controller,
                                                           std::unique_ptr<SensitivityStrategyInterface> strategy)
    : m_relevance(std::make_unique<StrategyRelevance>(controller, std::move(strategy)))
{}

SensitivityDependencyManager::~SensitivityDependencyManager() = default;

void SensitivityDependencyManager::addDependentProperty(UIPropertyInterface& property)
{
    property.addSensitivityRelevance(*m_relevance);
}

void SensitivityDependencyManager::setSensitivityStrategy(std::unique_ptr<SensitivityStrategyInterface> strategy)
{
    m_relevance->setStrategy(std::move(strategy));
}

} // namespace vantrix::sdk::ui::propertymanager
