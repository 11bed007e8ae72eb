#include "view/OffscreenWindow.h"

#include <vtkAutoInit.h>
#include <vtkRenderWindow.h>
#include <vtkRenderer.h>
#include <vtkRendererCollection.h>
#include <vtkUnsignedCharArray.h>

#include <algorithm>
#include <cstdlib>

// Registers the implementations behind VTK's rendering interfaces with the program that this is linked into.
VTK_MODULE_INIT(vtkRenderingOpenGL2)

namespace vantrix::view {

OffscreenWindow::OffscreenWindow() = default;
OffscreenWindow::~OffscreenWindow() = default;

bool OffscreenWindow::isAvailable()
{
    const char* display = std::getenv("DISPLAY");
    return display && *display;
}

void OffscreenWindow::forget(vtkRenderer* renderer)
{
    if (m_window && m_window->HasRenderer(renderer)) {
        m_window->RemoveRenderer(renderer);
    }
}

QImage OffscreenWindow::render(vtkRenderer* renderer, QSize pixels, int samples)
{
    // Over clear black, smoothed edges come out as colour times coverage: premultiplied, as Qt composes fastest.
    return picture(renderer, pixels, samples, 0.0, 0.0);
}

QImage OffscreenWindow::renderTranslucent(vtkRenderer* renderer, QSize pixels, int samples)
{
    // What peeling leaves in the alpha channel is not the coverage; how much a white background brightens a pixel is.
    QImage overBlack = picture(renderer, pixels, samples, 0.0, 1.0);
    const QImage overWhite = picture(renderer, pixels, samples, 1.0, 1.0);
    for (int y = 0; y < overBlack.height(); ++y) {
        auto* dark = reinterpret_cast<QRgb*>(overBlack.scanLine(y));
        const auto* bright = reinterpret_cast<const QRgb*>(overWhite.constScanLine(y));
        for (int x = 0; x < overBlack.width(); ++x) {
            const int background = (qRed(bright[x]) - qRed(dark[x]) + qGreen(bright[x]) - qGreen(dark[x]) +
                                    qBlue(bright[x]) - qBlue(dark[x])) /
                                   3;
            const int coverage = std::clamp(255 - background, 0, 255);
            dark[x] = qRgba(std::min(qRed(dark[x]), coverage), std::min(qGreen(dark[x]), coverage),
                            std::min(qBlue(dark[x]), coverage), coverage);
        }
    }
    return overBlack;
}

QImage OffscreenWindow::picture(vtkRenderer* renderer, QSize pixels, int samples, double background, double alpha)
{
    if (pixels.isEmpty() || !isAvailable()) {
        return {};
    }
    if (!m_window) {
        m_window = vtkSmartPointer<vtkRenderWindow>::New();
        m_window->SetOffScreenRendering(1);
        m_window->SetAlphaBitPlanes(1);
    }
    m_window->SetMultiSamples(samples);
    m_window->SetSize(pixels.width(), pixels.height());
    renderer->SetBackground(background, background, background);
    renderer->SetBackgroundAlpha(alpha);
    if (!m_window->HasRenderer(renderer)) {
        m_window->AddRenderer(renderer);
    }
    // The others stay in the window, so that what they hold on the graphics card is kept.
    vtkRendererCollection* renderers = m_window->GetRenderers();
    for (int i = 0; i < renderers->GetNumberOfItems(); ++i) {
        auto* each = vtkRenderer::SafeDownCast(renderers->GetItemAsObject(i));
        each->SetDraw(each == renderer);
    }
    m_window->Render();
    const auto data = vtkSmartPointer<vtkUnsignedCharArray>::New();
    m_window->GetRGBACharPixelData(0, 0, pixels.width() - 1, pixels.height() - 1, 0, data);
    if (data->GetNumberOfTuples() < vtkIdType{pixels.width()} * pixels.height()) {
        return {};
    }
    const QImage image(data->GetPointer(0), pixels.width(), pixels.height(), qsizetype{4} * pixels.width(),
                       QImage::Format_RGBA8888_Premultiplied);
    return image.mirrored(false, true).convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace vantrix::view
