#include "ui/models/StreamTraceTypeListModel.h"

#include "api/VtxUtilFrame.h"
#include "sdk/StateChangeEventObservable.h"

#include <span>

namespace vantrix::sdk::ui::dialogs::propertybindings::models {

namespace {

struct Row
{
    Streamtrace_e type;
    char const* text;
};

constexpr Row ROWS_2D[] = {{Streamtrace_TwoDLine, "2D Line"}};
constexpr Row ROWS_3D[] = {{Streamtrace_SurfaceLine, "Surface Line"},
                           {Streamtrace_VolumeLine, "Volume Line"},
                           {Streamtrace_VolumeRibbon, "Volume Ribbon"},
                           {Streamtrace_VolumeRod, "Volume Rod"}};

std::span<Row const> rows(bool isTwoDimensional)
{
    return isTwoDimensional ? std::span<Row const>(ROWS_2D) : std::span<Row const>(ROWS_3D);
}

} // namespace

StreamTraceTypeListModel::StreamTraceTypeListModel()
    : m_isTwoDimensional(frameIsTwoDimensional())
    , m_connection(integration::StateChangeEventObservable::getInstance().connect(
          [this](toolbox::StateChangeEventInterface const& event) { stateChanged(event); }))
{}

StreamTraceTypeListModel::~StreamTraceTypeListModel() = default;

int StreamTraceTypeListModel::size() const
{
    return static_cast<int>(rows(m_isTwoDimensional).size());
}

Streamtrace_e StreamTraceTypeListModel::get(int row) const
{
    return rows(m_isTwoDimensional)[static_cast<std::size_t>(row)].type;
}

std::string StreamTraceTypeListModel::getStr(int row) const
{
    return rows(m_isTwoDimensional)[static_cast<std::size_t>(row)].text;
}

void StreamTraceTypeListModel::stateChanged(toolbox::StateChangeEventInterface const& event)
{
    if (event.kind() == StateChange_Quit) {
        m_connection.disconnect();
        return;
    }
    bool const isTwoDimensional = frameIsTwoDimensional();
    if (isTwoDimensional != m_isTwoDimensional) {
        m_isTwoDimensional = isTwoDimensional;
        m_dataChanged();
    }
}

bool StreamTraceTypeListModel::frameIsTwoDimensional()
{
    return VtxUtilFrameGetPlotType() == PlotType_Cartesian2D;
}

} // namespace vantrix::sdk::ui::dialogs::propertybindings::models
