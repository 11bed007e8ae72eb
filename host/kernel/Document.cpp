#include "kernel/Document.h"

#include "kernel/LineMaps.h"
#include "kernel/StateChanges.h"
#include "kernel/StyleStore.h"
#include "kernel/UndoStack.h"

#include <algorithm>
#include <map>

namespace vantrix::kernel {

/* Which pages and frames there are and which are active; shares the frames themselves. */
struct Document::Structure
{
    std::vector<std::shared_ptr<Page>> pages;
    std::vector<Page> contents; /* of each page */
    std::size_t activePage = 0;

    /* What its frames show, by identifier. */
    std::map<long, const DataSet*> dataSets() const
    {
        std::map<long, const DataSet*> found;
        for (const Page& page : contents) {
            for (const auto& frame : page.frames) {
                if (frame->dataSet()) {
                    found[frame->dataSet()->id()] = frame->dataSet().get();
                }
            }
        }
        return found;
    }
};

namespace {

using DataSetPointer = std::shared_ptr<const DataSet>;

StateChange_e opposite(StateChange_e kind)
{
    switch (kind) {
    case StateChange_ZonesAdded:
        return StateChange_ZonesDeleted;
    case StateChange_ZonesDeleted:
        return StateChange_ZonesAdded;
    case StateChange_VarsAdded: // there is no kind for variables that went away
        return StateChange_DataSetReset;
    default:
        return kind;
    }
}

/* Bytes of the arrays that `mine` has and `other` has not. */
std::size_t memoryAlone(const DataSet* mine, const DataSet* other)
{
    if (!mine || mine == other) {
        return 0;
    }
    std::size_t bytes = mine->zones.size() * sizeof(void*) + mine->variables.size() * sizeof(Variable);
    for (std::size_t z = 0; z < mine->zones.size(); ++z) {
        const Zone* zone = mine->zones[z].get();
        const Zone* same = other && z < other->zones.size() ? other->zones[z].get() : nullptr;
        if (zone == same) {
            continue;
        }
        for (std::size_t v = 0; v < zone->fields.size(); ++v) {
            vtkDataArray* values = zone->fields[v].values;
            const bool isShared = same && v < same->fields.size() && same->fields[v].values == values;
            if (values && !isShared) {
                bytes += static_cast<std::size_t>(values->GetActualMemorySize()) * 1024;
            }
        }
    }
    return bytes;
}

} // namespace

/* Pages or frames were added, deleted or reordered. */
class Document::StructureChange : public UndoableChange
{
public:
    StructureChange(Document& document, Structure before, Structure after, std::vector<StateChange_e> undone,
                    std::vector<StateChange_e> done)
        : m_document(document)
        , m_before(std::move(before))
        , m_after(std::move(after))
        , m_undone(std::move(undone))
        , m_done(std::move(done))
    {}

    void undo() override { apply(m_before, m_undone); }
    void redo() override { apply(m_after, m_done); }

    std::size_t memory(bool isDone) const override
    {
        constexpr std::size_t lists = 1024;
        return lists + (isDone ? memoryOfData(m_before, m_after) : memoryOfData(m_after, m_before));
    }

    void forEachDataSet(const std::function<void(const DataSet&)>& visit) const override
    {
        for (const Structure* structure : {&m_before, &m_after}) {
            for (const auto& [id, dataSet] : structure->dataSets()) {
                visit(*dataSet);
            }
        }
    }

private:
    /* Bytes of the data that frames of one structure show, and those of the other do not. */
    static std::size_t memoryOfData(const Structure& mine, const Structure& other)
    {
        const auto others = other.dataSets();
        std::size_t bytes = 0;
        for (const auto& [id, dataSet] : mine.dataSets()) {
            const auto same = others.find(id);
            bytes += memoryAlone(dataSet, same == others.end() ? nullptr : same->second);
        }
        return bytes;
    }

