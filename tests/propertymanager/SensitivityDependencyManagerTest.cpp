#include "propertymanager/SensitivityDependencyManager.h"
#include "property/Property.h"
#include "propertymanager/UILocalStyleProperty.h"

#include <gtest/gtest.h>

using namespace vantrix;
using namespace vantrix::sdk::ui::propertymanager;

namespace {

class WhileOff : public SensitivityStrategyInterface
{
public:
    bool isSensitive(bool controllerValue) const override { return !controllerValue; }
};

} // namespace

TEST(SensitivityDependencyManager, MakesPropertiesFollowTheControllerUnderItsStrategy)
{
    Property<bool> controller(false);
    UILocalStyleProperty<int> dependent(1);
    int changes = 0;
    dependent.connectToSensitivityChangedSignal([&changes] { ++changes; });
    {
        SensitivityDependencyManager manager(controller);
        manager.addDependentProperty(dependent);
        EXPECT_FALSE(dependent.isSensitive());
        controller.setValue(true);
        EXPECT_TRUE(dependent.isSensitive());
        EXPECT_EQ(changes, 2);
        manager.setSensitivityStrategy(std::make_unique<WhileOff>());
        EXPECT_FALSE(dependent.isSensitive());
        EXPECT_EQ(changes, 3);
    }
    EXPECT_TRUE(dependent.isSensitive());
    EXPECT_EQ(controller.valueChangedListenerCount(), 0U);
}
