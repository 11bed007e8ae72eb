#pragma once

#include "api/VtxEnumerations.h"

#include <string>
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
 * -1 where the entry has none.
 */
class StyleStore
{
public:
    StyleStore(UndoStack& undo, StateChanges& changes);
    ~StyleStore();

    /* The store asks the document which page and frame are active. Set once, before the first access. */
    void setDocument(const Document& document);

    /* The entry of a path ("FrameLayout", "Width"); -1 when there is none. */
    long entry(const std::vector<std::string>& path) const;

    GetValueReturnCode_e get(long entry, long offset1, long offset2, StyleData& value) const;

    /* Checks, stores, records for undo and sends `StateChange_Style`; a value equal to the present one does nothing. */
    SetValueReturnCode_e set(long entry, long offset1, long offset2, const StyleData& value);

    /* The same for one frame or page, whichever is active; for the view, which draws all of them. */
    GetValueReturnCode_e getOf(long scopeId, long entry, long offset1, long offset2, StyleData& value) const;
    SetValueReturnCode_e setOf(long scopeId, long entry, long offset1, long offset2, const StyleData& value);

    /* See VtxUtilStyleGetChangeStamp(). */
    unsigned long changeStamp(long entry) const;

    /* Changes whenever any value of that frame or page changed; tells the view when to draw again. */
    unsigned long scopeStamp(long scopeId) const;

    /* Values of a scope are dropped with their frame or page, or copied for a new one. */
    void removeScope(long scopeId);
    void copyScope(long from, long to);

    /* The text of the last access that failed. */
    const std::string& lastError() const;

private:
    struct Impl;
    Impl* m_impl;
};

} // namespace vantrix::kernel
