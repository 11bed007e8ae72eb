#pragma once

#include <QPointF>

#include <vector>

class QPainter;

namespace vantrix::kernel {
class Frame;
class Kernel;
class ProbeService;
} // namespace vantrix::kernel

namespace vantrix::view {

class FramePlot;
class PageRenderer;

/* Probes of plots with the mouse, and the marks where the last probe, by whomever, was made. */
class PlotProbe
{
public:
    PlotProbe(kernel::Kernel& kernel, const PageRenderer& renderer)
        : m_kernel(kernel)
        , m_renderer(renderer)
    {}

    /* Probes at a place in a frame (inches from its upper left corner): interpolates, or takes the nearest point. Of a
     * 3D plot the surface seen there counts, of a line plot the place along theta or the first X axis in use. The
     * status line tells when there is nothing. */
    void probe(const kernel::Frame& frame, QPointF place, bool isNearestPoint) const;

    /* Where on the page the last probe was made, in inches; of a line plot a place on each line. Empty where that is
     * not seen. */
    std::vector<QPointF> probedPlaces() const;

    /* A cross that is seen on any colour. */
    static void paintMark(QPainter& painter, QPointF place);

private:
    kernel::ProbeService& probes() const;
    bool perform(const FramePlot& plot, long frameId, QPointF place, bool isNearestPoint) const;

    kernel::Kernel& m_kernel;
    const PageRenderer& m_renderer;
};

} // namespace vantrix::view
