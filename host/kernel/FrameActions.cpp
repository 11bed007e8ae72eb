#include "kernel/FrameActions.h"

#include "kernel/DataError.h"
#include "kernel/Document.h"
#include "kernel/Kernel.h"
#include "kernel/PlotDefaults.h"
#include "kernel/StyleStore.h"

#include <algorithm>
#include <cmath>
#include <string>

namespace vantrix::kernel {

namespace {

std::string noSuchPage(long position, const Document& document)
{
    return "There is no page " + std::to_string(position) + "; pages are numbered from 1 to " +
           std::to_string(document.pages().size()) + '.';
}

void expectUsable(double left, double top, double width, double height)
{
    constexpr double farthest = 1000.0; /* what the style values allow */
    if (!(width >= FrameActions::leastSize && width <= farthest && height >= FrameActions::leastSize &&
          height <= farthest)) {
        throw DataError("A frame is 0.25 to 1000 inches wide and high.");
    }
    if (!(std::abs(left) <= farthest && std::abs(top) <= farthest)) {
        throw DataError("A frame lies within 1000 inches of the paper's corner.");
    }
}

} // namespace

Frame& FrameActions::create(double left, double top, double width, double height)
{
    expectUsable(left, top, width, height);
    Frame* frame = m_kernel.document().addFrame();
    if (!frame) {
        throw DataError("There is no page to create a frame on.");
    }
    setRect(frame->id(), left, top, width, height);
    return *frame;
}

void FrameActions::attachDataSet(long number)
{
    const auto dataSets = m_kernel.document().dataSets();
    if (number < 1 || number > static_cast<long>(dataSets.size())) {
        throw DataError("There is no data set " + std::to_string(number) + "; the frames show " +
                        std::to_string(dataSets.size()) + '.');
    }
    Frame* frame = m_kernel.document().activeFrame();
    if (!frame) {
        throw DataError("There is no frame to show the data in. Create a frame first.");
    }
    const auto& dataSet = dataSets[static_cast<std::size_t>(number - 1)];
    if (frame->dataSet() != dataSet) {
        m_kernel.document().attachDataSet(*frame, dataSet);
        PlotDefaults::apply(*frame);
    }
}

void FrameActions::createOnSameData()
{
    const Frame* active = m_kernel.document().activeFrame();
    if (!active || !active->dataSet()) {
        throw DataError("The active frame shows no data that another could show.");
    }
    constexpr double offset = 0.5; /* inches */
    const auto dataSet = active->dataSet();
    const StyleStore& style = m_kernel.style();
    const auto get = [&](const char* path) { return style.real(active->id(), style.entry(path)); };
    Frame& frame = create(get("FrameLayout/XYPos/X") + offset, get("FrameLayout/XYPos/Y") + offset,
                          std::max(leastSize, get("FrameLayout/Width") - offset),
                          std::max(leastSize, get("FrameLayout/Height") - offset));
    m_kernel.document().attachDataSet(frame, dataSet);
    PlotDefaults::apply(frame);
}

void FrameActions::setRect(long frameId, double left, double top, double width, double height)
{
    expectUsable(left, top, width, height);
    expectOnActivePage(frameId);
    StyleStore& style = m_kernel.style();
    const auto set = [&](const char* path, double value) { style.setOf(frameId, style.entry(path), -1, -1, value); };
    set("FrameLayout/XYPos/X", left);
    set("FrameLayout/XYPos/Y", top);
    set("FrameLayout/Width", width);
    set("FrameLayout/Height", height);
}

void FrameActions::remove(long frameId)
{
    expectOnActivePage(frameId);
    Document& document = m_kernel.document();
    if (document.activePage()->frames.size() == 1) {
        document.addFrame();
    }
    document.deleteFrame(frameId);
}

void FrameActions::removePage(long position)
{
    Document& document = m_kernel.document();
    if (position < 1 || position > static_cast<long>(document.pages().size())) {
        throw DataError(noSuchPage(position, document));
    }
    if (!document.deletePage(static_cast<std::size_t>(position))) {
        throw DataError("The last page cannot be deleted.");
    }
}

void FrameActions::activate(long frameId)
{
    expectOnActivePage(frameId);
    m_kernel.document().setActiveFrame(frameId);
}

void FrameActions::activatePage(long position)
{
    Document& document = m_kernel.document();
    if (position < 1 || !document.setActivePage(static_cast<std::size_t>(position))) {
        throw DataError(noSuchPage(position, document));
    }
}

void FrameActions::pop(long frameId)
{
    expectOnActivePage(frameId);
    m_kernel.document().raiseFrame(frameId);
}

void FrameActions::push(long frameId)
{
    expectOnActivePage(frameId);
    m_kernel.document().lowerFrame(frameId);
}

void FrameActions::expectOnActivePage(long frameId) const
{
    const Page* page = m_kernel.document().activePage();
    if (!page ||
        std::none_of(page->frames.begin(), page->frames.end(), [&](auto& frame) { return frame->id() == frameId; })) {
        throw DataError("There is no frame " + std::to_string(frameId) + " on the active page.");
    }
}

} // namespace vantrix::kernel
