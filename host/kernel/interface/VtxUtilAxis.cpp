#include "api/VtxUtilAxis.h"

#include "kernel/AxisRanges.h"
#include "kernel/DataError.h"
#include "kernel/Document.h"
#include "kernel/StyleStore.h"
#include "kernel/TimeDateFormat.h"
#include "kernel/ValueBlanking.h"
#include "kernel/interface/ArgumentList.h"
#include "kernel/interface/Boundary.h"

using namespace vantrix::kernel;
using vantrix::kernel::boundary::setIfNotNull;
using vantrix::kernel::boundary::style;

namespace {

const char* const fitAxis = "Fit Axis";

const Frame& expectFrame()
{
    if (const Frame* frame = Kernel::instance().document().activeFrame()) {
        return *frame;
    }
    throw DataError("There is no frame, and therefore there are no axes.");
}

AxisRanges ranges()
{
    return {style(), expectFrame()};
}

AxisPlace placeOf(AxisName axis)
{
    const Frame& frame = expectFrame();
    return AxisPlace::find(frame, plotTypeOf(style(), frame), axis);
}

/* Does something to the axes of the active frame, as a step of that name, for the function that was called with
 * `arguments`. */
template<auto Function, class Change, class... Arguments>
bool change(const char* stepName, Change&& how, const Arguments&... arguments)
{
    const auto run = [&] {
        boundary::nameStep(stepName);
        AxisRanges axes = ranges();
        how(axes);
        return true;
    };
    return boundary::change<Function>(false, run, arguments...);
}

/* The named value; throws DataError when it is missing. */
long argument(VtxArgListHandle arguments, const char* name)
{
    if (const long* value = arguments ? arguments->findAs<long>(name) : nullptr) {
        return *value;
    }
    throw DataError(std::string("The argument \"") + name + "\" is missing, or is no integer.");
}

void expectKnownNames(VtxArgListHandle arguments)
{
    for (const VtxArgList::Argument& each : arguments ? arguments->arguments : std::vector<VtxArgList::Argument>()) {
        if (each.name != "ViewOP" && each.name != "Axis" && each.name != "AxisNum" && each.name != "ConsiderBlanking") {
            throw DataError("The argument \"" + each.name +
                            "\" is unknown; there are \"ViewOP\", \"Axis\", \"AxisNum\" and \"ConsiderBlanking\".");
        }
    }
}

} // namespace

bool VtxUtilViewAxisFit(char axis, int axisNumber)
{
    return change<&VtxUtilViewAxisFit>(
        fitAxis,
        [&](AxisRanges& axes) {
            axes.fit({axis, axisNumber});
        },
        axis, axisNumber);
}

bool VtxUtilViewAxisNiceFit(char axis, int axisNumber)
{
    return change<&VtxUtilViewAxisNiceFit>(
        fitAxis,
        [&](AxisRanges& axes) {
            axes.niceFit({axis, axisNumber});
        },
        axis, axisNumber);
}

bool VtxUtilViewAxisFitToEntireCircle(char axis, int axisNumber)
{
    return change<&VtxUtilViewAxisFitToEntireCircle>(
        "Fit to Entire Circle",
        [&](AxisRanges& axes) {
            axes.fitToEntireCircle({axis, axisNumber});
        },
        axis, axisNumber);
}

bool VtxUtilViewAxisMakeCurValsNice(char axis, int axisNumber)
{
    return change<&VtxUtilViewAxisMakeCurValsNice>(
        "Nice Axis Range",
        [&](AxisRanges& axes) {
            axes.makeNice({axis, axisNumber});
        },
        axis, axisNumber);
}

bool VtxUtilViewX(VtxArgListHandle arguments)
{
    const auto view = [&](AxisRanges& axes) {
        expectKnownNames(arguments);
        const long operation = argument(arguments, "ViewOP");
        switch (operation) {
        case ViewOp_Fit:
        case ViewOp_DataFit:
            axes.fitAll(operation == ViewOp_Fit);
            return;
        case ViewOp_AxisFit: {
            const char axis = static_cast<char>(argument(arguments, "Axis"));
            const long* number = arguments->findAs<long>("AxisNum");
            const AxisName name{axis, number ? static_cast<int>(*number) : 1};
            const long* considersBlanking = arguments->findAs<long>("ConsiderBlanking");
            considersBlanking&&* considersBlanking ? axes.fitToUnblanked(name) : axes.fit(name);
            return;
        }
        default:
            throw DataError("\"ViewOP\" is " + std::to_string(operation) + "; it has to be a ViewOp_e, 0 to 2.");
        }
    };
    const long* operation = arguments ? arguments->findAs<long>("ViewOP") : nullptr;
    const bool isOfOneAxis = operation && *operation == ViewOp_AxisFit;
    return change<&VtxUtilViewX>(isOfOneAxis ? fitAxis : "Fit Plot", view, arguments);
}

double VtxUtilAxisGetNextRangeValue(char axis, int axisNumber, double value, bool up, bool nice)
{
    return boundary::guarded(value, [&] { return ranges().nextValue({axis, axisNumber}, value, up, nice); });
}

bool VtxUtilAxisGetTickSpacing(char axis, int axisNumber, double* spacing)
{
    return boundary::guarded(false, [&] {
        setIfNotNull(spacing, ranges().tickSpacing({axis, axisNumber}));
        return true;
    });
}

bool VtxUtilReset3DScaleFactors(void)
{
    return change<&VtxUtilReset3DScaleFactors>("Reset Size Factors",
                                               [](AxisRanges& axes) { axes.reset3DScaleFactors(); });
}

bool VtxUtilQueryIsXYDependentAllowedForFrame(long frameId)
{
    return boundary::guarded(false, [&] {
        const Frame* frame = Kernel::instance().document().frameById(frameId);
        return frame && AxisRanges(style(), *frame).isXYDependentAllowed();
    });
}

bool VtxUtilAxisGetVarAssignments(long* xVariable, long* yVariable, long* zVariable)
{
    return boundary::guarded(false, [&] {
        if (!Kernel::instance().document().activeDataSet()) {
            return boundary::fail("The active frame shows no data, so no variable serves as an axis.");
        }
        const AxisVariables variables = ranges().variables();
        setIfNotNull(xVariable, variables.x);
        setIfNotNull(yVariable, variables.y);
        setIfNotNull(zVariable, variables.z);
        return true;
    });
}

NumberFormat_e VtxUtilAxisLabelGetNumberFormat(char axis, int axisNumber)
{
    return boundary::guarded(NumberFormat_BestFloat, [&] {
        const AxisPlace place = placeOf({axis, axisNumber});
        return static_cast<NumberFormat_e>(
            style().integer(place.frame, place.entry(style(), "TickLabel/NumFormat/Formatting"), place.offset));
    });
}

bool VtxUtilAxisLabelGetTimeDateFormat(char axis, int axisNumber, char** format)
{
    *format = nullptr;
    return boundary::guarded(false, [&] {
        const AxisPlace place = placeOf({axis, axisNumber});
        *format = boundary::copyString(
            style().text(place.frame, place.entry(style(), "TickLabel/NumFormat/TimeDateFormat"), place.offset));
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

bool VtxUtilBlankingIsActive(void)
{
    return boundary::guarded(false, [] {
        const Frame* frame = Kernel::instance().document().activeFrame();
        return frame && frame->dataSet() && plotTypeOf(style(), *frame) != PlotType_Sketch &&
               ValueBlanking::read(style(), *frame).isActive();
    });
}
