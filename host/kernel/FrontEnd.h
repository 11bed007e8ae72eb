#pragma once

#include "api/VtxEnumerations.h"

#include <string>

namespace vantrix::kernel {

/*
 * What the kernel asks of whoever runs it and cannot do without a screen or a user. vxplot, its batch mode and the
 * tests each have one. Calls come on the thread of the user interface and may re-enter the kernel's reading functions.
 */
class FrontEnd
{
public:
    virtual ~FrontEnd() = default;

    /* Shows a text until the user has seen it; for a question, whether the user agreed. */
    virtual bool showMessage(const std::string& text, MessageBox_e type) = 0;

    /* Shows a text in the status line. */
    virtual void showStatus(const std::string& text) = 0;

    virtual void setBusy(bool busy) = 0;

    /*
     * Long work tells how far it is: 0 to 1, a value above 1 when it is done. The first call of a piece of work names
     * it. Returns false when the user wants it to stop; the work then ends as soon as it can and changes nothing.
     */
    virtual bool reportProgress(const std::string& task, double fraction) = 0;

    virtual bool openHelp(const std::string& page) = 0;

    /* Zooms and moves the work area so that the paper fills it. */
    virtual void fitPaperToWorkArea() = 0;

    /* How far labelled ticks of an axis (see VtxUtilAxis.h) of a frame's plot are apart as it was drawn last; 0 where
     * it was not drawn or they are not evenly spaced. Whoever draws sends `StateChange_View` when one has changed. */
    virtual double drawnTickSpacing(long /*frameId*/, char /*axis*/, int /*axisNumber*/) const { return 0.0; }
};

} // namespace vantrix::kernel
