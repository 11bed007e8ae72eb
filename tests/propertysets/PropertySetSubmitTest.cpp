#include "api/VtxUtil.h"
#include "property/InvalidPropertyValueException.h"
#include "property/Property.h"
#include "propertymanager/generated/ContourPropertiesGenerated.h"
#include "propertymanager/generated/FrameEditPropertiesGenerated.h"
#include "propertymanager/generated/OptionsRulerGridPropertiesGenerated.h"
#include "sdk/AppLock.h"
#include "toolbox/HostString.h"

#include <gmock/gmock.h>

namespace vantrix::sdk::ui::propertymanager {

namespace {

using testing::HasSubstr;

struct PropertySetSubmit : testing::Test
{
    PropertySetSubmit()
    {
        while (VtxUtilUndo()) {
        }
    }
    ~PropertySetSubmit() override
    {
        while (VtxUtilUndo()) {
        }
    }

    FrameEditPropertiesGenerated modal{true, {}};
    FrameEditPropertiesGenerated host{false, {}};
};

} // namespace

TEST_F(PropertySetSubmit, WritesAllEditsAsOneStepThatUndoTakesBack)
{
    double const width = host.framelayoutWidth()->value();
    bool const border = host.framelayoutShowBorder()->value();
    modal.framelayoutWidth()->setValue(width / 2);
    modal.framelayoutShowBorder()->setValue(!border);
    EXPECT_EQ(width, host.framelayoutWidth()->value());

    int submitted = 0;
    modal.connectToSubmittedSignal([&] { ++submitted; });
    modal.submit();
    EXPECT_EQ(1, submitted);
    EXPECT_EQ(width / 2, host.framelayoutWidth()->value());
    EXPECT_EQ(!border, host.framelayoutShowBorder()->value());

    ASSERT_TRUE(VtxUtilUndo());
    EXPECT_EQ(width, host.framelayoutWidth()->value());
    EXPECT_EQ(border, host.framelayoutShowBorder()->value());
}

TEST_F(PropertySetSubmit, ThatFailsOnOneMemberLeavesTheHostAsItWasAndTellsWhichField)
{
    long const color = host.framelayoutBackgroundColor()->value();
    double const width = host.framelayoutWidth()->value(); // NOLINT(clang-analyzer-deadcode.DeadStores): compared below
    modal.framelayoutBackgroundColor()->setValue(static_cast<int>(color) + 1);
    modal.framelayoutWidth()->setValue(-1.0);

    int submitted = 0;
    modal.connectToSubmittedSignal([&] { ++submitted; });
    try {
        modal.submit();
        FAIL() << "a negative width was accepted";
    } catch (InvalidPropertyValueException const& exception) {
        EXPECT_THAT(exception.message(), HasSubstr("Width"));
    }
    EXPECT_EQ(0, submitted);
    EXPECT_EQ(color, host.framelayoutBackgroundColor()->value());
    EXPECT_EQ(width, host.framelayoutWidth()->value());
    EXPECT_FALSE(VtxUtilUndo()) << "a failed submit left a step to undo";
    EXPECT_EQ(-1.0, modal.framelayoutWidth()->value()) << "the edit is lost";
}

TEST_F(PropertySetSubmit, WithoutEditsWritesNothing)
{
    modal.submit();
    EXPECT_FALSE(VtxUtilUndo());
}

TEST_F(PropertySetSubmit, ReachesTheKernelMemberBehindOneThatWasReplaced)
{
    bool const border = host.framelayoutShowBorder()->value();
    auto const kernelMember = modal.framelayoutShowBorder();
    auto const inFront = boost::make_shared<Property<bool>>(border);
    modal.setFramelayoutShowBorder(inFront);
    EXPECT_EQ(inFront, modal.framelayoutShowBorder());

    kernelMember->setValue(!border);
    modal.submit();
    EXPECT_EQ(!border, host.framelayoutShowBorder()->value());
    EXPECT_EQ(border, inFront->value());
}

TEST_F(PropertySetSubmit, OffsetsReachTheKernelMemberBehindOneThatWasReplaced)
{
    ContourPropertiesGenerated zone(false, {"FieldMap", "Contour"});
    zone.setOffset(1, -1);
    auto const kernelMember = zone.getColor();
    int const before = kernelMember->value();
    zone.setColor(boost::make_shared<Property<int>>(before));
    {
        AppLock const lock;
        kernelMember->setValue(before + 1);
    }
    zone.setOffset(2, -1);
    EXPECT_EQ(before, kernelMember->value());
    zone.setOffset(1, -1);
    EXPECT_EQ(before + 1, kernelMember->value());
}

TEST_F(PropertySetSubmit, OfAModelessSetWritesNothingNew)
{
    OptionsRulerGridPropertiesGenerated modeless(false, {"Paper"});
    {
        AppLock const lock;
        modeless.showGrid()->setValue(!modeless.showGrid()->value());
    }
    ASSERT_TRUE(VtxUtilUndo());
    ASSERT_TRUE(VtxUtilRedo());
    modeless.submit();
    EXPECT_FALSE(VtxUtilRedo());
    ASSERT_TRUE(VtxUtilUndo());
    EXPECT_FALSE(VtxUtilUndo()) << "the submit made a step of its own";
}

} // namespace vantrix::sdk::ui::propertymanager
