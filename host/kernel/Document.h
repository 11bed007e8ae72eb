#pragma once

#include "api/VtxEnumerations.h"
#include "kernel/Frame.h"

#include <memory>
#include <vector>

namespace vantrix::kernel {

class StateChanges;
class StyleStore;
class UndoStack;

/* A sheet of paper with frames; the last frame is drawn on top. */
struct Page
{
    long id = 0;
    std::vector<std::shared_ptr<Frame>> frames;
    long activeFrame = 0; /* number from 1 in `frames`; 0 without frames */
};

/*
 * All pages, frames and data sets: what a layout file describes. One page is active, and of it one frame; functions of
 * the interface that name neither act on those.
 */
class Document
{
public:
    Document(UndoStack& undo, StateChanges& changes, StyleStore& style);
    ~Document();

    const std::vector<std::shared_ptr<Page>>& pages() const { return m_pages; }
    Page* activePage() const;
    Frame* activeFrame() const;
    Frame* frameById(long id) const;

    /* The data set of the active frame, or null. */
    std::shared_ptr<const DataSet> activeDataSet() const;

    /* What the frames show, each once, in the order of pages and frames. */
    std::vector<std::shared_ptr<const DataSet>> dataSets() const;

    /* Moves whenever another page or frame becomes active or a frame shows other data. */
    unsigned long contextStamp() const { return m_contextStamp; }

    /* Adds a page with one empty frame that fills most of it, and makes both active. Undone as part of the step. */
    Page& addPage();

    /* Adds an empty frame on top of the active page and makes it active; undone as part of the step. Null without a
     * page. */
    Frame* addFrame();

    /*
     * Deletes a frame or a page (by number from 1) with its frames; undone as part of the step. The frame below, or the
     * page before, becomes active. False when there is none. The last page is not deleted. Sends
     * `StateChange_FrameDeleted` or `StateChange_PageDeleted`.
     */
    bool deleteFrame(long id);
    bool deletePage(std::size_t number);

    /* Makes a frame of the active page, or a page by its number from 1, the active one. What is active is no step of
     * undo. False when there is none. Sends `StateChange_NewActiveFrame` or `StateChange_NewActivePage`. */
    bool setActiveFrame(long id);
    bool setActivePage(std::size_t number);

    /* Puts a frame above all others of its page, or below; undone as part of the step. */
    bool raiseFrame(long id);
    bool lowerFrame(long id);

    /* A number that no other page, frame or data set of the process has. */
    long newId() { return m_nextId++; }

    /* Shows other pages in place of all that there are. Not recorded, sends nothing. */
    void replacePages(std::vector<std::shared_ptr<Page>> pages, std::size_t activePage);

    /* A data set without zones, with a fresh identifier, that no frame shows yet. */
    DataSet newDataSet();

    /*
     * Swaps in a changed copy of a data set for every frame that shows the one with the same identifier, as part of the
     * undo step under way, and sends one state change of each kind given. `deletedZones` are the numbers, in the old
     * data set, of zones that the copy does not have: the style of those behind moves down with them.
     */
    void replaceDataSet(DataSet changed, const std::vector<StateChange_e>& kinds,
                        const std::vector<long>& deletedZones = {});

    /* Shows another data set (or none) in a frame; undone as part of the step; sends `StateChange_DataSetReset`. */
    void attachDataSet(Frame& frame, std::shared_ptr<const DataSet> dataSet);

    /* Drops everything; one page with one empty frame is left. Not recorded, sends nothing. */
    void reset();

private:
    class StructureChange;
    class DataChange;
    class ActiveChange;
    struct Structure;
    Structure structure() const;
    void setStructure(const Structure& structure);
    void changeStructure(const Structure& before, const std::vector<StateChange_e>& undone,
                         const std::vector<StateChange_e>& done);
    void setDataSet(Frame& frame, std::shared_ptr<const DataSet> dataSet);
    Page* pageOf(long frameId) const;
    void activate(std::size_t page, long frame);
    bool moveFrame(long id, bool toTop);

    UndoStack& m_undo;
    StateChanges& m_changes;
    StyleStore& m_style;
    std::vector<std::shared_ptr<Page>> m_pages;
    std::size_t m_activePage = 0;
    long m_nextId = 1;
    unsigned long m_contextStamp = 0;
};

} // namespace vantrix::kernel
