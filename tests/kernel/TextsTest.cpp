#include "KernelFixture.h"

#include "kernel/FrameObjects.h"
#include "toolbox/ArgList.h"

#include <cstdio>

namespace vantrix::kernel {
namespace {

using toolbox::ArgList;

std::string takeError()
{
    char* text = VtxUtilGetLastErrorString();
    std::string error = text ? text : "";
    VtxUtilStringDealloc(&text);
    return error;
}

class TextsTest : public KernelTest
{
protected:
    static bool set(const std::function<void(ArgList&)>& fill)
    {
        ArgList arguments;
        fill(arguments);
        const LockScope lock;
        return VtxUtilTextSetX(arguments.handle());
    }

    static long create(const std::string& text)
    {
        long handle = 0;
        EXPECT_TRUE(set([&](ArgList& arguments) {
            arguments.appendString("Text", text);
            arguments.appendArbParamPtr("Result", &handle);
        })) << takeError();
        return handle;
    }

    static double height(long handle)
    {
        double height = 0.0;
        ArgList arguments;
        arguments.appendArbParam("TextID", handle);
        arguments.appendDoublePtr("Height", &height);
        EXPECT_TRUE(VtxUtilTextGetX(arguments.handle())) << takeError();
        return height;
    }
};

} // namespace

TEST_F(TextsTest, AreMadeChangedAndDeletedAndAllOfThatIsUndone)
{
    const long first = create("one");
    const long second = create("two");
    EXPECT_NE(first, second);
    EXPECT_EQ(VtxUtilTextGetFirst(), first);
    EXPECT_EQ(VtxUtilTextGetNext(first), second);
    EXPECT_EQ(VtxUtilTextGetNext(second), 0);
    {
        const LockScope lock;
        EXPECT_TRUE(VtxUtilTextSetHeight(first, 8.0));
        EXPECT_TRUE(VtxUtilTextDelete(second));
    }
    EXPECT_EQ(height(first), 8.0);
    EXPECT_FALSE(VtxUtilTextIsValid(second));
    EXPECT_TRUE(VtxUtilUndo());
    EXPECT_NE(height(first), 8.0);
    EXPECT_TRUE(VtxUtilTextIsValid(second)) << "undo brings the text back under its handle";
    EXPECT_TRUE(VtxUtilUndo());
    EXPECT_FALSE(VtxUtilTextIsValid(second));
    EXPECT_TRUE(VtxUtilRedo());
    EXPECT_TRUE(VtxUtilRedo());
    EXPECT_EQ(height(first), 8.0);
    EXPECT_NE(create("three"), second) << "a handle is not used twice";
}

TEST_F(TextsTest, EachChangeTellsOfTheText)
{
    const long handle = create("one");
    notices.clear();
    {
        const LockScope lock;
        VtxUtilTextSetHeight(handle, 5.0);
        VtxUtilTextSetHeight(handle, 5.0);
    }
    ASSERT_EQ(notices.size(), 1U) << "the second changes nothing";
    EXPECT_EQ(notices[0].kind, StateChange_Text);
    EXPECT_EQ(notices[0].object, handle);
}

TEST_F(TextsTest, ABadValueIsNamedAndChangesNothing)
{
    const long handle = create("one");
    const double before = height(handle);
    struct Case
    {
        const char* name;
        double value;
        const char* told;
    };
    for (const Case& bad : {Case{"Height", 0.0, "\"Height\" of a text has to be a number above 0."},
                            {"Angle", 400.0, "\"Angle\" of a text has to be a number from -360 to 360."},
                            {"XPos", std::nan(""), "\"XPos\" of a text has to be a finite number."},
                            {"Anchor", 3.0, "\"Anchor\" of a text is a whole number."},
                            {"Width", 1.0, "The argument \"Width\" is unknown or has a wrong type."}}) {
        EXPECT_FALSE(set([&](ArgList& arguments) {
            arguments.appendArbParam("TextID", handle);
            arguments.appendDouble("Height", 7.0);
            arguments.appendDouble(bad.name, bad.value);
        }));
        EXPECT_EQ(takeError(), bad.told);
        EXPECT_EQ(height(handle), before);
    }
    EXPECT_FALSE(set([](ArgList& arguments) { arguments.appendDouble("Height", 2.0); })) << "a text without words";
    EXPECT_FALSE(VtxUtilTextIsValid(handle + 1));
    const LockScope lock;
    EXPECT_FALSE(VtxUtilTextDelete(handle + 1));
    EXPECT_EQ(takeError(), "There is no text " + std::to_string(handle + 1) + ".");
}

TEST_F(TextsTest, ArePickedAndDeletedAsPicked)
{
    const long handle = create("one");
    const LockScope lock;
    ASSERT_TRUE(VtxUtilPickText(handle)) << takeError();
    EXPECT_EQ(VtxUtilPickListGetText(1), handle);
    EXPECT_TRUE(VtxUtilPickDelete()) << takeError();
    EXPECT_FALSE(VtxUtilTextIsValid(handle));
    EXPECT_EQ(VtxUtilPickListGetCount(), 0);
    EXPECT_FALSE(VtxUtilPickText(handle));
}

TEST_F(TextsTest, LayoutsKeepThem)
{
    ASSERT_TRUE(set([](ArgList& arguments) {
        arguments.appendString("Text", "two\nlines, \"quoted\"");
        arguments.appendDouble("XPos", 12.5);
        arguments.appendArbParam("TextColor", 3);
    })) << takeError();
    const Text before = *document().activeFrame()->texts().front();
    const std::string file = testing::TempDir() + "texts.vxlay";
    ASSERT_TRUE(VtxUtilLayoutSave(file.c_str())) << takeError();
    ASSERT_TRUE(VtxUtilLayoutNew());
    EXPECT_TRUE(document().activeFrame()->texts().empty());
    ASSERT_TRUE(VtxUtilLayoutOpen(file.c_str())) << takeError();
    std::remove(file.c_str());
    ASSERT_EQ(document().activeFrame()->texts().size(), 1U);
    Text after = *document().activeFrame()->texts().front();
    after.handle = before.handle;
    EXPECT_EQ(after, before);
}

TEST_F(TextsTest, GoAndComeBackWithTheirFrame)
{
    const long handle = create("one");
    const long frame = document().activeFrame()->id();
    {
        const LockScope lock;
        document().addFrame();
        document().deleteFrame(frame);
    }
    EXPECT_FALSE(VtxUtilTextIsValid(handle));
    EXPECT_TRUE(VtxUtilUndo());
    EXPECT_TRUE(VtxUtilTextIsValid(handle));
}

} // namespace vantrix::kernel
