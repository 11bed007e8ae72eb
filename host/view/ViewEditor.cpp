#include "view/ViewEditor.h"

#include "kernel/ApplicationLock.h"
#include "kernel/AxisRangeRules.h"
#include "kernel/DataError.h"
#include "kernel/DataSet.h"
#include "kernel/Document.h"
#include "kernel/Kernel.h"
#include "kernel/StyleActions.h"
#include "kernel/StyleStore.h"
#include "kernel/UndoStack.h"

#include <algorithm>
#include <cassert>
#include <cmath>
#include <optional>
#include <vector>

namespace vantrix::view {
namespace {

/* Null also for a variable that cannot be read any more. */
vtkSmartPointer<vtkDataArray> valuesOf(const kernel::FieldArray* field)
{
    try {
        return field ? field->load() : nullptr;
    } catch (const kernel::DataError&) {
        return nullptr;
    }
}

struct Bounds
{
    double minimum = 0.0;
    double maximum = 0.0;
    bool isEmpty = true;

    void include(const kernel::FieldArray* field)
    {
        const auto values = valuesOf(field);
        if (!values || values->GetNumberOfTuples() == 0) {
            return;
        }
        std::array<double, 2> range{};
        values->GetFiniteRange(range.data());
        if (range[0] > range[1]) {
            return;
        }
        minimum = isEmpty ? range[0] : std::min(minimum, range[0]);
        maximum = isEmpty ? range[1] : std::max(maximum, range[1]);
        isEmpty = false;
    }
};

/* Of what is shown over an axis; `number` counts the axes of an XY line plot. */
Bounds shownBounds(const kernel::DataSet& dataSet, const PlotStyle& style, std::size_t kind, int number)
{
    Bounds bounds;
    for (const ZoneStyle& zone : style.zones) {
        bounds.include(dataSet.field(zone.zone, style.axes[kind].variable));
    }
    for (const LineMapStyle& map : style.lineMaps) {
        const int axis = style.type == PlotType_PolarLine ? 1 : kind == 0 ? map.xAxis : map.yAxis;
        if (axis == number) {
            bounds.include(dataSet.field(map.zone, kind == 0 ? map.xVariable : map.yVariable));
        }
    }
    return bounds;
}

/* The axes of a flat plot with their scales. */
std::vector<FramePlot::MoreScale> allScales(const FramePlot& plot)
{
    std::vector<FramePlot::MoreScale> scales = plot.moreScales;
    scales.push_back({0, 1, *plot.x});
    scales.push_back({1, 1, *plot.y});
    return scales;
}

const char* axesOf(PlotType_e type)
{
    switch (type) {
    case PlotType_XYLine:
        return "XYLineAxis";
    case PlotType_Sketch:
        return "SketchAxis";
    default:
        return "TwoDAxis";
    }
}

double wrapped(double degrees)
{
    const double turn = std::fmod(degrees, 360.0);
    return turn < 0.0 ? turn + 360.0 : turn;
}

} // namespace

void ViewEditor::begin(const std::string& name)
{
    if (!m_isEditing) {
        m_isEditing = true;
        m_kernel.lock().start(true);
        m_kernel.undoStack().nameStep(name);
    }
}

void ViewEditor::end()
{
    if (m_isEditing) {
        m_isEditing = false;
        m_kernel.lock().finish();
    }
}

void ViewEditor::write([[maybe_unused]] const kernel::Frame& frame, const std::string& path,
                       const kernel::StyleData& value, long offset)
{
    assert(m_kernel.document().activeFrame() == &frame);
    kernel::StyleActions::set(m_kernel.style().entry(path.c_str()), {offset}, -1, value);
}

void ViewEditor::writeRange(const kernel::Frame& frame, const std::string& detail, long offset, double minimum,
                            double maximum)
{
    if (!std::isfinite(minimum) || !std::isfinite(maximum) || !(maximum > minimum)) {
        return;
    }
    const kernel::StyleStore& style = m_kernel.style();
    const double present = style.real(frame.id(), style.entry((detail + "RangeMax").c_str()), offset);
    kernel::writeAxisRange(present, minimum, maximum,
                           [&](const char* end, double value) { write(frame, detail + end, value, offset); });
}

void ViewEditor::writeRange(const kernel::Frame& frame, const FramePlot& plot, std::size_t kind, int number,
                            double minimum, double maximum)
{
    const std::string detail = std::string(axesOf(plot.style.type)) + (kind == 0 ? "/XDetail/" : "/YDetail/");
    writeRange(frame, detail, plot.style.type == PlotType_XYLine ? number : -1, minimum, maximum);
}

void ViewEditor::showRect(const kernel::Frame& frame, const FramePlot& plot, const QRectF& rect)
{
    if (plot.camera) {
        const QPointF middle = plot.onPicture(rect.center());
        const double factor = std::min(plot.area.width() / rect.width(), plot.area.height() / rect.height());
        const View3D moved = plot.camera->moved(-middle);
        const Camera3D camera(moved, {}, plot.area.width() / plot.area.height());
        writeView(frame, plot, camera.magnified(factor, {0.0, 0.0}));
        return;
    }
    if (!plot.x || !plot.y) {
        return;
    }
    QRectF shown = rect;
    if (plot.style.xToYRatio > 0.0) {
        // Axes that depend on each other keep the shape of the plot.
        const double factor = std::max(rect.width() / plot.area.width(), rect.height() / plot.area.height());
        shown.setSize(plot.area.size() * factor);
        shown.moveCenter(rect.center());
    }
    for (const auto& [kind, number, scale] : allScales(plot)) {
        const double size = kind == 0 ? plot.area.width() : plot.area.height();
        const double from = kind == 0 ? shown.left() - plot.area.left() : plot.area.bottom() - shown.bottom();
        const double to = kind == 0 ? shown.right() - plot.area.left() : plot.area.bottom() - shown.top();
        const double first = scale.value(from / size);
        const double last = scale.value(to / size);
        writeRange(frame, plot, kind, number, std::min(first, last), std::max(first, last));
    }
}

void ViewEditor::move(const kernel::Frame& frame, const FramePlot& plot, QPointF by)
{
    if (plot.camera) {
        writeView(frame, plot, plot.camera->moved({by.x() / plot.area.width(), -by.y() / plot.area.width()}));
    } else {
        showRect(frame, plot, plot.area.translated(-by));
    }
}

void ViewEditor::magnify(const kernel::Frame& frame, const FramePlot& plot, double factor, QPointF about)
{
    if (plot.camera) {
        writeView(frame, plot, plot.camera->magnified(factor, plot.onPicture(about)));
        return;
    }
    if (plot.polar) {
        const AxisScale& r = plot.polar->r();
        const AxisScale inOrder(r.minimum(), r.maximum(), r.isLogarithmic());
        writeRange(frame, "PolarAxis/RDetail/", -1, r.minimum(), inOrder.value(1.0 / factor));
        return;
    }
    const QPointF topLeft = about + (plot.area.topLeft() - about) / factor;
    showRect(frame, plot, QRectF(topLeft, plot.area.size() / factor));
}

void ViewEditor::turn(const kernel::Frame& frame, const FramePlot& plot, double theta, double psi)
{
    if (!plot.camera) {
        return;
    }
    const View3D& view = plot.style.view;
    if (plot.style.resetsEdges) {
        for (std::size_t axis = 0; axis < 3; ++axis) {
            if (plot.style.axes[axis].line.edge != 0) {
                constexpr std::array<const char*, 3> details{"XDetail", "YDetail", "ZDetail"};
                write(frame, std::string("ThreeDAxis/") + details[axis] + "/AxisLine/Edge", 0L);
            }
        }
    }
    writeView(frame, plot,
              plot.camera->turned(std::clamp(view.psi + psi, 0.0, 180.0), wrapped(view.theta + theta), view.alpha));
}

void ViewEditor::writeView(const kernel::Frame& frame, const FramePlot& plot, const View3D& view)
{
    write(frame, "ThreeDView/PsiAngle", view.psi);
    write(frame, "ThreeDView/ThetaAngle", view.theta);
    write(frame, "ThreeDView/AlphaAngle", view.alpha);
    write(frame, "ThreeDView/ViewWidth", view.width);
    const std::array<double, 3>& scale = plot.style.axisScale;
    write(frame, "ThreeDView/ViewerPosition/X", view.position[0] / scale[0]);
    write(frame, "ThreeDView/ViewerPosition/Y", view.position[1] / scale[1]);
    write(frame, "ThreeDView/ViewerPosition/Z", view.position[2] / scale[2]);
}

void ViewEditor::fit(const kernel::Frame& frame, const FramePlot& plot)
{
    if (plot.camera) {
        for (const char* coordinate : {"X", "Y", "Z"}) {
            write(frame, std::string("ThreeDView/ViewerPosition/") + coordinate, 0.0);
        }
        return;
    }
    if (!frame.dataSet()) {
        return;
    }
    if (plot.polar) {
        const Bounds bounds = shownBounds(*frame.dataSet(), plot.style, 1, 1);
        if (!bounds.isEmpty) {
            const AxisScale usable(std::min(bounds.minimum, plot.style.axes[1].valueAtOrigin), bounds.maximum,
                                   plot.style.axes[1].isLogarithmic);
            writeRange(frame, "PolarAxis/RDetail/", -1, usable.minimum(), usable.maximum());
        }
        return;
    }
    if (!plot.x || !plot.y) {
        return;
    }
    for (const auto& [kind, number, scale] : allScales(plot)) {
        const Bounds bounds = shownBounds(*frame.dataSet(), plot.style, kind, number);
        if (!bounds.isEmpty) {
            const AxisScale usable(bounds.minimum, bounds.maximum, scale.isLogarithmic());
            writeRange(frame, plot, kind, number, usable.minimum(), usable.maximum());
        }
    }
}

} // namespace vantrix::view
