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
    static long addText(long color, TextBox_e box = TextBox_None, long fill = white)
    {
        Text text;
        text.text = "Text";
        text.color = color;
        text.box = box;
        text.boxFillColor = fill;
        const LockScope lock;
        return kernel().texts().add(*document().activeFrame(), text);
    }

    static long addGeometry(GeomType_e type, bool isFilled = false, long fill = white)
    {
        Geometry geometry;
        geometry.type = type;
        geometry.points = "0 0; 10 20";
        geometry.isFilled = isFilled;
        geometry.fillColor = fill;
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
    const long plain = addText(black);
    const long coloured = addText(red);
    const long outlined = addText(red, TextBox_Hollow);
    const long onWhite = addText(black, TextBox_Filled, white);
    const long onBlack = addText(red, TextBox_Filled, black);
    const long line = addGeometry(GeomType_Line, true);
    const long hollow = addGeometry(GeomType_Circle);
    const long filled = addGeometry(GeomType_Circle, true, red);
    const long filledBlack = addGeometry(GeomType_Circle, true, black);

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
    addText(black);
    addGeometry(GeomType_Square);
    notices.clear();
    setBackground(red);
    for (const auto& notice : notices) {
        EXPECT_NE(notice.kind, StateChange_Text);
        EXPECT_NE(notice.kind, StateChange_Geometry);
    }
}

} // namespace
} // namespace vantrix::kernel
