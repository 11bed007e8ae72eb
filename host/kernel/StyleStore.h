#pragma once

#include "api/VtxEnumerations.h"

#include <functional>
#include <memory>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

namespace vantrix::kernel {

class Document;
class StateChanges;
class UndoStack;

/* A style value: flags, integers and enumerations are `long`. */
using StyleData = std::variant<long, double, std::string>;

/*
 * The style values of the process, of every page and of every frame.
 *
 * What values there are is the vocabulary written from style/ (see StyleVocabulary.h). An entry is found once by its
 * path and is then a number. A value that was never set has the default of its description. `offset1` and `offset2` are
 * -1 where the entry has none. A scope is the identifier of a page or frame, or `processScope`.
 */
class StyleStore
{
public:
    static constexpr long processScope = 0;

    StyleStore(UndoStack& undo, StateChanges& changes);
    ~StyleStore();

    /* The store asks the document which page and frame are active. Set once, before the first access. */
    void setDocument(const Document& document);

    /* The entry of a path, {"FrameLayout", "Width"} or "FrameLayout/Width"; -1 when there is none. */
    long entry(const std::vector<std::string>& path) const;
    long entry(const char* path) const;

    GetValueReturnCode_e get(long entry, long offset1, long offset2, StyleData& value) const;

    /*
     * Checks, stores, records for undo and sends `StateChange_Style` (and the kind that the description of the value
     * announces besides); a value equal to the present one does nothing.
     */
    SetValueReturnCode_e set(long entry, long offset1, long offset2, const StyleData& value);

    /* The same for many first offsets: all are checked before the first is written; one state change for all. */
    SetValueReturnCode_e setMany(long entry, const std::vector<long>& offsets1, long offset2, const StyleData& value);

    /* The same for one frame or page, whichever is active; for the view, which draws all of them. */
    GetValueReturnCode_e getOf(long scopeId, long entry, long offset1, long offset2, StyleData& value) const;
    SetValueReturnCode_e setOf(long scopeId, long entry, long offset1, long offset2, const StyleData& value);

    /*
     * Reads of which the caller knows that they are right: the value, or the default of the description where the
     * offsets address nothing. Each throws std::logic_error, with the path, for an entry of another type or none.
     */
    bool flag(long scopeId, long entry, long offset1 = -1, long offset2 = -1) const;
    long integer(long scopeId, long entry, long offset1 = -1, long offset2 = -1) const;
    double real(long scopeId, long entry, long offset1 = -1, long offset2 = -1) const;
    std::string text(long scopeId, long entry, long offset1 = -1, long offset2 = -1) const;

    /* See VtxUtilStyleGetChangeStamp(). */
    unsigned long changeStamp(long entry) const;

    /* Changes whenever any value of that frame or page changed; tells the view when to draw again. */
    unsigned long scopeStamp(long scopeId) const;

    /*
     * A further check of new values of one entry: returns a sentence that tells why a value is refused in the present
     * state of the plot, or an empty text. One rule an entry.
     */
    using Rule = std::function<std::string(long scopeId, long offset1, const StyleData& value)>;
    void setRule(long entry, Rule rule);

    /*
     * What else changes with a value of one entry: called when it has changed and nobody has been told yet. It may set
     * other values; they are part of the same step. One effect an entry.
     */
    using Effect = std::function<void(long scopeId, long offset1)>;
    void setEffect(long entry, Effect effect);

    /* Gives every foreground colour of a frame that is `from` the value `to`. Undone as part of the step. */
    void replaceForegroundColors(long scopeId, long from, long to);

    /*
     * Values of objects with these numbers are dropped and those behind move down. `offset` says what is numbered, by
     * the name that its description has: "zone", "line_map"; it must outlive the store. Undone as part of the step.
     */
    void removeObjects(long scopeId, std::string_view offset, const std::vector<long>& numbers);

    /* Values of a scope are dropped with their frame or page, or copied for a new one. Not recorded. */
    void removeScope(long scopeId);
    void copyScope(long from, long to);

    /* A value with where it belongs. */
    struct Stored
    {
        long entry;
        long offset1 = -1;
        long offset2 = -1;
        StyleData value;
    };

    /* What differs from its default in a scope, in the order of the entries; of zones only those that there are. */
    std::vector<Stored> storedValues(long scopeId) const;

    /* Fills a scope that nobody shows yet with values that were checked. Not recorded, sends nothing. */
    void fillScope(long scopeId, const std::vector<Stored>& values);

    /* Drops every value that was set. Not recorded, sends nothing. */
    void clear();

    /* The text of the last access that failed. */
    const std::string& lastError() const;
    void setLastError(std::string text) const;

private:
    class Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace vantrix::kernel
