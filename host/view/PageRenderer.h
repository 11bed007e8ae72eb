#pragma once

#include <QColor>
#include <QImage>
#include <QPointF>
#include <QPolygonF>
#include <QRectF>
#include <QSizeF>

#include <array>
#include <memory>
#include <optional>

class QPainter;

namespace vantrix::kernel {
class Frame;
class Kernel;
struct PickedObject;
struct Page;
} // namespace vantrix::kernel

namespace vantrix::view {

class FramePlot;
struct RenderSettings;

/*
 * Paints a page, or one frame of it, with any QPainter: the work area, an image, a printer.
 *
 * Places on a page are in inches from the upper left corner of its paper, Y pointing down. What was rendered for a
 * frame is kept and used again until the frame's style, its data set or the size in pixels changed; on the screen, the
 * whole frame is. Field plots need a graphics display; everything else paints without one.
 */
class PageRenderer
{
public:
    explicit PageRenderer(kernel::Kernel& kernel);
    ~PageRenderer();
    PageRenderer(const PageRenderer&) = delete;
    PageRenderer& operator=(const PageRenderer&) = delete;

    /* The paper in its orientation. */
    QSizeF paperSize(const kernel::Page& page) const;
    bool isPaperShown(const kernel::Page& page) const;
    QColor paperColor(const kernel::Page& page) const;

    /* The paper's colour in pictures and documents: white unless the page wants its fill colour there too. */
    QColor printedPaperColor(const kernel::Page& page) const;

    /* The settings of performance as they are now. */
    const RenderSettings& settings() const;

    QRectF frameRect(const kernel::Frame& frame) const;

    /*
     * Paints paper and frames, or one frame, for a document or picture; paintFrames() paints for the screen, as the
     * settings of performance say. `inch` is the length of an inch in the painter's logical units; the point
     * (0, 0) of the painter is the paper's (or the frame's) upper left corner. Images are rendered at the resolution of
     * the painter's device, its device pixel ratio included.
     */
    void paintPage(QPainter& painter, const kernel::Page& page, double inch);
    void paintFrames(QPainter& painter, const kernel::Page& page, double inch);
    void paintFrame(QPainter& painter, const kernel::Frame& frame, double inch);

    /* The same into an image of that width in pixels; the height follows from paper or frame. At least one pixel. */
    QImage pageImage(const kernel::Page& page, int width);
    QImage frameImage(const kernel::Frame& frame, int width);

    /* LaTeX texts that could not be set are tried again at the next painting, and not before. Their errors are shown in
     * the status line. */
    void forgetLatexErrors();

    /*
     * While a view is being dragged, field plots that take long are painted approximately, where the settings allow it;
     * the next painting after it is set back is in full detail.
     */
    void setMoving(bool moving);

    /* Whether a frame was painted approximately last, and the points of the surfaces that were painted in it. */
    bool isApproximate(long frameId) const;
    long surfacePointCount(long frameId) const;

    /* How often the geometry of a layer was made for the full plot of a frame:
     * surfaces, lines, symbols. */
    long geometryCount(long frameId) const;

    /* Zones of all frames whose graphics objects are in memory. */
    long keptZoneCount() const;

    /* The plot of a frame as it was painted last; null when it was never painted. */
    const FramePlot* plot(long frameId) const;

    /* The first surface point of a 3D plot at a place in its frame (inches from the upper left corner), in data
     * coordinates. */
    std::optional<std::array<double, 3>> pick(long frameId, QPointF place) const;

    /* What is seen at a place in a frame as it was painted last; the frame itself where nothing is nearer than `reach`
     * inches. */
    kernel::PickedObject objectAt(long frameId, QPointF place, double reach) const;

    /* Where an object that was picked shows handles, in inches from its frame's upper left corner. */
    QPolygonF handles(const kernel::PickedObject& object) const;

    /* How often a frame was painted anew. */
    long paintCount(long frameId) const;

    /* How often a field plot was rendered since this object was made. */
    long renderCount() const;

private:
    struct Impl;
    std::unique_ptr<Impl> m_impl;
};

} // namespace vantrix::view
