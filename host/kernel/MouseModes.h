#pragma once

#include "api/VtxUtilState.h"

namespace vantrix::kernel {

class Document;
class StateChanges;
class StyleStore;
class UndoStack;

/*
 * What the mouse does over the work area. When the plot changes so that the present mode is not valid any more, the
 * selector takes its place. A mode that was set in a step is no part of it, but goes with a step that is rolled back.
 */
class MouseModes
{
public:
    MouseModes(const Document& document, const StyleStore& style, StateChanges& changes, UndoStack& undo);
    ~MouseModes();
    MouseModes(const MouseModes&) = delete;
    MouseModes& operator=(const MouseModes&) = delete;

    MouseMode_e current() const { return m_mode; }

    /* Whether a mode makes sense for the active frame's plot: rotation needs a 3D plot, probing a data set ... */
    bool isValid(MouseMode_e mode) const;

    /* False, and no change, for a mode that is not valid. Sends `StateChange_MouseMode`. */
    bool set(MouseMode_e mode);

private:
    class Change;
    void put(MouseMode_e mode);
    static void stateChanged(VtxStateChangeHandle change, void* modes);

    const Document& m_document;
    const StyleStore& m_style;
    StateChanges& m_changes;
    UndoStack& m_undo;
    long m_plotType;
    MouseMode_e m_mode = MouseMode_Selector;
};

} // namespace vantrix::kernel
