#pragma once

#include "api/VtxEnumerations.h"
#include "kernel/Frame.h"

#include <memory>
#include <vector>

namespace vantrix::kernel {

class StateChanges;
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
    Document(UndoStack& undo, StateChanges& changes);

    const std::vector<std::shared_ptr<Page>>& pages() const { return m_pages; }
    Page* activePage() const;
    Frame* activeFrame() const;
    Frame* frameById(long id) const;

    /* The data set of the active frame, or null. */
    std::shared_ptr<const DataSet> activeDataSet() const;

    /* Adds a page with one empty frame that fills most of it, and makes both active. */
    Page& addPage();

    /* A data set without zones, with a fresh identifier, that no frame shows yet. */
    DataSet newDataSet();

    /*
     * Swaps in a changed copy of a data set for every frame that shows the one with the same identifier, as part of the
     * undo step under way, and sends one state change of each kind given.
     */
    void replaceDataSet(DataSet changed, const std::vector<StateChange_e>& kinds);

    /* Shows another data set (or none) in a frame; undone as part of the step; sends `StateChange_DataSetReset`. */
    void attachDataSet(Frame& frame, std::shared_ptr<const DataSet> dataSet);

private:
    UndoStack& m_undo;
    StateChanges& m_changes;
    std::vector<std::shared_ptr<Page>> m_pages;
    std::size_t m_activePage = 0;
    long m_nextId = 1;
};

} // namespace vantrix::kernel
