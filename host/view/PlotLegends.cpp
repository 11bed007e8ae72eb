#include "view/PlotLegends.h"

#include "kernel/PickList.h"

#include <algorithm>
#include <set>

namespace vantrix::view {
namespace {

constexpr double mostOfWidth = 0.4; /* that a column takes of what is there */
constexpr double mostOfHeight = 0.3;

void addFlood(std::set<long>& groups, const ContourStyle& contour)
{
    if (contour.hasFlood()) {
        groups.insert(contour.floodGroup);
    }
}

void addStreamtraces(std::set<long>& groups, const StreamtraceStyle& style, const kernel::TracedStreamtraces& drawn)
{
    for (const kernel::TracedStreamtrace& each : drawn) {
        const Streamtrace_e type = each.streamtrace->type;
        if (type != Streamtrace_VolumeRibbon && type != Streamtrace_VolumeRod) {
            groups.insert(style.hasPaths ? style.line.color.contourGroup : 0);
            groups.insert(style.hasMarks ? style.mark.color.contourGroup : 0);
        } else {
            addFlood(groups, style.rodRibbon.contour);
            groups.insert(style.rodRibbon.contour.hasLines() ? style.rodRibbon.contour.lineGroup : 0);
        }
    }
}

/* The contour groups that something in the plot has its colours from. */
std::set<long> groupsInUse(const PlotStyle& style, const kernel::TracedStreamtraces* drawn)
{
    std::set<long> groups;
    if (drawn && style.streamtraces.isShown) {
        addStreamtraces(groups, style.streamtraces, *drawn);
    }
    for (const ZoneStyle& zone : style.zones) {
        const ContourStyle& contour = zone.contour;
        addFlood(groups, contour);
        if (contour.hasLines()) {
            groups.insert(contour.lineColor.contourGroup > 0 ? contour.lineColor.contourGroup : contour.lineGroup);
        }
        const auto addColor = [&](bool isShown, const LayerColor& color) {
            groups.insert(isShown ? color.contourGroup : 0);
        };
        addColor(zone.mesh.isShown, zone.mesh.color);
        addColor(zone.vector.isShown, zone.vector.color);
        addColor(zone.scatter.isShown, zone.scatter.color);
        addColor(zone.scatter.isShown && zone.scatter.isFilled, zone.scatter.fill);
    }
    return groups;
}

} // namespace

PlotLegends::PlotLegends(const Canvas& canvas, double frameHeight, const PlotStyle& style,
                         const kernel::TracedStreamtraces* drawn)
    : m_canvas(canvas)
    , m_isThreeD(style.type == PlotType_Cartesian3D)
    , m_gap(0.012 * frameHeight * canvas.inch)
    , m_scatter(canvas, frameHeight, style)
    , m_lines(canvas, frameHeight, style)
{
    std::vector<bool> areUpright;
    for (const long number : groupsInUse(style, drawn)) {
        if (number < 1 || number > long(style.contourGroups.size())) {
            continue;
        }
        const ContourGroupStyle& group = style.contourGroups[std::size_t(number - 1)];
        if (group.legend.isShown && !group.levels.empty()) {
            m_contours.emplace_back(canvas, frameHeight, group);
            areUpright.push_back(group.isLegendUpright);
        }
    }
    for (std::size_t i = 0; i < m_contours.size(); ++i) {
        add(PickObject_ContourLegend, m_contours[i], areUpright[i], areUpright[i]);
    }
    if (m_scatter.isShown()) {
        add(PickObject_None, m_scatter, true, false);
    }
    if (m_lines.isShown()) {
        add(PickObject_LineLegend, m_lines, true, false);
    }
}

template<class Kind>
void PlotLegends::add(PickObject_e object, const Kind& legend, bool isUpright, bool fillsColumn)
{
    m_legends.push_back({object, legend.style().isPlaced, isUpright, fillsColumn, legend.size(),
                         [&legend](const QRectF& frame) { return legend.placedRect(frame); },
                         [&legend](const QRectF& rect) { legend.paint(rect); }});
}

double PlotLegends::columnWidth(const QRectF& inside) const
{
    double width = 0.0;
    for (const Legend& legend : m_legends) {
        if (!legend.isPlaced && legend.isUpright) {
            width = std::max(width, legend.size.width());
        }
    }
    return std::min(width, mostOfWidth * inside.width());
}

double PlotLegends::rowHeight(const QRectF& inside) const
{
    double height = 0.0;
    for (const Legend& legend : m_legends) {
        if (!legend.isPlaced && !legend.isUpright) {
            height += legend.size.height() + m_gap;
        }
    }
    return std::min(height, mostOfHeight * inside.height());
}

QRectF PlotLegends::room(const QRectF& inside) const
{
    const double width = columnWidth(inside);
    const double height = rowHeight(inside);
    return inside.adjusted(0.0, 0.0, width > 0.0 ? -width - 3.0 * m_gap : 0.0, height > 0.0 ? -height - m_gap : 0.0);
}

void PlotLegends::paint(const QRectF& frame, const QRectF& inside, const QRectF& area) const
{
    const QRectF room = this->room(inside);
    const bool hasLines = m_lines.isShown() && !m_lines.style().isPlaced;
    const double left = m_isThreeD || hasLines ? room.right() + m_gap : area.right() + 2.0 * m_gap;
    QRectF column(left, m_isThreeD ? room.top() + 3.0 * m_gap : area.top(), columnWidth(inside),
                  m_isThreeD ? room.height() - 6.0 * m_gap : area.height());

    double fixed = 0.0; /* height of those that do not grow */
    double wanted = 0.0;
    int count = 0;
    for (const Legend& legend : m_legends) {
        if (!legend.isPlaced && legend.isUpright) {
            (legend.fillsColumn ? wanted : fixed) += legend.size.height();
            ++count;
        }
    }
    const double between = 2.0 * m_gap;
    const double needed = std::min(fixed + wanted + std::max(0, count - 1) * between, room.height() - 2.0 * m_gap);
    if (needed > column.height()) { // they keep their size beside a plot that is not as high
        const double most = room.bottom() - m_gap - needed;
        column.moveTop(
            std::clamp(column.center().y() - 0.5 * needed, room.top() + m_gap, std::max(room.top() + m_gap, most)));
        column.setHeight(needed);
    }
    const double growing = std::max(1.0, column.height() - fixed - std::max(0, count - 1) * between);
    const double share = wanted > growing ? growing / wanted : 1.0;
    const double all = fixed + share * wanted + std::max(0, count - 1) * between;
    double y = hasLines ? column.top() : std::max(column.top(), column.center().y() - 0.5 * all);
    double flatY = inside.bottom() - rowHeight(inside);
    for (const Legend& legend : m_legends) {
        if (legend.isPlaced) {
            paint(legend, legend.placedRect(frame));
        } else if (legend.isUpright) {
            const double height = legend.fillsColumn ? share * legend.size.height() : legend.size.height();
            paint(legend, {column.left(), y, column.width(), height});
            y += height + between;
        } else {
            const double width = std::min(legend.size.width(), inside.width());
            const double middle = m_isThreeD ? room.center().x() : area.center().x();
            const double x = std::clamp(middle - 0.5 * width, inside.left(), inside.right() - width);
            paint(legend, {x, flatY, width, legend.size.height()});
            flatY += legend.size.height() + m_gap;
        }
    }
}

void PlotLegends::paint(const Legend& legend, const QRectF& rect) const
{
    legend.paint(rect);
    if (legend.object != PickObject_None) {
        m_canvas.markArea({.type = legend.object}, rect);
    }
}

} // namespace vantrix::view
