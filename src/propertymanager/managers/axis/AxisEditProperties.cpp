#include "propertymanager/managers/axis/AxisEditProperties.h"

#include "api/VtxUtilFrame.h"
#include "propertymanager/managers/axis/AxisEditPropertiesListenerInterface.h"

#include <algorithm>

namespace vantrix::sdk::ui::propertymanager {

AxisEditProperties::AxisEditProperties()
    : AxisEditPropertiesGenerated(false, toolbox::StringList())
{
    getXyLineAxis()->getXDetail()->setCollectionOffset(1);
    getXyLineAxis()->getYDetail()->setCollectionOffset(1);
}

void AxisEditProperties::setAxis(Axis_e axis)
{
    m_axisType = axis;
    notifyListeners();
}

void AxisEditProperties::setXYLineAxisNum(int number)
{
    axisDetailForXYAxis(*getXyLineAxis())->setCollectionOffset(number);
    notifyListeners();
}

void AxisEditProperties::notifyListeners()
{
    auto const listeners = m_listeners;
    for (AxisEditPropertiesListenerInterface* listener : listeners) {
        // One that was removed by another one may be gone.
        if (m_listeners.contains(listener)) {
            listener->currentAxisChanged(*this);
        }
    }
}

int AxisEditProperties::axisNum() const
{
    auto const detail = axisDetail();
    return detail ? std::max(1, detail->collectionOffset()) : 1;
}

char AxisEditProperties::axisChar() const
{
    bool const isPolar = VtxUtilFrameGetPlotType() == PlotType_PolarLine;
    switch (m_axisType) {
    case FirstAxis:
        return isPolar ? 'T' : 'X';
    case SecondAxis:
        return isPolar ? 'R' : 'Y';
    case ThirdAxis:
        return 'Z';
    }
    return '\0';
}

boost::shared_ptr<AxisPropertiesGenerated> AxisEditProperties::axis() const
{
    if (VtxUtilFrameGetPlotType() == PlotType_PolarLine) {
        return getPolarAxis();
    }
    return xyAxis();
}

boost::shared_ptr<XYAxisPropertiesGenerated> AxisEditProperties::xyAxis() const
{
    switch (VtxUtilFrameGetPlotType()) {
    case PlotType_Cartesian3D:
        return getThreedAxis();
    case PlotType_Cartesian2D:
        return getTwodAxis();
    case PlotType_XYLine:
        return getXyLineAxis();
    case PlotType_Sketch:
        return getSketchAxis();
    default:
        return {};
    }
}

boost::shared_ptr<AxisDetailPropertiesGenerated> AxisEditProperties::axisDetail() const
{
    if (VtxUtilFrameGetPlotType() == PlotType_PolarLine) {
        return m_axisType == FirstAxis ? getPolarAxis()->getThetaDetail() : getPolarAxis()->getRDetail();
    }
    if (m_axisType == ThirdAxis && VtxUtilFrameGetPlotType() == PlotType_Cartesian3D) {
        return getThreedAxis()->getZDetail();
    }
    auto const axes = xyAxis();
    return axes ? axisDetailForXYAxis(*axes) : nullptr;
}

boost::shared_ptr<AxisDetailPropertiesGenerated>
AxisEditProperties::axisDetailForXYAxis(XYAxisPropertiesGenerated& axes) const
{
    return m_axisType == FirstAxis ? axes.getXDetail() : axes.getYDetail();
}

boost::shared_ptr<PolarDetailPropertiesGenerated> AxisEditProperties::getPolarDetail() const
{
    if (VtxUtilFrameGetPlotType() != PlotType_PolarLine || m_axisType == ThirdAxis) {
        return {};
    }
    return m_axisType == FirstAxis ? getPolarAxis()->getThetaDetail() : getPolarAxis()->getRDetail();
}

} // namespace vantrix::sdk::ui::propertymanager
