#include "api/VtxUtilAxis.h"

#include "kernel/AxisVariables.h"
#include "kernel/DataError.h"
#include "kernel/Document.h"
#include "kernel/StyleStore.h"
#include "kernel/TimeDateFormat.h"
#include "kernel/interface/Boundary.h"

using namespace vantrix::kernel;

namespace {

/* Where the style of an axis of the active frame's plot is; see the top of the header for names of axes. */
struct AxisPlace
{
    long frame;
    std::string path; /* of the axis detail, with a slash at the end */
    long offset = -1;
};

AxisPlace axisPlace(char axis, int axisNumber)
{
    const Kernel& kernel = Kernel::instance();
    const Frame* frame = kernel.document().activeFrame();
    if (!frame) {
        throw DataError("There is no frame, and therefore there are no axes.");
    }
    const auto type = kernel.style().integer(frame->id(), kernel.style().entry("PlotType"));
    const bool isPolar = type == PlotType_PolarLine;
    const bool hasNumbers = type == PlotType_XYLine;
    const std::string_view characters = isPolar ? "TR" : type == PlotType_Cartesian3D ? "XYZ" : "XY";
    if (axis == '\0' || characters.find(axis) == std::string_view::npos || axisNumber < 1 ||
        axisNumber > (hasNumbers ? 5 : 1)) {
        throw DataError("The plot has no axis '" + std::string(axis ? 1 : 0, axis) + "' number " +
                        std::to_string(axisNumber) + ".");
    }
    const char* root = isPolar                        ? "PolarAxis/"
                       : type == PlotType_Cartesian3D ? "ThreeDAxis/"
                       : type == PlotType_Cartesian2D ? "TwoDAxis/"
                       : hasNumbers                   ? "XYLineAxis/"
                                                      : "SketchAxis/";
    const std::string detail = axis == 'T' ? "Theta" : std::string(1, axis);
    return {frame->id(), root + detail + "Detail/", hasNumbers ? axisNumber : -1};
}

long entryOf(const AxisPlace& place, const char* path)
{
    return Kernel::instance().style().entry((place.path + path).c_str());
}

} // namespace

bool VtxUtilAxisGetVarAssignments(long* xVariable, long* yVariable, long* zVariable)
{
    return boundary::guarded(false, [&] {
        const Frame* frame = Kernel::instance().document().activeFrame();
        if (!frame || !frame->dataSet()) {
            return boundary::fail("The active frame shows no data, so no variable serves as an axis.");
        }
        const AxisVariables variables = axisVariables(Kernel::instance().style(), *frame);
        const std::pair<long*, long> assigned[] = {
            {xVariable, variables.x}, {yVariable, variables.y}, {zVariable, variables.z}};
        for (const auto& [target, variable] : assigned) {
            if (target) {
                *target = variable;
            }
        }
        return true;
    });
}

NumberFormat_e VtxUtilAxisLabelGetNumberFormat(char axis, int axisNumber)
{
    return boundary::guarded(NumberFormat_BestFloat, [&] {
        const AxisPlace place = axisPlace(axis, axisNumber);
        return static_cast<NumberFormat_e>(Kernel::instance().style().integer(
            place.frame, entryOf(place, "TickLabel/NumFormat/Formatting"), place.offset));
    });
}

bool VtxUtilAxisLabelGetTimeDateFormat(char axis, int axisNumber, char** format)
{
    *format = nullptr;
    return boundary::guarded(false, [&] {
        const AxisPlace place = axisPlace(axis, axisNumber);
        *format = boundary::copyString(Kernel::instance().style().text(
            place.frame, entryOf(place, "TickLabel/NumFormat/TimeDateFormat"), place.offset));
        return *format != nullptr;
    });
}

bool VtxUtilStringFormatTimeDate(double value, const char* format, char** text)
{
    *text = nullptr;
    return boundary::guarded(false, [&] {
        const auto written = TimeDateFormat(format ? format : "").text(value);
        if (!written) {
            return boundary::fail("The number is no date of the years 1 to 9999.");
        }
        *text = boundary::copyString(*written);
        return *text != nullptr;
    });
}
