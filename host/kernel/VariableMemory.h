#pragma once

#include "kernel/DataSet.h"

#include <functional>
#include <map>
#include <memory>
#include <set>
#include <vector>

namespace vantrix::kernel {

class Document;
class StateChanges;
class StyleStore;
class UndoStack;

/*
 * Keeps of the variables that were read from files only those in memory that the unload strategy
 * ("FileConfig" / "LoadOnDemand" / "UnloadStrategy") wants there. A variable that is not in memory is read again when
 * somebody needs it (FieldArray::load()). Variables that a plot shows stay, and so do those that no file has as they
 * are: made in the program, or changed.
 */
class VariableMemory
{
public:
    VariableMemory(Document& document, StyleStore& style, StateChanges& changes, UndoStack& undo);

    /*
     * Unloads what the strategy says: with `Auto`, when more than "Limits" / "LodThresholdMaxFract" of the machine's
     * memory is in use, those used longest ago until less than "LodThresholdMinFract" is; with `MinimizeMemoryUse`, all
     * that no plot shows, but not what was loaded since the last time: somebody may be about to use it. Sends
     * `StateChange_DataAvailability` when variables were loaded or unloaded since the last call. To be called when
     * nothing else is under way; costs next to nothing when nothing changed.
     */
    void tidy();

    /* The part of the machine's memory that is in use, 0 to 1. Tests give another answer. */
    std::function<double()> memoryInUse;

    /* Bytes of values in memory of all data sets, those of undo steps included; shared ones count once. */
    std::size_t bytesOfValues() const;

private:
    struct Candidate;
    using Shown = std::map<long, std::set<long>>; /* variables by the identifier of the data set */

    Shown shown() const;
    void forEachDataSet(const std::function<void(const DataSet&)>& visit) const;
    std::vector<Candidate> candidates(const Shown& shown) const;
    bool unload(const Candidate& candidate) const;
    bool unloadAll(unsigned long sparedFrom) const;
    bool unloadOldest() const;
    long strategy() const;

    Document& m_document;
    StyleStore& m_style;
    StateChanges& m_changes;
    UndoStack& m_undo;
    unsigned long m_readCount = 0;
    unsigned long m_latestUse = 0;
    Shown m_tidied; /* what was shown when all else was unloaded */
    bool m_isTidied = false;
};

} // namespace vantrix::kernel
