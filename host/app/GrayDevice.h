#pragma once

#include <QPaintDevice>

#include <memory>

class QPainter;

namespace vantrix::app {

/* A paint device that passes everything on to a painter in shades of gray: lines stay lines and texts texts. */
class GrayDevice : public QPaintDevice
{
public:
    /* The painter is active, on a device of the same measures, and outlives this. */
    explicit GrayDevice(QPainter& onto);
    ~GrayDevice() override;

    QPaintEngine* paintEngine() const override;

protected:
    int metric(PaintDeviceMetric metric) const override;

private:
    class Engine;

    QPainter& m_onto;
    std::unique_ptr<Engine> m_engine;
};

} // namespace vantrix::app
