#pragma once

#include "view/Canvas.h"
#include "view/FieldScene.h"
#include "view/FramePlot.h"

#include <memory>

namespace vantrix::kernel {
class DataSet;
}

namespace vantrix::view {

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

    /* `rect` is where the frame lies, in the painter's logical units. */
    void paint(const Canvas& canvas, const QRectF& rect, bool isCoarse);

    const FramePlot& plot() const { return m_plot; }
    std::optional<Point3> pick(QPointF place) const;
    long renderCount() const { return m_renderCount; }

private:
    /* What the picture kept was rendered for. */
    struct PictureKey
    {
        unsigned long revision = 0;
        QSize pixels;
        bool isCoarse = false;
        bool operator==(const PictureKey&) const = default;
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

    FieldScene m_scene;
    FramePlot m_plot;
    std::shared_ptr<const kernel::DataSet> m_dataSet;
    unsigned long m_revision = 0;
    bool m_isCoarse = false;
    double m_frameHeight = 1.0; /* in logical units */
    QRectF m_rect;
    PictureKey m_key;
    QImage m_picture;
    long m_renderCount = 0;
};

} // namespace vantrix::view
