#include "kernel/FrameObjects.h"

#include "kernel/Document.h"
#include "kernel/GeometryValues.h"
#include "kernel/StateChanges.h"
#include "kernel/StreamtraceValues.h"
#include "kernel/TextValues.h"
#include "kernel/UndoStack.h"

#include <algorithm>

namespace vantrix::kernel {
namespace {

auto isHandle(long handle)
{
    return [handle](const auto& object) { return object->handle == handle; };
}

} // namespace

template<class Object>
class FrameObjects<Object>::Change : public UndoableChange
{
public:
    Change(FrameObjects& objects, long frame, List before, List after, long handle)
        : m_objects(objects)
        , m_frame(frame)
        , m_before(std::move(before))
        , m_after(std::move(after))
        , m_handle(handle)
    {}

    void undo() override { m_objects.show(m_frame, m_before, m_handle); }
    void redo() override { m_objects.show(m_frame, m_after, m_handle); }
    std::size_t memory(bool /*isDone*/) const override
    {
        return sizeof(Object) + (m_before.size() + m_after.size()) * sizeof(void*);
    }

private:
    FrameObjects& m_objects;
    long m_frame;
    List m_before;
    List m_after;
    long m_handle;
};

template<class Object>
FrameObjects<Object>::FrameObjects(Document& document, UndoStack& undo, StateChanges& changes)
    : m_document(document)
    , m_undo(undo)
    , m_changes(changes)
{}

template<class Object>
void FrameObjects<Object>::show(long frame, const List& objects, long handle)
{
    if (Frame* shown = m_document.frameById(frame)) {
        shown->setObjects<Object>(objects);
        m_changes.send(VtxStateChange{ObjectTraits<Object>::stateChange, -1, handle});
    }
}

template<class Object>
void FrameObjects<Object>::replace(Frame& frame, List objects, long handle)
{
    m_undo.record(std::make_unique<Change>(*this, frame.id(), frame.objects<Object>(), objects, handle));
    show(frame.id(), objects, handle);
}

template<class Object>
long FrameObjects<Object>::add(Frame& frame, Object object)
{
    const long handle = m_document.newId();
    object.handle = handle;
    List objects = frame.objects<Object>();
    objects.push_back(std::make_shared<const Object>(std::move(object)));
    replace(frame, std::move(objects), handle);
    return handle;
}

template<class Object>
void FrameObjects<Object>::add(Frame& frame, std::vector<Object> added)
{
    if (added.empty()) {
        return;
    }
    List objects = frame.objects<Object>();
    for (Object& object : added) {
        object.handle = m_document.newId();
        objects.push_back(std::make_shared<const Object>(std::move(object)));
    }
    const long handle = added.size() == 1 ? objects.back()->handle : 0;
    replace(frame, std::move(objects), handle);
}

template<class Object>
bool FrameObjects<Object>::change(Object object)
{
    Frame* frame = frameOf(object.handle);
    if (!frame) {
        return false;
    }
    List objects = frame->objects<Object>();
    const auto found = std::find_if(objects.begin(), objects.end(), isHandle(object.handle));
    const long handle = object.handle;
    if (**found != object) {
        *found = std::make_shared<const Object>(std::move(object));
        replace(*frame, std::move(objects), handle);
    }
    return true;
}

template<class Object>
void FrameObjects<Object>::changeAll(Frame& frame, const std::function<void(Object&)>& edit)
{
    List objects = frame.objects<Object>();
    std::set<long> changed;
    for (auto& object : objects) {
        Object edited = *object;
        edit(edited);
        if (edited != *object) {
            changed.insert(object->handle);
            object = std::make_shared<const Object>(std::move(edited));
        }
    }
    if (!changed.empty()) {
        replace(frame, std::move(objects), changed.size() == 1 ? *changed.begin() : 0);
    }
}

template<class Object>
bool FrameObjects<Object>::remove(long handle)
{
    Frame* frame = frameOf(handle);
    if (!frame) {
        return false;
    }
    List objects = frame->objects<Object>();
    std::erase_if(objects, isHandle(handle));
    replace(*frame, std::move(objects), handle);
    return true;
}

template<class Object>
void FrameObjects<Object>::remove(const std::set<long>& handles)
{
    for (const auto& page : m_document.pages()) {
        for (const auto& frame : page->frames) {
            List objects = frame->template objects<Object>();
            if (std::erase_if(objects, [&](const auto& object) { return handles.contains(object->handle); }) > 0) {
                replace(*frame, std::move(objects), handles.size() == 1 ? *handles.begin() : 0);
            }
        }
    }
}

template<class Object>
Frame* FrameObjects<Object>::frameOf(long handle) const
{
    for (const auto& page : m_document.pages()) {
        for (const auto& frame : page->frames) {
            const List& objects = frame->template objects<Object>();
            if (std::any_of(objects.begin(), objects.end(), isHandle(handle))) {
                return frame.get();
            }
        }
    }
    return nullptr;
}

template<class Object>
const Object* FrameObjects<Object>::find(long handle) const
{
    const Frame* frame = frameOf(handle);
    if (!frame) {
        return nullptr;
    }
    const List& objects = frame->objects<Object>();
    return std::find_if(objects.begin(), objects.end(), isHandle(handle))->get();
}

template class FrameObjects<Text>;
template class FrameObjects<Geometry>;
template class FrameObjects<Streamtrace>;

} // namespace vantrix::kernel
