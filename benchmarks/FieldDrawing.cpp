// Turning the plot of the largest real file with the mouse, and changing the colour of one zone's mesh, in a work area
// of 800 x 600, beside VTK doing so with the same surfaces as one actor. Needs a display that VTK can render on.

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
#include <vtkProperty.h>
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

void set(const char* path, long value, long zone = -1)
{
    kernel::Kernel& kernel = kernel::Kernel::instance();
    kernel.lock().start(true);
    kernel.style().set(kernel.style().entry(path), zone, -1, value);
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

/* The file in a work area on the screen, painted once. */
class ShownFile
{
public:
    ShownFile()
        : area((openFile(), kernel::Kernel::instance()))
    {
        area.resize(size);
        area.show();
        // A window that is not exposed is not painted.
        while (!area.windowHandle()->isExposed()) {
            QCoreApplication::processEvents(QEventLoop::WaitForMoreEvents);
        }
        area.fitPaper();
        area.repaint();
    }

    view::WorkArea area;
};

/* All surfaces of the file as one actor, rendered by VTK alone. */
class OneActor
{
public:
    OneActor()
    {
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
        actor->SetMapper(mapper);
        renderer->AddActor(actor);
        renderer->ResetCamera();
    }
    ~OneActor() { m_window.forget(renderer); }
    OneActor(const OneActor&) = delete;
    OneActor& operator=(const OneActor&) = delete;

    void render(int samples) { benchmark::DoNotOptimize(m_window.render(renderer, size, samples)); }

    vtkNew<vtkActor> actor;
    vtkNew<vtkRenderer> renderer;

private:
    view::OffscreenWindow m_window;
};

void rotate(benchmark::State& state)
{
    if (!canRun(state)) {
        return;
    }
    ShownFile shown;
    view::WorkArea& area = shown.area;
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
    OneActor shown;
    for (auto _ : state) {
        shown.renderer->GetActiveCamera()->Azimuth(0.4);
        shown.render(0);
    }
}
BENCHMARK(rotateActor)->Name("rotate/bound")->Unit(benchmark::kMillisecond)->UseRealTime();

void changeColor(benchmark::State& state)
{
    if (!canRun(state)) {
        return;
    }
    ShownFile shown;
    const view::PageRenderer& renderer = shown.area.renderer();
    const long frame = kernel::Kernel::instance().document().activeFrame()->id();
    const long geometries = renderer.geometryCount(frame);
    const long before = renderer.renderCount();
    long changes = 0;
    for (auto _ : state) {
        set("FieldMap/Mesh/Color", 1 + ++changes % 2, 1);
        shown.area.repaint();
    }
    if (renderer.renderCount() - before != changes || renderer.geometryCount(frame) != geometries) {
        state.SkipWithError("a change was not drawn, or geometry was made anew");
    }
}
BENCHMARK(changeColor)->Name("color_change/ours")->Unit(benchmark::kMillisecond)->UseRealTime();

void changeActorColor(benchmark::State& state)
{
    if (!canRun(state)) {
        return;
    }
    constexpr int smooth = 8; /* samples, as a plot at rest has them */
    OneActor shown;
    shown.actor->GetProperty()->EdgeVisibilityOn();
    bool isRed = false;
    for (auto _ : state) {
        isRed = !isRed;
        shown.actor->GetProperty()->SetEdgeColor(isRed, 0.0, !isRed);
        shown.render(smooth);
    }
}
BENCHMARK(changeActorColor)->Name("color_change/bound")->Unit(benchmark::kMillisecond)->UseRealTime();

} // namespace
