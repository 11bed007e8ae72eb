#include "api/VtxUtilFrame.h"

#include "kernel/DataError.h"
#include "kernel/Document.h"
#include "kernel/ForegroundColors.h"
#include "kernel/FrontEnd.h"
#include "kernel/MouseModes.h"
#include "kernel/PaperSizes.h"
#include "kernel/StyleStore.h"
#include "kernel/interface/Boundary.h"

using namespace vantrix::kernel;
using vantrix::kernel::boundary::document;
using vantrix::kernel::boundary::report;
using vantrix::kernel::boundary::setIfNotNull;
using vantrix::kernel::boundary::style;

namespace {

bool answer(const PaperDimensions& dimensions, double* width, double* height)
{
    setIfNotNull(width, dimensions.width);
    setIfNotNull(height, dimensions.height);
    return true;
}

} // namespace

long VtxUtilPageGetCount(void)
{
    return static_cast<long>(document().pages().size());
}

long VtxUtilFrameGetCount(void)
{
    const Page* page = document().activePage();
    return page ? static_cast<long>(page->frames.size()) : 0;
}

long VtxUtilFrameGetUniqueID(void)
{
    const Frame* frame = document().activeFrame();
    return frame ? frame->id() : 0;
}

PlotType_e VtxUtilFrameGetPlotType(void)
{
    return boundary::guarded(PlotType_Sketch, [] {
        static const long entry = style().entry("PlotType");
        const Frame* frame = document().activeFrame();
        return frame ? static_cast<PlotType_e>(style().integer(frame->id(), entry)) : PlotType_Sketch;
    });
}

bool VtxUtilContourOkToTurnOnRGBColoring(void)
{
    return boundary::guarded(false, [] {
        const Frame* frame = document().activeFrame();
        const DataSet* data = frame ? frame->dataSet().get() : nullptr;
        if (!data) {
            throw DataError("The active frame has no data to be coloured by.");
        }
        for (const char* color : {"Red", "Green", "Blue"}) {
            const long entry = style().entry((std::string("GlobalRGB/") + color + "Var").c_str());
            const long variable = style().integer(frame->id(), entry);
            if (variable < 1 || variable > data->variableCount()) {
                throw DataError(std::string("No variable of the data is chosen for the ") + color +
                                " part. Choose variables for red, green and blue.");
            }
        }
        return true;
    });
}

bool VtxUtilFrameSetPlotType(PlotType_e plotType)
{
    const auto set = [&] {
        boundary::nameStep("Plot Type");
        return report(style().set(style().entry("PlotType"), -1, -1, static_cast<long>(plotType))) ==
               SetValueReturnCode_Ok;
    };
    return boundary::change<&VtxUtilFrameSetPlotType>(false, set, plotType);
}

SetValueReturnCode_e VtxUtilFrameSetBackgroundColor(long color)
{
    const auto set = [&] {
        boundary::nameStep("Background Color");
        const SetValueReturnCode_e code =
            report(style().set(style().entry("FrameLayout/BackgroundColor"), -1, -1, color));
        if (code == SetValueReturnCode_Ok) {
            constexpr long black = 0;
            constexpr long white = 7;
            replaceForegroundColors(Kernel::instance(), *Kernel::instance().document().activeFrame(), color,
                                    color == black ? white : black);
        }
        return code;
    };
    return boundary::change<&VtxUtilFrameSetBackgroundColor>(SetValueReturnCode_Refused, set, color);
}

bool VtxUtilPaperGetDimensions(double* width, double* height)
{
    return boundary::guarded(false, [&] {
        const Page* page = document().activePage();
        return page ? answer(paperDimensions(style(), page->id), width, height) : boundary::fail("There is no page.");
    });
}

bool VtxUtilPaperGetDimensionsBySize(PaperSize_e size, bool portrait, double* width, double* height)
{
    return boundary::guarded(false, [&] {
        const Page* page = document().activePage();
        return page ? answer(paperDimensions(style(), page->id, size, portrait), width, height)
                    : boundary::fail("There is no page.");
    });
}

bool VtxUtilWorkViewFitPaper(void)
{
    return boundary::guarded(false, [] {
        Kernel::instance().frontEnd().fitPaperToWorkArea();
        return true;
    });
}

MouseMode_e VtxUtilMouseGetCurrentMode(void)
{
    return Kernel::instance().mouseModes().current();
}

bool VtxUtilMouseIsValidMode(MouseMode_e mode)
{
    return boundary::guarded(false, [&] { return Kernel::instance().mouseModes().isValid(mode); });
}

bool VtxUtilMouseSetMode(MouseMode_e mode)
{
    const auto set = [&] {
        return Kernel::instance().mouseModes().set(mode) ||
               boundary::fail("Mouse mode " + std::to_string(mode) + " is not valid for the present plot.");
    };
    return boundary::change<&VtxUtilMouseSetMode>(false, set, mode);
}
