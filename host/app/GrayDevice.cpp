#include "app/GrayDevice.h"

#include <QImage>
#include <QPaintEngine>
#include <QPainter>
#include <QPainterPath>
#include <QPixmap>

namespace vantrix::app {

namespace {

QColor gray(const QColor& color)
{
    const int shade = qGray(color.rgb());
    return {shade, shade, shade, color.alpha()};
}

QImage gray(const QImage& image)
{
    QImage result = image.convertToFormat(QImage::Format_ARGB32);
    for (int y = 0; y < result.height(); ++y) {
        auto* line = reinterpret_cast<QRgb*>(result.scanLine(y));
        for (int x = 0; x < result.width(); ++x) {
            const int shade = qGray(line[x]);
            line[x] = qRgba(shade, shade, shade, qAlpha(line[x]));
        }
    }
    result.setDevicePixelRatio(image.devicePixelRatio());
    return result;
}

QBrush gray(const QBrush& brush)
{
    QBrush result = brush;
    if (const QGradient* gradient = brush.gradient()) {
        QGradient shades = *gradient;
        QGradientStops stops = shades.stops();
        for (QGradientStop& stop : stops) {
            stop.second = gray(stop.second);
        }
        shades.setStops(stops);
        result = QBrush(shades);
        result.setTransform(brush.transform());
    } else if (brush.style() == Qt::TexturePattern) {
        result.setTextureImage(gray(brush.textureImage()));
    } else {
        result.setColor(gray(brush.color()));
    }
    return result;
}

QPen gray(const QPen& pen)
{
    QPen result = pen;
    result.setBrush(gray(pen.brush()));
    return result;
}

} // namespace

class GrayDevice::Engine : public QPaintEngine
{
public:
    explicit Engine(QPainter& onto)
        : QPaintEngine(AllFeatures)
        , m_onto(onto)
    {}

    bool begin(QPaintDevice* /*device*/) override
    {
        m_onto.save();
        return true;
    }
    bool end() override
    {
        m_onto.restore();
        return true;
    }
    Type type() const override { return User; }

    void updateState(const QPaintEngineState& changed) override
    {
        const DirtyFlags dirty = changed.state();
        if (dirty & DirtyTransform) {
            m_onto.setTransform(changed.transform());
        }
        if (dirty & DirtyPen) {
            m_onto.setPen(gray(changed.pen()));
        }
        if (dirty & DirtyBrush) {
            m_onto.setBrush(gray(changed.brush()));
        }
        if (dirty & DirtyBrushOrigin) {
            m_onto.setBrushOrigin(changed.brushOrigin());
        }
        if (dirty & DirtyBackground) {
            m_onto.setBackground(gray(changed.backgroundBrush()));
        }
        if (dirty & DirtyBackgroundMode) {
            m_onto.setBackgroundMode(changed.backgroundMode());
        }
        if (dirty & DirtyFont) {
            m_onto.setFont(changed.font());
        }
        if (dirty & DirtyClipRegion) {
            m_onto.setClipRegion(changed.clipRegion(), changed.clipOperation());
        }
        if (dirty & DirtyClipPath) {
            m_onto.setClipPath(changed.clipPath(), changed.clipOperation());
        }
        if (dirty & DirtyClipEnabled) {
            m_onto.setClipping(changed.isClipEnabled());
        }
        if (dirty & DirtyHints) {
            m_onto.setRenderHints(changed.renderHints());
        }
        if (dirty & DirtyCompositionMode) {
            m_onto.setCompositionMode(changed.compositionMode());
        }
        if (dirty & DirtyOpacity) {
            m_onto.setOpacity(changed.opacity());
        }
    }

    void drawPath(const QPainterPath& path) override { m_onto.drawPath(path); }

    void drawPolygon(const QPointF* points, int count, PolygonDrawMode mode) override
    {
        switch (mode) {
        case PolylineMode:
            m_onto.drawPolyline(points, count);
            break;
        case ConvexMode:
            m_onto.drawConvexPolygon(points, count);
            break;
        default:
            m_onto.drawPolygon(points, count, mode == WindingMode ? Qt::WindingFill : Qt::OddEvenFill);
            break;
        }
    }

    void drawPixmap(const QRectF& to, const QPixmap& pixmap, const QRectF& from) override
    {
        m_onto.drawImage(to, gray(pixmap.toImage()), from);
    }

    void drawImage(const QRectF& to, const QImage& image, const QRectF& from, Qt::ImageConversionFlags flags) override
    {
        m_onto.drawImage(to, gray(image), from, flags);
    }

    void drawTextItem(const QPointF& place, const QTextItem& item) override
    {
        m_onto.setFont(item.font());
        m_onto.drawText(place, item.text());
    }

private:
    QPainter& m_onto;
};

GrayDevice::GrayDevice(QPainter& onto)
    : m_onto(onto)
    , m_engine(std::make_unique<Engine>(onto))
{}

GrayDevice::~GrayDevice() = default;

QPaintEngine* GrayDevice::paintEngine() const
{
    return m_engine.get();
}

int GrayDevice::metric(PaintDeviceMetric metric) const
{
    const QPaintDevice& device = *m_onto.device();
    switch (metric) {
    case PdmWidth:
        return device.width();
    case PdmHeight:
        return device.height();
    case PdmWidthMM:
        return device.widthMM();
    case PdmHeightMM:
        return device.heightMM();
    case PdmNumColors:
        return device.colorCount();
    case PdmDepth:
        return device.depth();
    case PdmDpiX:
        return device.logicalDpiX();
    case PdmDpiY:
        return device.logicalDpiY();
    case PdmPhysicalDpiX:
        return device.physicalDpiX();
    case PdmPhysicalDpiY:
        return device.physicalDpiY();
    case PdmDevicePixelRatio:
        return qRound(device.devicePixelRatio());
    case PdmDevicePixelRatioScaled:
        return qRound(device.devicePixelRatioF() * devicePixelRatioFScale());
    }
    return QPaintDevice::metric(metric);
}

} // namespace vantrix::app
