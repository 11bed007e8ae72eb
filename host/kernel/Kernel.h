#pragma once

#include <memory>
#include <string>

namespace vantrix::kernel {

class ApplicationLock;
class Document;
class FrontEnd;
class Layout;
class MacroRecorder;
class MouseModes;
class PickList;
class ProbeService;
class StateChanges;
class StreamtracePaths;
class StyleStore;
class UndoStack;
class VariableMemory;
struct Geometry;
struct Streamtrace;
struct Text;
template<class Object>
class FrameObjects;
using Geometries = FrameObjects<Geometry>;
using Streamtraces = FrameObjects<Streamtrace>;
using Texts = FrameObjects<Text>;

/*
 * The running plot: owns everything that the function interface reaches. The interface has no handle for it, so there
 * is one in a process.
 */
class Kernel
{
public:
    /* The kernel of this process, made on first use with one page and one empty frame. */
    static Kernel& instance();

    ~Kernel();

    /* The front end in use; one that shows nothing and answers yes until another is set. Not owned; null resets. */
    FrontEnd& frontEnd() const;
    void setFrontEnd(FrontEnd* frontEnd);

    /* Shows and hides the busy indicator of the front end; calls nest. */
    void beginWait();
    void endWait();

    ApplicationLock& lock() const { return *m_lock; }
    Document& document() const { return *m_document; }
    Geometries& geometries() const { return *m_geometries; }
    Layout& layout() const { return *m_layout; }
    MacroRecorder& macroRecorder() const { return *m_macroRecorder; }
    MouseModes& mouseModes() const { return *m_mouseModes; }
    ProbeService& probes() const { return *m_probes; }
    PickList& pickList() const { return *m_pickList; }
    StateChanges& stateChanges() const { return *m_stateChanges; }
    StreamtracePaths& streamtracePaths() const { return *m_streamtracePaths; }
    Streamtraces& streamtraces() const { return *m_streamtraces; }
    StyleStore& style() const { return *m_style; }
    Texts& texts() const { return *m_texts; }
    UndoStack& undoStack() const { return *m_undo; }
    VariableMemory& variableMemory() const { return *m_variableMemory; }

    /* The text of the last failure; see VtxUtilGetLastErrorString(). */
    const std::string& lastError() const { return m_lastError; }
    bool isLastErrorCancellation() const { return m_isLastErrorCancellation; }
    void setLastError(std::string text, bool isCancellation = false)
    {
        m_lastError = std::move(text);
        m_isLastErrorCancellation = isCancellation;
    }

    /* Back to one page with one empty frame, default style, no history. Sends `StateChange_NewLayout`. */
    void reset();

private:
    Kernel();

    std::unique_ptr<StateChanges> m_stateChanges;
    std::unique_ptr<UndoStack> m_undo;
    std::unique_ptr<MacroRecorder> m_macroRecorder;
    std::unique_ptr<ApplicationLock> m_lock;
    std::unique_ptr<StyleStore> m_style;
    std::unique_ptr<Document> m_document;
    std::unique_ptr<Texts> m_texts;
    std::unique_ptr<Geometries> m_geometries;
    std::unique_ptr<Streamtraces> m_streamtraces;
    std::unique_ptr<StreamtracePaths> m_streamtracePaths;
    std::unique_ptr<MouseModes> m_mouseModes;
    std::unique_ptr<ProbeService> m_probes;
    std::unique_ptr<VariableMemory> m_variableMemory;
    std::unique_ptr<PickList> m_pickList;
    std::unique_ptr<Layout> m_layout;
    std::unique_ptr<FrontEnd> m_noFrontEnd;
    FrontEnd* m_frontEnd = nullptr;
    std::string m_lastError;
    bool m_isLastErrorCancellation = false;
    long m_waits = 0;
};

} // namespace vantrix::kernel
