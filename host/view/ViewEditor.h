#pragma once

#include "kernel/StyleStore.h"
#include "view/FramePlot.h"

#include <string>

namespace vantrix::kernel {
class Frame;
class Kernel;
} // namespace vantrix::kernel

namespace vantrix::view {

/*
 * Changes the view of the active frame by writing its style. Every change lies between begin() and end(); everything
 * from one to the other is one step of undo.
 */
class ViewEditor
{
public:
    explicit ViewEditor(kernel::Kernel& kernel)
        : m_kernel(kernel)
    {}
    ~ViewEditor() { end(); }
    ViewEditor(const ViewEditor&) = delete;
    ViewEditor& operator=(const ViewEditor&) = delete;

    /* Begins a step of that name; nothing when one is under way. */
    void begin(const std::string& name);
    void end();
    bool isEditing() const { return m_isEditing; }

    /* Flat plots: shows what lies in a rectangle of the plot, or the plot moved or magnified. Places are those of
     * FramePlot. A polar plot is magnified about its centre, by the end of the range of R, and does not move. */
    void showRect(const kernel::Frame& frame, const FramePlot& plot, const QRectF& rect);
    void move(const kernel::Frame& frame, const FramePlot& plot, QPointF by);
    void magnify(const kernel::Frame& frame, const FramePlot& plot, double factor, QPointF about);

    /* Turns a 3D plot; angles in degrees. */
    void turn(const kernel::Frame& frame, const FramePlot& plot, double theta, double psi);

    /* Flat plots: axis ranges that hold all data shown, of polar ones that of R. 3D plots: the whole plot, from the
     * direction it is seen from.
     */
    void fit(const kernel::Frame& frame, const FramePlot& plot);

private:
    void writeRange(const kernel::Frame& frame, const std::string& detail, long offset, double minimum, double maximum);
    void writeRange(const kernel::Frame& frame, const FramePlot& plot, std::size_t kind, int number, double minimum,
                    double maximum);
    void writeView(const kernel::Frame& frame, const FramePlot& plot, const View3D& view);
    void write(const kernel::Frame& frame, const std::string& path, const kernel::StyleData& value, long offset = -1);

    kernel::Kernel& m_kernel;
    bool m_isEditing = false;
};

} // namespace vantrix::view
