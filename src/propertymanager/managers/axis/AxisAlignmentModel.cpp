#include "propertymanager/managers/axis/AxisAlignmentModel.h"

#include "api/VtxUtilFrame.h"
#include "propertymanager/managers/axis/AxisEditProperties.h"
#include "sdk/StateChangeEventObservable.h"

namespace vantrix::sdk::ui::dialogs::propertybindings::models {

using propertymanager::AxisEditProperties;

AxisAlignmentModel::AxisAlignmentModel(AxisEditProperties& properties)
    : m_properties(properties)
{
    initValueLists();
    setModeForCurrentPlotType();
    m_properties.addListener(&m_axisListener);
    m_stateChangeConnection = integration::StateChangeEventObservable::getInstance().connect(
        [this](toolbox::StateChangeEventInterface const& event) {
            if (event.kind() != StateChange_Quit) {
                setModeForCurrentPlotType();
            }
        });
}

AxisAlignmentModel::~AxisAlignmentModel()
{
    m_properties.removeListener(&m_axisListener);
}

void AxisAlignmentModel::initValueLists()
{
    m_rows = {{{{"Y Value", AxisAlignment_OpposingAxisValue},
                {"Bottom", AxisAlignment_GridMin},
                {"Top", AxisAlignment_GridMax},
                {"Viewport", AxisAlignment_Viewport}},
               {{"X Value", AxisAlignment_OpposingAxisValue},
                {"Left", AxisAlignment_GridMin},
                {"Right", AxisAlignment_GridMax},
                {"Viewport", AxisAlignment_Viewport}},
               {{"R Value", AxisAlignment_OpposingAxisValue},
                {"Inner Circle", AxisAlignment_GridMin},
                {"Outer Circle", AxisAlignment_GridMax}},
               {{"Theta Value", AxisAlignment_OpposingAxisValue},
                {"Grid Border Start", AxisAlignment_GridMin},
                {"Grid Border End", AxisAlignment_GridMax},
                {"Specific Angle", AxisAlignment_SpecificAngle},
                {"Top of Grid Area", AxisAlignment_GridAreaTop},
                {"Bottom of Grid Area", AxisAlignment_GridAreaBottom},
                {"Left of Grid Area", AxisAlignment_GridAreaLeft},
                {"Right of Grid Area", AxisAlignment_GridAreaRight}}}};
}

void AxisAlignmentModel::setModeForCurrentPlotType()
{
    PlotType_e const plotType = VtxUtilFrameGetPlotType();
    if (plotType < PlotType_Cartesian3D || plotType > PlotType_PolarLine) {
        return;
    }
    bool const isFirst = m_properties.axisType() == AxisEditProperties::FirstAxis;
    std::size_t const mode = (plotType == PlotType_PolarLine ? 2U : 0U) + (isFirst ? 0U : 1U);
    if (mode != m_mode) {
        m_mode = mode;
        m_dataChanged();
    }
}

int AxisAlignmentModel::size() const
{
    return static_cast<int>(m_rows[m_mode].size());
}

AxisAlignment_e AxisAlignmentModel::get(int row) const
{
    return m_rows[m_mode].at(static_cast<std::size_t>(row)).second;
}

std::string AxisAlignmentModel::getStr(int row) const
{
    return m_rows[m_mode].at(static_cast<std::size_t>(row)).first;
}

} // namespace vantrix::sdk::ui::dialogs::propertybindings::models
