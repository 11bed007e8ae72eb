#pragma once

#include "kernel/Geometry.h"
#include "kernel/Streamtrace.h"
#include "kernel/Text.h"

#include <functional>
#include <memory>
#include <set>
#include <vector>

namespace vantrix::kernel {

class Document;
class Frame;
class StateChanges;
class UndoStack;

/* Adds, changes and deletes the texts, the geometries or the streamtraces of frames: each change is part of the undo
 * step under way and sends the state change of its kind (`StateChange_Text`, `StateChange_Geometry`,
 * `StateChange_Streamtrace`) with the object's handle, or 0 for several objects. */
template<class Object>
class FrameObjects
{
public:
    FrameObjects(Document& document, UndoStack& undo, StateChanges& changes);

    /* Puts an object on top of those of a frame and gives it a handle that no other object of the process has. */
    long add(Frame& frame, Object object);

    /* The same for several at once. */
    void add(Frame& frame, std::vector<Object> objects);

    /* Swaps in another state of the object with the same handle. False when there is no such object. */
    bool change(Object object);

    /* Lets `edit` change each object of a frame but not its handle. */
    void changeAll(Frame& frame, const std::function<void(Object&)>& edit);

    bool remove(long handle);

    /* The same for several at once; handles of nothing do not count. */
    void remove(const std::set<long>& handles);

    /* Null when there is no such object. It is valid until the objects of its frame change. */
    const Object* find(long handle) const;
    Frame* frameOf(long handle) const;

private:
    class Change;
    using List = std::vector<std::shared_ptr<const Object>>;
    void replace(Frame& frame, List objects, long handle);
    void show(long frame, const List& objects, long handle);

    Document& m_document;
    UndoStack& m_undo;
    StateChanges& m_changes;
};

extern template class FrameObjects<Text>;
extern template class FrameObjects<Geometry>;
extern template class FrameObjects<Streamtrace>;

} // namespace vantrix::kernel
