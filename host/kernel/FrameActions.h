#pragma once

namespace vantrix::kernel {

class Frame;
class Kernel;

/*
 * What makes and deletes frames of the active page and pages; one part each of the undo step under way. All throw
 * DataError, and change nothing, when it cannot be done.
 */
class FrameActions
{
public:
    static constexpr double leastSize = 0.25; /* inches */

    explicit FrameActions(Kernel& kernel)
        : m_kernel(kernel)
    {}

    /* See VtxUtilFrameCreate(). */
    Frame& create(double left, double top, double width, double height);

    /* See VtxUtilFrameAttachDataSet() and VtxUtilFrameCreateOnSameData(). */
    void attachDataSet(long number);
    void createOnSameData();

    void setRect(long frameId, double left, double top, double width, double height);

    /* See VtxUtilFrameDelete() and VtxUtilPageDelete(). */
    void remove(long frameId);
    void removePage(long position);

    void activate(long frameId);
    void activatePage(long position);

    /* Above all others of the page, or below them. */
    void pop(long frameId);
    void push(long frameId);

private:
    void expectOnActivePage(long frameId) const;

    Kernel& m_kernel;
};

} // namespace vantrix::kernel