    void apply(const Structure& structure, const std::vector<StateChange_e>& kinds)
    {
        m_document.setStructure(structure);
        for (const StateChange_e kind : kinds) {
            m_document.m_changes.send(kind);
        }
    }

    Document& m_document;
    Structure m_before;
    Structure m_after;
    std::vector<StateChange_e> m_undone;
    std::vector<StateChange_e> m_done;
};

/* Another page or frame is active. */
class Document::ActiveChange : public UndoableChange
{
public:
    explicit ActiveChange(Document& document)
        : m_document(document)
        , m_page(document.m_activePage)
        , m_frame(document.activePage()->activeFrame)
    {}

    void undo() override { m_document.activate(m_page, m_frame); }
    void redo() override {}
    std::size_t memory(bool /*isDone*/) const override { return 0; }
    bool isTransient() const override { return true; }

private:
    Document& m_document;
    std::size_t m_page;
    long m_frame;
};

/* Frames show another data set, or a changed copy of theirs. */
class Document::DataChange : public UndoableChange
{
public:
    DataChange(Document& document, std::vector<std::shared_ptr<Frame>> frames, DataSetPointer before,
               DataSetPointer after, std::vector<StateChange_e> kinds)
        : m_document(document)
        , m_frames(std::move(frames))
        , m_before(std::move(before))
        , m_after(std::move(after))
        , m_kinds(std::move(kinds))
    {}

    void undo() override
    {
        show(m_before);
        for (const StateChange_e kind : m_kinds) {
            m_document.m_changes.send(opposite(kind));
        }
    }

    void redo() override
    {
        show(m_after);
        for (const StateChange_e kind : m_kinds) {
            m_document.m_changes.send(kind);
        }
    }

    std::size_t memory(bool isDone) const override
    {
        return isDone ? memoryAlone(m_before.get(), m_after.get()) : memoryAlone(m_after.get(), m_before.get());
    }

    void forEachDataSet(const std::function<void(const DataSet&)>& visit) const override
    {
        for (const DataSetPointer& dataSet : {m_before, m_after}) {
            if (dataSet) {
                visit(*dataSet);
            }
        }
    }

private:
    void show(const DataSetPointer& dataSet)
    {
        for (const auto& frame : m_frames) {
            m_document.setDataSet(*frame, dataSet);
        }
    }

