#pragma once

#include "api/VtxEnumerations.h"

namespace vantrix::kernel {

class Document;
class StateChanges;

/* What the mouse does over the work area. */
class MouseModes
{
public:
    MouseModes(const Document& document, StateChanges& changes);

    MouseMode_e current() const { return m_mode; }

    /* Whether a mode makes sense for the active frame's plot: rotation needs a 3D plot, probing a data set ... */
    bool isValid(MouseMode_e mode) const;

    /* False, and no change, for a mode that is not valid. Sends `StateChange_MouseMode`. */
    bool set(MouseMode_e mode);

private:
    const Document& m_document;
    StateChanges& m_changes;
    MouseMode_e m_mode = MouseMode_Selector;
};

} // namespace vantrix::kernel
