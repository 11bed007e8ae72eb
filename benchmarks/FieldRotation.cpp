// Turning the plot of the largest real file with the mouse, in a work area of 800 x 600, beside VTK turning the same
// surfaces as one actor. Needs a display that VTK can render on.

#include "kernel/ApplicationLock.h"
#include "kernel/Document.h"
#include "kernel/Frame.h"
#include "kernel/Kernel.h"
#include "kernel/MouseModes.h"
#include "kernel/OpenData.h"
#include "kernel/StyleStore.h"
#include "kernel/ZoneGrid.h"
#include "view/OffscreenWindow.h"
#include "view/PageRenderer.h"
#include "view/WorkArea.h"

#include <QCoreApplication>
#include <QMouseEvent>
#include <QWindow>

#include <benchmark/benchmark.h>

#include <vtkActor.h>
#include <vtkAppendPolyData.h>
#include <vtkCamera.h>
#include <vtkDataSetSurfaceFilter.h>
#include <vtkNew.h>
#include <vtkPolyData.h>
#include <vtkPolyDataMapper.h>
#include <vtkRenderer.h>

#include <filesystem>
#include <string>

namespace {

using namespace vantrix;

char const* const file = VX_SHARED_DATA "/multi.cgns";
constexpr QSize size(800, 600);

bool canRun(benchmark::State& state)
{
    if (!std::filesystem::exists(file) || !view::OffscreenWindow::isAvailable()) {
        state.SkipWithError("the file or a display is not there");
        return false;
    }
    return true;
}

void set(const char* path, long value)
{
    kernel::Kernel& kernel = kernel::Kernel::instance();
    kernel.lock().start(true);
    kernel.style().set(kernel.style().entry(path), -1, -1, value);
    kernel.lock().finish();
}

void openFile()
{
    kernel::Kernel& kernel = kernel::Kernel::instance();
    kernel.reset();
    kernel::OpenData(kernel).files({file});
    set("PlotType", PlotType_Cartesian3D);
    set("FieldLayers/ShowContour", 1);
    set("FieldLayers/ShowMesh", 1);
    kernel.mouseModes().set(MouseMode_Rotate);
}

/* The button pressed, moved or released at a place. */
void send(QWidget& widget, QEvent::Type type, QPointF place)
{
    const Qt::MouseButton button = type == QEvent::MouseMove ? Qt::NoButton : Qt::LeftButton;
    const Qt::MouseButtons held = type == QEvent::MouseButtonRelease ? Qt::NoButton : Qt::LeftButton;
    QMouseEvent event(type, place, widget.mapToGlobal(place), button, held, Qt::NoModifier);
    QCoreApplication::sendEvent(&widget, &event);
}

void rotate(benchmark::State& state)
{
    if (!canRun(state)) {
        return;
    }
    openFile();
    view::WorkArea area(kernel::Kernel::instance());
    area.resize(size);
    area.show();
    // A window that is not exposed is not painted.
    while (!area.windowHandle()->isExposed()) {
        QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
    }
    area.fitPaper();
    area.repaint();
    QPointF place(400.0, 300.0);
    send(area, QEvent::MouseButtonPress, place);
    const long before = area.renderer().renderCount();
    long steps = 0;
    for (auto _ : state) {
        place.rx() += steps % 200 < 100 ? 1.0 : -1.0;
        ++steps;
        send(area, QEvent::MouseMove, place);
    }
    const long drawn = area.renderer().renderCount() - before;
    if (drawn < steps) {
        state.SkipWithError(
            ("of " + std::to_string(steps) + " steps " + std::to_string(drawn) + " were drawn").c_str());
    }
    send(area, QEvent::MouseButtonRelease, place);
    state.counters["frames"] = benchmark::Counter(double(steps), benchmark::Counter::kIsRate);
}
BENCHMARK(rotate)->Name("rotate/ours")->Unit(benchmark::kMillisecond)->UseRealTime();

void rotateActor(benchmark::State& state)
{
    if (!canRun(state)) {
        return;
    }
    openFile();
    const kernel::DataSet& data = *kernel::Kernel::instance().document().activeFrame()->dataSet();
    vtkNew<vtkAppendPolyData> all;
    for (long zone = 1; zone <= data.zoneCount(); ++zone) {
        vtkNew<vtkDataSetSurfaceFilter> surface;
        surface->SetInputData(kernel::zoneShape(data, zone, {1, 2, 3}));
        surface->Update();
        all->AddInputData(surface->GetOutput());
    }
    vtkNew<vtkPolyDataMapper> mapper;
    mapper->SetInputConnection(all->GetOutputPort());
    vtkNew<vtkActor> actor;
    actor->SetMapper(mapper);
    vtkNew<vtkRenderer> renderer;
    renderer->AddActor(actor);
    view::OffscreenWindow window;
    renderer->ResetCamera();
    for (auto _ : state) {
        renderer->GetActiveCamera()->Azimuth(0.4);
        benchmark::DoNotOptimize(window.render(renderer, size, 0));
    }
    window.forget(renderer);
}
BENCHMARK(rotateActor)->Name("rotate/bound")->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
