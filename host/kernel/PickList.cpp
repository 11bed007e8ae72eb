#include "kernel/PickList.h"

#include "kernel/DataError.h"
#include "kernel/Document.h"
#include "kernel/FrameActions.h"
#include "kernel/FrameObjects.h"
#include "kernel/Kernel.h"
#include "kernel/LineMaps.h"
#include "kernel/PlotAxes.h"
#include "kernel/StateChanges.h"
#include "kernel/StyleStore.h"
#include "kernel/UndoStack.h"

#include <algorithm>
#include <map>
#include <memory>
#include <set>
#include <string>

namespace vantrix::kernel {

namespace {

/* Kinds after which an object that was picked may not be there any more. */
bool mayTakeObjectsAway(int kind)
{
    static const std::set<int> kinds{
        StateChange_ZonesDeleted, StateChange_FrameDeleted,   StateChange_DataSetReset,
        StateChange_NewLayout,    StateChange_CompleteReset,  StateChange_LineMapsAddedOrDeleted,
        StateChange_Text,         StateChange_Geometry,       StateChange_Streamtrace,
        StateChange_PageDeleted,  StateChange_NewActivePage,  StateChange_HistoryStep,
        StateChange_Style,        StateChange_NewActiveFrame,
    };
    return kinds.contains(kind);
}

std::string noSuch(const char* kind, long number)
{
    return "There is no " + std::string(kind) + ' ' + std::to_string(number) + " in the active frame.";
}

} // namespace

/* Objects were picked, or the list was emptied. */
class PickList::Change : public UndoableChange
{
public:
    explicit Change(PickList& list)
        : m_list(list)
        , m_before(list.m_objects)
    {}

