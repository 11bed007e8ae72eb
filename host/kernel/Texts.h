#pragma once

#include "kernel/Text.h"

#include <memory>
#include <vector>

namespace vantrix::kernel {

class Document;
class Frame;
class StateChanges;
class UndoStack;

/* Adds, changes and deletes the texts of frames: each change is part of the undo step under way and sends
 * `StateChange_Text` with the text's handle. */
class Texts
{
public:
    Texts(Document& document, UndoStack& undo, StateChanges& changes);

    /* Puts a text on top of those of a frame and gives it a handle that no other object of the process has. */
    long add(Frame& frame, Text text);

    /* Swaps in another state of the text with the same handle. False when there is no such text. */
    bool change(Text text);

    bool remove(long handle);

    /* Null when there is no such text. It is valid until the texts of its frame change. */
    const Text* find(long handle) const;
    Frame* frameOf(long handle) const;

private:
    class Change;
    using List = std::vector<std::shared_ptr<const Text>>;
    void replace(Frame& frame, List texts, long handle);
    void show(long frame, const List& texts, long handle);

    Document& m_document;
    UndoStack& m_undo;
    StateChanges& m_changes;
};

} // namespace vantrix::kernel
