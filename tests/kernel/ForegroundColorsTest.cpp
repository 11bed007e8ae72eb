#include "KernelFixture.h"

#include "kernel/FrameObjects.h"

namespace vantrix::kernel {
namespace {

constexpr long black = 0;
constexpr long red = 1;
constexpr long white = 7;

class ForegroundColorsTest : public KernelTest
{
protected:
    static long add(const Text& text)
    {
        const LockScope lock;
        return kernel().texts().add(*document().activeFrame(), text);
    }

    static long add(const Geometry& geometry)
    {
        const LockScope lock;
        return kernel().geometries().add(*document().activeFrame(), geometry);
    }

    static const Text& text(long handle) { return *kernel().texts().find(handle); }
    static const Geometry& geometry(long handle) { return *kernel().geometries().find(handle); }

    static void setBackground(long color)
    {
        const LockScope lock;
        ASSERT_EQ(VtxUtilFrameSetBackgroundColor(color), SetValueReturnCode_Ok);
    }
};

TEST_F(ForegroundColorsTest, WhatWouldVanishAgainstTheBackgroundChangesAndComesBackByUndo)
{
    const long plain = add(Text{.text = "plain"});
    const long coloured = add(Text{.text = "coloured", .color = red});
    const long outlined = add(Text{.text = "in a box", .color = red, .box = TextBox_Hollow});
    const long onWhite = add(Text{.text = "on white", .box = TextBox_Filled, .boxFillColor = white});
    const long onBlack = add(Text{.text = "on black", .color = red, .box = TextBox_Filled, .boxFillColor = black});
    const long line = add(Geometry{.points = "0 0; 10 20", .isFilled = true});
    const long hollow = add(Geometry{.type = GeomType_Circle});
    const long filled = add(Geometry{.type = GeomType_Circle, .isFilled = true, .fillColor = red});
    const long filledBlack = add(Geometry{.type = GeomType_Circle, .isFilled = true, .fillColor = black});

    setBackground(black);
    EXPECT_EQ(text(plain).color, white);
    EXPECT_EQ(text(coloured).color, red);
    EXPECT_EQ(text(outlined).boxColor, white);
    EXPECT_EQ(text(onWhite).color, black) << "white on white";
    EXPECT_EQ(text(onBlack).boxColor, white) << "nothing else shows where the box is";
    EXPECT_EQ(text(onBlack).boxFillColor, black);
    EXPECT_EQ(geometry(line).color, white);
    EXPECT_EQ(geometry(hollow).color, white);
    EXPECT_EQ(geometry(filled).color, black);
    EXPECT_EQ(geometry(filledBlack).color, white);
    EXPECT_EQ(geometry(filledBlack).fillColor, black);

    ASSERT_TRUE(VtxUtilUndo());
    EXPECT_EQ(text(plain).color, black);
    EXPECT_EQ(text(onBlack).boxColor, black);
    EXPECT_EQ(geometry(line).color, black);
    EXPECT_EQ(style().integer(document().activeFrame()->id(), style().entry("FrameLayout/BackgroundColor")), white);
}

TEST_F(ForegroundColorsTest, ABackgroundThatHidesNothingChangesNoObject)
{
    add(Text{.text = "plain"});
    add(Geometry{.type = GeomType_Square});
    notices.clear();
    setBackground(red);
    for (const auto& notice : notices) {
        EXPECT_NE(notice.kind, StateChange_Text);
        EXPECT_NE(notice.kind, StateChange_Geometry);
    }
}

} // namespace
} // namespace vantrix::kernel
