#pragma once

#include <QImage>
#include <QSize>

#include <vtkSmartPointer.h>

class vtkRenderer;
class vtkRenderWindow;

namespace vantrix::view {

/* The one render window that all field plots are rendered through; it shows nothing on the screen. */
class OffscreenWindow
{
public:
    OffscreenWindow();
    ~OffscreenWindow();
    OffscreenWindow(const OffscreenWindow&) = delete;
    OffscreenWindow& operator=(const OffscreenWindow&) = delete;

    /*
     * Renders at a size in pixels over a transparent background, each pixel from `samples` samples (0 for no
     * smoothing). A null image when the size is empty or there is no display to render on.
     */
    QImage render(vtkRenderer* renderer, QSize pixels, int samples);

    /* The same for what has translucent surfaces; takes twice as long. */
    QImage renderTranslucent(vtkRenderer* renderer, QSize pixels, int samples);

    /* Drops what is kept on the graphics card for a renderer; called before it is destroyed. */
    void forget(vtkRenderer* renderer);

    /* False when the process has no display that could render. */
    static bool isAvailable();

private:
    QImage picture(vtkRenderer* renderer, QSize pixels, int samples, double background, double alpha);

    vtkSmartPointer<vtkRenderWindow> m_window;
};

} // namespace vantrix::view
