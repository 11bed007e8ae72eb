#pragma once

#include "view/AxisTicks.h"
#include "view/Camera3D.h"
#include "view/OffscreenWindow.h"
#include "view/PlotStyle.h"
#include "view/ZoneLayers.h"

#include <QImage>

#include <vtkSmartPointer.h>

#include <map>
#include <memory>
#include <optional>
#include <vector>

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

    /* Brings the layers in step with data and style; what did not change is left alone. Each pixel of the next pictures
     * is made from `samples` samples (0 for no smoothing). */
    void update(const kernel::DataSet& dataSet, const PlotStyle& style, double frameHeightPixels, int samples);

    /* A picture of the area between the axes of a 2D plot, or of a 3D plot as a camera sees it. */
    QImage picture(const AxisScale& x, const AxisScale& y, QSize size);
    QImage picture(const Camera3D& camera, QSize size);

    /* The first surface point under a place in the picture rendered last (from its lower left corner, 0 to 1), in
     * coordinates of the data. */
    std::optional<Point3> pick(double across, double up) const;

    long surfaceCellCount() const;

private:
    struct Zone
    {
        vtkSmartPointer<vtkDataSet> source; /* what `shape` was made from */
        vtkSmartPointer<vtkDataSet> shape;
        std::array<bool, 3> isLogarithmic{};
        bool isFlat = false;
        std::map<long, ContourValues> contours; /* by group; those that a layer asked for */
        std::unique_ptr<ZoneLayers> layers;
    };
    struct Group
    {
        ContourGroupStyle style;
        ContourColors colors;
    };

    void updateGroups(const std::vector<ContourGroupStyle>& groups);
    void updateZone(const kernel::DataSet& dataSet, const PlotStyle& style, const ZoneStyle& zone,
                    const LayerContext& context);
    void place(const Placement& placement);
    QImage rendered(QSize pixels);

    OffscreenWindow& m_window;
    vtkSmartPointer<vtkRenderer> m_renderer;
    vtkSmartPointer<vtkLight> m_light;
    std::map<long, Zone> m_zones;
    std::vector<Group> m_groups;
    std::array<double, 3> m_scale{1.0, 1.0, 1.0};
    double m_boxDiagonal = 1.0; /* of a 3D plot, in the world */
    QSize m_pixels;             /* of the picture rendered last */
    int m_samples = 0;
    int m_oversampling = 1; /* pixels rendered for one of the picture, along each side */
};

} // namespace vantrix::view
