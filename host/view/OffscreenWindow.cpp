#include "view/OffscreenWindow.h"

#include <vtkAutoInit.h>
#include <vtkRenderWindow.h>
#include <vtkRenderer.h>
#include <vtkRendererCollection.h>
#include <vtkUnsignedCharArray.h>

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
    // Over clear black, smoothed edges come out as colour times coverage: premultiplied, as Qt composes fastest.
    renderer->SetBackground(0.0, 0.0, 0.0);
    renderer->SetBackgroundAlpha(0.0);
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
    const QImage image(data->GetPointer(0), pixels.width(), pixels.height(), pixels.width() * 4,
                       QImage::Format_RGBA8888_Premultiplied);
    return image.mirrored(false, true).convertToFormat(QImage::Format_ARGB32_Premultiplied);
}

} // namespace vantrix::view