    void undo() override
    {
        m_list.m_objects = m_before;
        m_list.m_kernel.stateChanges().send(m_before.empty() ? StateChange_PickListCleared : StateChange_PickListGroup);
    }
    void redo() override {}
    std::size_t memory(bool /*isDone*/) const override { return 0; }
    bool isTransient() const override { return true; }

private:
    PickList& m_list;
    std::vector<PickedObject> m_before;
};

PickList::PickList(Kernel& kernel)
    : m_kernel(kernel)
{
    m_kernel.stateChanges().addListener(&PickList::stateChanged, this);
}

PickList::~PickList()
{
    m_kernel.stateChanges().removeListener(&PickList::stateChanged, this);
}

void PickList::stateChanged(VtxStateChangeHandle change, void* list)
{
    auto* self = static_cast<PickList*>(list);
    if (mayTakeObjectsAway(change->kind) &&
        std::any_of(self->m_objects.begin(), self->m_objects.end(),
                    [&](const PickedObject& object) { return !self->problemWith(object).empty(); })) {
        self->clear();
    }
}

bool PickList::contains(const PickedObject& object) const
{
    return std::find(m_objects.begin(), m_objects.end(), object) != m_objects.end();
}

const PickedObject* PickList::at(long position) const
{
    return position >= 1 && position <= static_cast<long>(m_objects.size())
               ? &m_objects[static_cast<std::size_t>(position - 1)]
               : nullptr;
}

void PickList::remember()
{
    m_kernel.undoStack().record(std::make_unique<Change>(*this));
}

void PickList::clear()
{
    if (!m_objects.empty()) {
        remember();
        m_objects.clear();
        m_kernel.stateChanges().send(StateChange_PickListCleared);
    }
}

std::string PickList::problemWith(const PickedObject& object) const
{
    const Page* page = m_kernel.document().activePage();
    const bool isOnPage = page && std::any_of(page->frames.begin(), page->frames.end(),
                                              [&](auto& frame) { return frame->id() == object.frameId; });
    const Frame* frame = isOnPage ? m_kernel.document().frameById(object.frameId) : nullptr;
    if (!frame) {
        return "There is no frame " + std::to_string(object.frameId) + " on the active page.";
    }
    const StyleStore& style = m_kernel.style();
    static const long plotTypeEntry = style.entry("PlotType");
    const auto plotType = static_cast<PlotType_e>(style.integer(frame->id(), plotTypeEntry));
    const bool isField = plotType == PlotType_Cartesian2D || plotType == PlotType_Cartesian3D;
    const bool isLine = plotType == PlotType_XYLine || plotType == PlotType_PolarLine;
    switch (object.type) {
    case PickObject_Frame:
        return {};
    case PickObject_Axis:
        return plotHasAxis(plotType, object.axis, object.axisNumber)
                   ? std::string()
                   : std::string("The plot has no axis ") + object.axis + std::to_string(object.axisNumber) + '.';
    case PickObject_Zone:
        return frame->dataSet() && frame->dataSet()->zone(object.number) ? std::string()
                                                                         : noSuch("zone", object.number);
    case PickObject_LineMap:
        return LineMaps(m_kernel.style(), *frame).has(object.number) ? std::string()
                                                                     : noSuch("line map", object.number);
    case PickObject_ContourLegend:
        return isField ? std::string() : "The plot has no contour legend.";
    case PickObject_LineLegend:
        return isLine ? std::string() : "The plot has no legend of line maps.";
    case PickObject_Text:
        return m_kernel.texts().find(object.number) ? std::string() : noSuch("text", object.number);
    case PickObject_Geometry:
        return m_kernel.geometries().find(object.number) ? std::string() : noSuch("geometry", object.number);
    case PickObject_Streamtrace:
        return m_kernel.streamtraces().find(object.number) ? std::string() : noSuch("streamtrace", object.number);
    default:
        return "Objects of type " + std::to_string(object.type) + " cannot be picked.";
    }
}

void PickList::add(PickedObject object)
{
    if (object.frameId == 0) {
        const Frame* active = m_kernel.document().activeFrame();
        object.frameId = active ? active->id() : 0;
    }
    const std::string problem = problemWith(object);
    if (!problem.empty()) {
        throw DataError(problem);
    }
    if (!contains(object)) {
        remember();
        m_objects.push_back(object);
        m_kernel.stateChanges().send(VtxStateChange{StateChange_PickListItem, -1, object.number});
    }
}

std::optional<PickedObject> PickList::objectAt(double x, double y) const
{
    if (!m_surface) {
        throw DataError("Nothing is drawn on a screen that could be picked by its place; name the object.");
    }
    return m_surface->objectAt(x, y);
}

void PickList::deleteObjects()
{
    std::map<long, std::set<long>> lineMaps; /* of each frame */
    std::set<long> frames;
    std::set<long> texts;
    std::set<long> geometries;
    std::set<long> streamtraces;
    for (const PickedObject& object : m_objects) {
        if (object.type == PickObject_Text) {
            texts.insert(object.number);
        } else if (object.type == PickObject_Geometry) {
            geometries.insert(object.number);
        } else if (object.type == PickObject_Streamtrace) {
            streamtraces.insert(object.number);
        } else if (object.type == PickObject_LineMap) {
            lineMaps[object.frameId].insert(object.number);
        } else if (object.type == PickObject_Frame) {
            frames.insert(object.frameId);
        }
    }
    if (frames.empty() && lineMaps.empty() && texts.empty() && geometries.empty() && streamtraces.empty()) {
        throw DataError(m_objects.empty() ? "Nothing is picked that could be deleted."
                                          : "Nothing that is picked can be deleted.");
    }
    for (const long text : texts) {
        m_kernel.texts().remove(text);
    }
    for (const long geometry : geometries) {
        m_kernel.geometries().remove(geometry);
    }
    m_kernel.streamtraces().remove(streamtraces);
    for (const auto& [frame, numbers] : lineMaps) {
        LineMaps(m_kernel.style(), *m_kernel.document().frameById(frame)).remove(numbers);
    }
    for (const long frame : frames) {
        FrameActions(m_kernel).remove(frame);
    }
    clear();
}

} // namespace vantrix::kernel
