#pragma once

#include "api/VtxEnumerations.h"

#include <string>

namespace vantrix::kernel {

/* A text of a frame; see VtxUtilTextSetX() for what the values mean. */
struct Text
{
    long handle = 0;
    std::string text;
    CoordSys_e coordSys = CoordSys_Frame;
    double x = 0.0;
    double y = 0.0;
    double z = 0.0;
    std::string fontFamily = "Helvetica";
    Units_e sizeUnits = Units_Frame;
    double height = 3.0;
    std::string macroFunctionCommand;
    long color = 0;
    bool isBold = false;
    bool isItalic = false;
    double angle = 0.0;
    double lineSpacing = 1.0;
    TextAnchor_e anchor = TextAnchor_BottomLeft;
    TextType_e type = TextType_Regular;
    TextBox_e box = TextBox_None;
    double boxLineThickness = 0.1;
    long boxColor = 0;
    long boxFillColor = 7;
    double boxMargin = 20.0;

    bool operator==(const Text&) const = default;
};

} // namespace vantrix::kernel
