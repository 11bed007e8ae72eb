#pragma once

#include "kernel/Frame.h"
#include "kernel/streamtrace/StreamtracePaths.h"
#include "view/Canvas.h"
#include "view/FieldScene.h"
#include "view/FramePlot.h"

#include <memory>
#include <vector>

namespace vantrix::kernel {
class DataSet;
}

namespace vantrix::view {

class LatexPictures;

/* What a frame is painted for. */
struct PaintRequest
{
    RenderSettings settings;
    bool isForScreen = true;
    bool isActive = true;  /* the frame that the dialogs edit */
    bool isMoving = false; /* its view is being changed with the mouse */
    LatexPictures* latex = nullptr;
};

/* Paints one frame, and keeps what it read and rendered for the next time. */
class FramePainter
{
public:
    explicit FramePainter(OffscreenWindow& window);
    ~FramePainter();

    FramePainter(const FramePainter&) = delete;
    FramePainter& operator=(const FramePainter&) = delete;

    /* What the frame shows from now on; `dataSet` may be null. Costs a comparison when both are as before. */
    void show(PlotStyle style, std::shared_ptr<const kernel::DataSet> dataSet);

    /* The geometries and texts over the plot, the last on top. The plot is not made again for them. */
    void setObjects(const kernel::ObjectList<kernel::Geometry>& geometries,
                    const kernel::ObjectList<kernel::Text>& texts);

    /* The streamtraces that the plot draws; null for none. */
    void setStreamtraces(std::shared_ptr<const kernel::TracedStreamtraces> traced);

    /* How often something was set that changes how the frame looks. */
    unsigned long changeCount() const { return m_revision + m_objectChanges; }

    /* All that painting it into a rectangle touches: half of its border lies outside. */
    QRectF extent(const QRectF& rect) const;

    /* Whether the frame would be painted approximately. */
    bool mayApproximate(const PaintRequest& request) const;

    /* `rect` is where the frame lies, in the painter's logical units. */
    void paint(QPainter& painter, double inch, TextEdges edges, const QRectF& rect, const PaintRequest& request);

    const FramePlot& plot() const { return m_plot; }
    std::optional<Point3> pick(QPointF place);

    /* What is seen at a place in the frame (inches from its upper left corner), as it was painted last: nothing but the
     * frame itself where nothing is nearer than `reach`. */
    kernel::PickedObject objectAt(QPointF place, double reach);

    /* Where an object that was picked shows handles; none for what was not painted. */
    QPolygonF handles(const kernel::PickedObject& object);
    long renderCount() const { return m_renderCount; }
    long geometryCount() const { return m_scene.geometryCount(); }

    /* Whether the plot was painted thinned last, and how many points it had. */
    bool isApproximate() const { return m_isApproximate; }
    long surfacePointCount() const { return m_paintedPoints; }

    /* Zones of which graphics objects are kept. */
    long keptZoneCount() const { return m_scene.zoneCount() + (m_thinScene ? m_thinScene->zoneCount() : 0); }

private:
    /* What the picture kept was rendered for. */
    struct PictureKey
    {
        unsigned long revision = 0;
        QSize pixels;
        double keptPoints = 1.0;
        bool hasTexts = true;
        int sortedSurfaces = 0;
        int samples = 0;
        bool operator==(const PictureKey&) const = default;

        /* Whether it shows all of what is plotted, with smooth edges. */
        bool isWhole(unsigned long present) const { return revision == present && keptPoints >= 1.0 && samples > 0; }
    };
    struct KeptPicture
    {
        PictureKey key;
        QImage image;
        std::vector<ContourLabel> labels;
    };

    void paintHeader(const Canvas& canvas, const QRectF& header) const;
    void paintNotice(const Canvas& canvas, const QRectF& rect, const QString& text) const;
    void paintPlot(const Canvas& canvas, const QRectF& inside);
    void paintFlat(const Canvas& canvas, const QRectF& room);
    void paintPolar(const Canvas& canvas, const QRectF& room);
    void paintThreeD(const Canvas& canvas, const QRectF& room);
    double frameHeightInches(const Canvas& canvas) const;
    QRectF inFrame(const Canvas& canvas, const QRectF& rect) const;
    template<typename Render>
    void paintPicture(const Canvas& canvas, const QRectF& area, Render render);
    bool hasTexts() const;
    FieldScene& scene();
    void makeScene();

    OffscreenWindow& m_window;
    FieldScene m_scene;
    std::unique_ptr<FieldScene> m_thinScene; /* of an approximate plot; made when one is painted first */
    FramePlot m_plot;
    std::shared_ptr<const kernel::DataSet> m_dataSet;
    kernel::ObjectList<kernel::Geometry> m_geometries;
    kernel::ObjectList<kernel::Text> m_texts;
    std::shared_ptr<const kernel::TracedStreamtraces> m_traced;
    unsigned long m_revision = 0;      /* of the plot */
    unsigned long m_objectChanges = 0; /* of what lies over it */
    PaintRequest m_request;
    bool m_isApproximate = false;
    double m_fullTime = 0.0; /* seconds that the plot took in full */
    long m_paintedPoints = 0;
    double m_frameHeight = 1.0; /* in logical units */
    QRectF m_rect;
    KeptPicture m_onScreen;
    KeptPicture m_exported;
    long m_renderCount = 0;
};

} // namespace vantrix::view
