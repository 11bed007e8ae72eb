#pragma once

#include "kernel/StyleStore.h"

#include <memory>
#include <set>
#include <string>
#include <vector>

namespace vantrix::kernel {

class DataSet;
class Frame;

/* What a line map shows, and over which axes (1 to 5 of each kind). */
struct LineMapAssignment
{
    long zone = 1;
    long xVariable = 1; /* theta in a polar plot */
    long yVariable = 2; /* R in a polar plot */
    long xAxis = 1;
    long yAxis = 1;
};

/*
 * The line maps of one frame: a numbered list, kept in the frame's style. Changes are undone as part of the step under
 * way and need the application lock. An object of this class keeps nothing itself.
 */
class LineMaps
{
public:
    LineMaps(StyleStore& style, const Frame& frame);

    long count() const;
    bool has(long lineMap) const { return lineMap >= 1 && lineMap <= count(); }

    /* What stays with a line map when its number changes and no other one ever has; 0 for one that was made before
     * line maps had any. Its number again, 0 where there is none. */
    long identity(long lineMap) const;
    long numberOf(long identity) const;

    /* Its own name, or that of its Y variable; empty where it has neither. */
    std::string name(long lineMap) const;

    LineMapAssignment assignment(long lineMap) const;

    /* Those that are shown, in order. */
    std::vector<long> active() const;

    /* Adds line maps at the end, shown, each in the colour that follows in the palette. Throws DataError, nothing
     * added, when the data set does not have a zone or variable. Sends `StateChange_LineMapsAddedOrDeleted`. */
    void add(const std::vector<LineMapAssignment>& assignments);

    /* Deletes line maps; those behind move down with their style. Throws DataError, nothing deleted, for no numbers or
     * one that is not there. Sends `StateChange_LineMapsAddedOrDeleted`. */
    void remove(const std::set<long>& lineMaps);

    void removeAll();

    /*
     * To be called when zones have left the data set: line maps of deleted zones go with them, the others keep showing
     * the zone that they showed. `zones` are the numbers before the deletion, in increasing order.
     */
    void zonesRemoved(const std::vector<long>& zones);

private:
    long number(const char* path, long lineMap) const;
    void set(const char* path, const StyleData& value, long lineMap = -1);
    void expectInData(const LineMapAssignment& assignment) const;
    void removeChecked(const std::vector<long>& lineMaps);

    StyleStore& m_style;
    long m_frameId;
    std::shared_ptr<const DataSet> m_data;
};

} // namespace vantrix::kernel
