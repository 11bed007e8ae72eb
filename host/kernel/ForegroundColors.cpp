#include "kernel/ForegroundColors.h"

#include "kernel/FrameObjects.h"
#include "kernel/Kernel.h"
#include "kernel/StyleStore.h"

namespace vantrix::kernel {

void replaceForegroundColors(Kernel& kernel, Frame& frame, long background, long visible)
{
    const auto replace = [&](long& color) {
        if (color == background) {
            color = visible;
        }
    };
    kernel.style().replaceForegroundColors(frame.id(), background, visible);
    kernel.texts().changeAll(frame, [&](Text& text) {
        if (text.box != TextBox_Filled || text.boxFillColor == background) {
            replace(text.color);
            replace(text.boxColor);
        }
    });
    kernel.geometries().changeAll(frame, [&](Geometry& geometry) {
        const bool standsOnItsFill = geometry.isFilled && geometry.type != GeomType_Line; // a line may have no inside
        if (!standsOnItsFill || geometry.fillColor == background) {
            replace(geometry.color);
        }
    });
}

} // namespace vantrix::kernel
