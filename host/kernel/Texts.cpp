#include "kernel/Texts.h"

#include "kernel/Document.h"
#include "kernel/StateChanges.h"
#include "kernel/UndoStack.h"

#include <algorithm>

namespace vantrix::kernel {
namespace {

auto isHandle(long handle)
{
    return [handle](const std::shared_ptr<const Text>& text) { return text->handle == handle; };
}

} // namespace

class Texts::Change : public UndoableChange
{
public:
    Change(Texts& texts, long frame, List before, List after, long handle)
        : m_texts(texts)
        , m_frame(frame)
        , m_before(std::move(before))
        , m_after(std::move(after))
        , m_handle(handle)
    {}

    void undo() override { m_texts.show(m_frame, m_before, m_handle); }
    void redo() override { m_texts.show(m_frame, m_after, m_handle); }
    std::size_t memory() const override { return sizeof(Text) + (m_before.size() + m_after.size()) * sizeof(void*); }

private:
    Texts& m_texts;
    long m_frame;
    List m_before;
    List m_after;
    long m_handle;
};

Texts::Texts(Document& document, UndoStack& undo, StateChanges& changes)
    : m_document(document)
    , m_undo(undo)
    , m_changes(changes)
{}

void Texts::show(long frame, const List& texts, long handle)
{
    if (Frame* shown = m_document.frameById(frame)) {
        shown->setTexts(texts);
        m_changes.send(VtxStateChange{StateChange_Text, -1, handle});
    }
}

void Texts::replace(Frame& frame, List texts, long handle)
{
    m_undo.record(std::make_unique<Change>(*this, frame.id(), frame.texts(), texts, handle));
    show(frame.id(), texts, handle);
}

long Texts::add(Frame& frame, Text text)
{
    const long handle = m_document.newId();
    text.handle = handle;
    List texts = frame.texts();
    texts.push_back(std::make_shared<const Text>(std::move(text)));
    replace(frame, std::move(texts), handle);
    return handle;
}

bool Texts::change(Text text)
{
    Frame* frame = frameOf(text.handle);
    if (!frame) {
        return false;
    }
    List texts = frame->texts();
    const auto found = std::find_if(texts.begin(), texts.end(), isHandle(text.handle));
    const long handle = text.handle;
    if (**found != text) {
        *found = std::make_shared<const Text>(std::move(text));
        replace(*frame, std::move(texts), handle);
    }
    return true;
}

bool Texts::remove(long handle)
{
    Frame* frame = frameOf(handle);
    if (!frame) {
        return false;
    }
    List texts = frame->texts();
    std::erase_if(texts, isHandle(handle));
    replace(*frame, std::move(texts), handle);
    return true;
}

Frame* Texts::frameOf(long handle) const
{
    for (const auto& page : m_document.pages()) {
        for (const auto& frame : page->frames) {
            if (std::any_of(frame->texts().begin(), frame->texts().end(), isHandle(handle))) {
                return frame.get();
            }
        }
    }
    return nullptr;
}

const Text* Texts::find(long handle) const
{
    const Frame* frame = frameOf(handle);
    return frame ? std::find_if(frame->texts().begin(), frame->texts().end(), isHandle(handle))->get() : nullptr;
}

} // namespace vantrix::kernel