    Document& m_document;
    std::vector<std::shared_ptr<Frame>> m_frames;
    DataSetPointer m_before;
    DataSetPointer m_after;
    std::vector<StateChange_e> m_kinds;
};

Document::Document(UndoStack& undo, StateChanges& changes, StyleStore& style)
    : m_undo(undo)
    , m_changes(changes)
    , m_style(style)
{}

Document::~Document() = default;

Page* Document::activePage() const
{
    return m_activePage < m_pages.size() ? m_pages[m_activePage].get() : nullptr;
}

Frame* Document::activeFrame() const
{
    const Page* page = activePage();
    return page && page->activeFrame > 0 ? page->frames[static_cast<std::size_t>(page->activeFrame - 1)].get()
                                         : nullptr;
}

Page* Document::pageOf(long frameId) const
{
    for (const auto& page : m_pages) {
        if (std::any_of(page->frames.begin(), page->frames.end(),
                        [&](auto& frame) { return frame->id() == frameId; })) {
            return page.get();
        }
    }
    return nullptr;
}

Frame* Document::frameById(long id) const
{
    for (const auto& page : m_pages) {
        for (const auto& frame : page->frames) {
            if (frame->id() == id) {
                return frame.get();
            }
        }
    }
    return nullptr;
}

std::shared_ptr<const DataSet> Document::activeDataSet() const
{
    const Frame* frame = activeFrame();
    return frame ? frame->dataSet() : nullptr;
}

Document::Structure Document::structure() const
{
    Structure present{m_pages, {}, m_activePage};
    for (const auto& page : m_pages) {
        present.contents.push_back(*page);
    }
    return present;
}

void Document::setStructure(const Structure& structure)
{
    m_pages = structure.pages;
    for (std::size_t i = 0; i < m_pages.size(); ++i) {
        *m_pages[i] = structure.contents[i];
    }
    m_activePage = structure.activePage;
    ++m_contextStamp;
}

void Document::changeStructure(const Structure& before, const std::vector<StateChange_e>& undone,
                               const std::vector<StateChange_e>& done)
{
    ++m_contextStamp;
    m_undo.record(std::make_unique<StructureChange>(*this, before, structure(), undone, done));
    for (const StateChange_e kind : done) {
        m_changes.send(kind);
    }
}

Page& Document::addPage()
{
    const Structure before = structure();
    auto page = std::make_shared<Page>();
    page->id = m_nextId++;
    page->frames.push_back(std::make_shared<Frame>(m_nextId++));
    page->activeFrame = 1;
    m_pages.push_back(page);
    m_activePage = m_pages.size() - 1;
    changeStructure(before, {StateChange_PageDeleted, StateChange_NewActivePage}, {StateChange_NewActivePage});
    return *page;
}

Frame* Document::addFrame()
{
    Page* page = activePage();
    if (!page) {
        return nullptr;
    }
    const Structure before = structure();
    page->frames.push_back(std::make_shared<Frame>(m_nextId++));
    page->activeFrame = static_cast<long>(page->frames.size());
    changeStructure(before, {StateChange_FrameDeleted, StateChange_NewActiveFrame}, {StateChange_NewActiveFrame});
    return page->frames.back().get();
}

bool Document::deleteFrame(long id)
{
    Page* page = pageOf(id);
    if (!page) {
        return false;
    }
    const Structure before = structure();
    const auto found =
        std::find_if(page->frames.begin(), page->frames.end(), [&](auto& frame) { return frame->id() == id; });
    const long number = found - page->frames.begin() + 1;
    page->frames.erase(found);
    if (number <= page->activeFrame) {
        page->activeFrame = page->frames.empty() ? 0 : std::max(page->activeFrame - 1, 1L);
    }
    changeStructure(before, {StateChange_NewActiveFrame}, {StateChange_FrameDeleted, StateChange_NewActiveFrame});
    return true;
}

bool Document::deletePage(std::size_t number)
{
    if (number < 1 || number > m_pages.size() || m_pages.size() == 1) {
        return false;
    }
    const Structure before = structure();
    m_pages.erase(m_pages.begin() + static_cast<std::ptrdiff_t>(number - 1));
    if (number - 1 <= m_activePage && m_activePage > 0) {
        --m_activePage;
    }
    changeStructure(before, {StateChange_NewActivePage}, {StateChange_PageDeleted, StateChange_NewActivePage});
    return true;
}

void Document::activate(std::size_t page, long frame)
{
    const bool isOtherPage = page != m_activePage;
    m_activePage = page;
    activePage()->activeFrame = frame;
    ++m_contextStamp;
    m_changes.send(isOtherPage ? StateChange_NewActivePage : StateChange_NewActiveFrame);
}

bool Document::setActiveFrame(long id)
{
    Page* page = activePage();
    if (!page || pageOf(id) != page) {
        return false;
    }
    const auto found =
        std::find_if(page->frames.begin(), page->frames.end(), [&](auto& frame) { return frame->id() == id; });
    const long number = found - page->frames.begin() + 1;
    if (number != page->activeFrame) {
        m_undo.record(std::make_unique<ActiveChange>(*this));
        page->activeFrame = number;
        ++m_contextStamp;
        m_changes.send(StateChange_NewActiveFrame);
    }
    return true;
}

bool Document::setActivePage(std::size_t number)
{
    if (number < 1 || number > m_pages.size()) {
        return false;
    }
    if (number - 1 != m_activePage) {
        m_undo.record(std::make_unique<ActiveChange>(*this));
        m_activePage = number - 1;
        ++m_contextStamp;
        m_changes.send(StateChange_NewActivePage);
    }
    return true;
}

bool Document::raiseFrame(long id)
{
    return moveFrame(id, true);
}

bool Document::lowerFrame(long id)
{
    return moveFrame(id, false);
}

bool Document::moveFrame(long id, bool toTop)
{
    Page* page = pageOf(id);
    if (!page) {
        return false;
    }
    const Structure before = structure();
    const auto active = page->frames[static_cast<std::size_t>(page->activeFrame - 1)];
    const auto isIt = [&](const std::shared_ptr<Frame>& frame) { return (frame->id() == id) != toTop; };
    std::stable_partition(page->frames.begin(), page->frames.end(), isIt);
    page->activeFrame = std::find(page->frames.begin(), page->frames.end(), active) - page->frames.begin() + 1;
    changeStructure(before, {StateChange_CompleteReset}, {StateChange_CompleteReset});
    return true;
}

DataSet Document::newDataSet()
{
    return DataSet(m_nextId++);
}

void Document::setDataSet(Frame& frame, std::shared_ptr<const DataSet> dataSet)
{
    frame.setDataSet(std::move(dataSet));
    ++m_contextStamp;
}

void Document::replaceDataSet(DataSet changed, const std::vector<StateChange_e>& kinds,
                              const std::vector<long>& deletedZones)
{
    std::vector<std::shared_ptr<Frame>> frames;
    for (const auto& page : m_pages) {
        for (const auto& frame : page->frames) {
            if (frame->dataSet() && frame->dataSet()->id() == changed.id()) {
                frames.push_back(frame);
            }
        }
    }
    if (frames.empty()) {
        return;
    }
    const DataSetPointer before = frames.front()->dataSet();
    const DataSetPointer after = std::make_shared<const DataSet>(std::move(changed));
    for (const auto& frame : frames) {
        m_style.removeObjects(frame->id(), "zone", deletedZones);
        setDataSet(*frame, after);
    }
    m_undo.record(std::make_unique<DataChange>(*this, frames, before, after, kinds));
    for (const auto& frame : frames) {
        if (!deletedZones.empty()) {
            LineMaps(m_style, *frame).zonesRemoved(deletedZones);
        }
    }
    for (const StateChange_e kind : kinds) {
        m_changes.send(kind);
    }
}

void Document::attachDataSet(Frame& frame, std::shared_ptr<const DataSet> dataSet)
{
    const Page* page = pageOf(frame.id());
    if (!page || frame.dataSet() == dataSet) {
        return;
    }
    const auto shared =
        *std::find_if(page->frames.begin(), page->frames.end(), [&](auto& one) { return one.get() == &frame; });
    const DataSetPointer before = frame.dataSet();
    setDataSet(frame, dataSet);
    const std::vector<StateChange_e> kinds{StateChange_DataSetReset};
    m_undo.record(std::make_unique<DataChange>(*this, std::vector{shared}, before, std::move(dataSet), kinds));
    m_changes.send(StateChange_DataSetReset);
}

std::vector<std::shared_ptr<const DataSet>> Document::dataSets() const
{
    std::vector<std::shared_ptr<const DataSet>> found;
    for (const auto& page : m_pages) {
        for (const auto& frame : page->frames) {
            if (frame->dataSet() && std::ranges::find(found, frame->dataSet()) == found.end()) {
                found.push_back(frame->dataSet());
            }
        }
    }
    return found;
}

void Document::replacePages(std::vector<std::shared_ptr<Page>> pages, std::size_t activePage)
{
    m_pages = std::move(pages);
    m_activePage = activePage;
    ++m_contextStamp;
}

void Document::reset()
{
    m_pages.clear();
    auto page = std::make_shared<Page>();
    page->id = m_nextId++;
    page->frames.push_back(std::make_shared<Frame>(m_nextId++));
    page->activeFrame = 1;
    m_pages.push_back(std::move(page));
    m_activePage = 0;
    ++m_contextStamp;
}

} // namespace vantrix::kernel
