#pragma once

#include "view/AxisTicks.h"
#include "view/Camera3D.h"
#include "view/ContourLabels.h"
#include "view/OffscreenWindow.h"
#include "view/PlotStyle.h"
#include "view/RenderSettings.h"
#include "view/StreamtraceLayers.h"
#include "view/ZoneLayers.h"

#include <QImage>
#include <QPointF>

#include <vtkSmartPointer.h>

#include <map>
#include <memory>
#include <optional>
#include <vector>

class vtkCellPicker;
class vtkDataSet;
class vtkLight;
class vtkRenderer;

namespace vantrix::kernel {
class DataSet;
}

namespace vantrix::view {

/* The zones of one frame's field plot as VTK renders them, kept from picture to picture. */
class FieldScene
{
public:
    explicit FieldScene(OffscreenWindow& window);
    ~FieldScene();
    FieldScene(const FieldScene&) = delete;
    FieldScene& operator=(const FieldScene&) = delete;

    /* How the next pictures are made. */
    struct Quality
    {
        int samples = 0;         /* of each pixel; 0 for no smoothing */
        int sortedSurfaces = 8;  /* translucent ones behind each other */
        double keptPoints = 1.0; /* of the points of surfaces, above 0 to 1 */
    };

    /* The streamtraces of the next pictures; null for none. */
    void setStreamtraces(std::shared_ptr<const kernel::TracedStreamtraces> traced) { m_traced = std::move(traced); }

    /* Brings the layers in step with data and style; what did not change is left alone. Throws DataError when a
     * variable that is not in memory cannot be read any more. */
    void update(const kernel::DataSet& dataSet, const PlotStyle& style, double frameHeightPixels,
                const Quality& quality);

    /* A picture of the area between the axes of a 2D plot, or of a 3D plot as a camera sees it. */
    QImage picture(const AxisScale& x, const AxisScale& y, QSize size);
    QImage picture(const Camera3D& camera, QSize size);

    /* Lets go of the layers that are not to be kept until the next picture. */
    void release(GraphicsCache cache);

    /* The first surface point under a place in the picture rendered last (from its lower left corner, 0 to 1), in
     * coordinates of the data. */
    std::optional<Point3> pick(double across, double up) const;

    /* The zone whose surface is seen at a place of that picture; 0 where there is none. */
    long zoneAt(double across, double up) const;

    /* Where the corners of the box around a zone lie in that picture; none for a zone that is not drawn. */
    std::vector<QPointF> zoneCorners(long zone) const;

    /* The contour lines that have labels, as they lie in that picture. */
    std::vector<SeenContourLine> contourLines() const;

    /* The streamtrace (its handle) whose way passes nearest to a place of that picture and is seen there, no farther
     * away than `reach` picture heights; 0 where there is none. */
    long streamtraceAt(double across, double up, double reach) const;

    /* A few places of a streamtrace's way in that picture; none of one that is not drawn. */
    std::vector<QPointF> streamtracePlaces(long handle) const;

    /* Whether nothing of that picture is in front of a place of such a line. */
    bool isInFront(QPointF place, double depth) const;

    /* Zones whose layers are kept at present, and the points of their surfaces.
     */
    long zoneCount() const { return static_cast<long>(m_zones.size()); }
    long surfacePointCount() const;

    /* How often a layer of these zones was made anew. */
    long geometryCount() const;

private:
    struct Zone
    {
        vtkSmartPointer<vtkDataSet> source; /* what `shape` was made from */
        vtkSmartPointer<vtkDataSet> shape;
        std::array<bool, 3> isLogarithmic{};
        bool isFlat = false;
        long labelledGroup = 0;                 /* of the contour lines; 0 without labels */
        std::map<long, ContourValues> contours; /* by group; those that a layer asked for */
        std::unique_ptr<ZoneLayers> layers;
    };
    struct Group
    {
        ContourGroupStyle style;
        ContourColors colors;
    };

    struct Seen
    {
        QPointF place;
        double depth;
    };
    Seen seenAt(const Point3& world) const;
    bool pick(vtkCellPicker& picker, double across, double up) const;
    void updateGroups(const std::vector<ContourGroupStyle>& groups);
    void updateZone(const kernel::DataSet& dataSet, const PlotStyle& style, const ZoneStyle& zone,
                    const LayerContext& context);
    void place(const Placement& placement);
    QImage rendered(QSize pixels);

    OffscreenWindow& m_window;
    vtkSmartPointer<vtkRenderer> m_renderer;
    vtkSmartPointer<vtkLight> m_light;
    std::map<long, Zone> m_zones;
    std::shared_ptr<const kernel::TracedStreamtraces> m_traced;
    std::unique_ptr<StreamtraceLayers> m_streamtraces;
    std::vector<Group> m_groups;
    std::array<double, 3> m_scale{1.0, 1.0, 1.0};
    std::array<double, 3> m_shift{0.0, 0.0, 0.0};
    Placement m_placement;      /* as of the last picture */
    double m_boxDiagonal = 1.0; /* of a 3D plot, in the world */
    QSize m_pixels;             /* of the picture rendered last */
    int m_samples = 0;
    int m_oversampling = 1; /* pixels rendered for one of the picture, along each side */
};

} // namespace vantrix::view
