#include "kernel/ShownVariables.h"

#include "kernel/AxisVariables.h"
#include "kernel/StyleStore.h"
#include "kernel/ValueBlanking.h"

namespace vantrix::kernel {

namespace {

/* Reads style values of one frame by their paths. */
class FrameStyle
{
public:
    FrameStyle(const StyleStore& store, const Frame& frame)
        : m_store(store)
        , m_frame(frame.id())
    {}

    bool flag(const char* path, long offset = -1) const { return m_store.flag(m_frame, m_store.entry(path), offset); }
    long integer(const char* path, long offset = -1) const
    {
        return m_store.integer(m_frame, m_store.entry(path), offset);
    }

private:
    const StyleStore& m_store;
    long m_frame;
};

void addContours(const FrameStyle& style, const DataSet& data, std::set<long>& shown)
{
    if (!style.flag("FieldLayers/ShowContour")) {
        return;
    }
    std::set<long> groups;
    for (long zone = 1; zone <= data.zoneCount(); ++zone) {
        if (style.flag("ActiveFieldMaps", zone) && style.flag("FieldMap/Contour/Show", zone)) {
            groups.insert(style.integer("FieldMap/Contour/FloodColoring", zone));
            groups.insert(style.integer("FieldMap/Contour/LineContourGroup", zone));
        }
    }
    for (const long group : groups) {
        if (group >= 1 && group <= 8) {
            shown.insert(style.integer("GlobalContour/Var", group));
        }
    }
}

void addLineMaps(const FrameStyle& style, std::set<long>& shown)
{
    const long count = style.integer("FrameSetup/NumLineMaps");
    for (long map = 1; map <= count; ++map) {
        if (style.flag("ActiveLineMaps", map)) {
            shown.insert(style.integer("LineMap/Assignment/XAxisVar", map));
            shown.insert(style.integer("LineMap/Assignment/YAxisVar", map));
        }
    }
}

} // namespace

std::set<long> shownVariables(const StyleStore& store, const Frame& frame)
{
    const DataSet* data = frame.dataSet().get();
    if (!data) {
        return {};
    }
    const FrameStyle style(store, frame);
    const AxisVariables axes = axisVariables(store, frame);
    std::set<long> shown{axes.x, axes.y, axes.z};
    switch (style.integer("PlotType")) {
    case PlotType_Cartesian2D:
    case PlotType_Cartesian3D:
        addContours(style, *data, shown);
        for (const char* path : {"GlobalStream/UVar", "GlobalStream/VVar", "GlobalStream/WVar", "GlobalScatter/Var",
                                 "GlobalRGB/RedVar", "GlobalRGB/GreenVar", "GlobalRGB/BlueVar"}) {
            shown.insert(style.integer(path));
        }
        break;
    case PlotType_XYLine:
    case PlotType_PolarLine:
        addLineMaps(style, shown);
        break;
    default:
        break;
    }
    for (const BlankingConstraint& constraint : ValueBlanking::read(store, frame).constraints) {
        shown.insert({constraint.variable, constraint.otherVariable});
    }
    shown.erase(0);
    return shown;
}

} // namespace vantrix::kernel
