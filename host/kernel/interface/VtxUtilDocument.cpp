#include "api/VtxUtilDocument.h"
#include "api/VtxUtilState.h"

#include "kernel/Document.h"
#include "kernel/FrameActions.h"
#include "kernel/Layout.h"
#include "kernel/OpenData.h"
#include "kernel/UndoStack.h"
#include "kernel/interface/Boundary.h"
#include "kernel/macro/MacroPlayer.h"

#include <algorithm>

using namespace vantrix::kernel;
using vantrix::kernel::boundary::document;

namespace {

/* Runs one action on frames or pages, as a step of that name, for the function that was called with `arguments`. */
template<auto Function, class Work, class... Arguments>
bool act(const char* stepName, Work&& work, const Arguments&... arguments)
{
    const auto run = [&] {
        boundary::nameStep(stepName);
        work(FrameActions(Kernel::instance()));
        return true;
    };
    return boundary::change<Function>(false, run, arguments...);
}
} // namespace

bool VtxUtilFrameCreate(double left, double top, double width, double height)
{
    return act<&VtxUtilFrameCreate>(
        "Create Frame", [&](FrameActions frames) { frames.create(left, top, width, height); }, left, top, width,
        height);
}

long VtxUtilFrameGetDataSetCount(void)
{
    return boundary::guarded(0L, [] { return static_cast<long>(document().dataSets().size()); });
}

bool VtxUtilFrameGetDataSetTitle(long number, char** title)
{
    *title = nullptr;
    return boundary::guarded(false, [&] {
        const auto dataSets = document().dataSets();
        if (number < 1 || number > static_cast<long>(dataSets.size())) {
            return boundary::fail("There is no data set " + std::to_string(number) + '.');
        }
        *title = boundary::copyString(dataSets[static_cast<std::size_t>(number - 1)]->title);
        return *title != nullptr;
    });
}

long VtxUtilFrameGetDataSetNumber(void)
{
    return boundary::guarded(0L, [] {
        const auto dataSets = document().dataSets();
        const auto found = std::ranges::find(dataSets, document().activeDataSet());
        return found == dataSets.end() ? 0L : static_cast<long>(found - dataSets.begin()) + 1;
    });
}

bool VtxUtilFrameAttachDataSet(long number)
{
    return act<&VtxUtilFrameAttachDataSet>(
        "Show Data Set", [&](FrameActions frames) { frames.attachDataSet(number); }, number);
}

bool VtxUtilFrameCreateOnSameData(void)
{
    return act<&VtxUtilFrameCreateOnSameData>("Create Frame", [](FrameActions frames) { frames.createOnSameData(); });
}

bool VtxUtilFrameSetRect(long frameId, double left, double top, double width, double height)
{
    return act<&VtxUtilFrameSetRect>(
        "Move Frame", [&](FrameActions frames) { frames.setRect(frameId, left, top, width, height); }, frameId, left,
        top, width, height);
}

bool VtxUtilFrameDelete(long frameId)
{
    return act<&VtxUtilFrameDelete>(
        "Delete Frame", [&](FrameActions frames) { frames.remove(frameId); }, frameId);
}

bool VtxUtilFrameActivate(long frameId)
{
    return act<&VtxUtilFrameActivate>(
        "Activate Frame", [&](FrameActions frames) { frames.activate(frameId); }, frameId);
}

bool VtxUtilFramePop(long frameId)
{
    return act<&VtxUtilFramePop>(
        "Pop Frame", [&](FrameActions frames) { frames.pop(frameId); }, frameId);
}

bool VtxUtilFramePush(long frameId)
{
    return act<&VtxUtilFramePush>(
        "Push Frame", [&](FrameActions frames) { frames.push(frameId); }, frameId);
}

long VtxUtilFrameGetIdAt(long position)
{
    const Page* page = document().activePage();
    return page && position >= 1 && position <= static_cast<long>(page->frames.size())
               ? page->frames[static_cast<std::size_t>(position - 1)]->id()
               : 0;
}

bool VtxUtilPageCreate(void)
{
    return act<&VtxUtilPageCreate>("Create Page", [](const FrameActions&) { Kernel::instance().document().addPage(); });
}

bool VtxUtilPageDelete(long position)
{
    return act<&VtxUtilPageDelete>(
        "Delete Page", [&](FrameActions frames) { frames.removePage(position); }, position);
}

bool VtxUtilPageActivate(long position)
{
    return act<&VtxUtilPageActivate>(
        "Activate Page", [&](FrameActions frames) { frames.activatePage(position); }, position);
}

long VtxUtilPageGetActive(void)
{
    const auto& pages = document().pages();
    for (std::size_t i = 0; i < pages.size(); ++i) {
        if (pages[i].get() == document().activePage()) {
            return static_cast<long>(i) + 1;
        }
    }
    return 0;
}

bool VtxUtilDataRead(const char* const* files, long count)
{
    return boundary::guarded(false, [&] {
        boundary::expectLocked();
        std::vector<std::string> names;
        for (long i = 0; files && i < count; ++i) {
            names.emplace_back(files[i] ? files[i] : "");
        }
        OpenData(Kernel::instance()).files(names);
        return true;
    });
}

bool VtxUtilDataReadSample(const char* name)
{
    return boundary::guarded(false, [&] {
        boundary::expectLocked();
        OpenData(Kernel::instance()).sample(name ? name : "");
        return true;
    });
}

bool VtxUtilLayoutNew(void)
{
    return boundary::guarded(false, [] {
        if (VtxUtilLockIsOn()) {
            return boundary::fail("A layout cannot be begun in the middle of another action.");
        }
        Kernel::instance().layout().clear();
        Kernel::instance().macroRecorder().recordStep({"LayoutNew", {}});
        return true;
    });
}

bool VtxUtilLayoutSave(const char* file)
{
    return boundary::guarded(false, [&] {
        Layout& layout = Kernel::instance().layout();
        layout.save(file ? file : "");
        Kernel::instance().macroRecorder().recordStep({"LayoutSave", {{"File", layout.fileName()}}});
        return true;
    });
}

bool VtxUtilLayoutOpen(const char* file)
{
    return boundary::guarded(false, [&] {
        Layout& layout = Kernel::instance().layout();
        layout.open(file ? file : "");
        Kernel::instance().macroRecorder().recordStep({"LayoutOpen", {{"File", layout.fileName()}}});
        return true;
    });
}

bool VtxUtilMacroRecordStart(const char* file)
{
    return boundary::guarded(false, [&] {
        Kernel::instance().macroRecorder().start(file ? file : "");
        return true;
    });
}

bool VtxUtilMacroRecordStop(void)
{
    return boundary::guarded(false, [] {
        Kernel::instance().macroRecorder().stop();
        return true;
    });
}

bool VtxUtilMacroIsRecordingActive(void)
{
    return Kernel::instance().macroRecorder().isRecording();
}

bool VtxUtilMacroRun(const char* file)
{
    return boundary::guarded(false, [&] {
        MacroPlayer(Kernel::instance()).run(file ? file : "");
        return true;
    });
}
