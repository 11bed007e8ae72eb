#include "propertymanager/managers/axis/AxisEditRangePageManager.h"

#include "api/VtxUtil.h"
#include "propertymanager/PropertyDependentRelevance.h"
#include "propertymanager/managers/DecoratedProperty.h"
#include "propertymanager/managers/axis/SizeFactor.h"
#include "sdk/AppLock.h"
#include "toolbox/ArgList.h"
#include "toolbox/HostString.h"
#include "ui/relevance/StateChangeDependentRelevance.h"

#include <numbers>

namespace vantrix::sdk::ui::propertymanager {

namespace {

using Detail = AxisDetailPropertiesGenerated;

/// Grid lines of a full circle.
constexpr double ThetaGridLines = 12.0;

struct ThetaRange
{
    ThetaMode_e mode;
    double period;
    double minimum;
};

ThetaRange thetaRange(AxisEditRangePageManager::ThetaResetMode_e mode)
{
    constexpr double Pi = std::numbers::pi;
    switch (mode) {
    case AxisEditRangePageManager::MinusPiToPiRadians:
        return {ThetaMode_Radians, 2 * Pi, -Pi};
    case AxisEditRangePageManager::ZeroToTwoPiRadians:
        return {ThetaMode_Radians, 2 * Pi, 0};
    case AxisEditRangePageManager::Minus180To180Degrees:
        return {ThetaMode_Degrees, 360, -180};
    default:
        return {ThetaMode_Degrees, 360, 0};
    }
}

/// Does something to the axes as one step and tells the user why the host refused it, if it did.
template<typename Action>
bool tellRefusal(Action&& action)
{
    AppLock const lock;
    if (action()) {
        return true;
    }
    VtxUtilDialogErrMsg(toolbox::takeHostString(VtxUtilGetLastErrorString()).c_str());
    return false;
}

/// The minimum stays below the maximum in between: the host refuses anything else.
void setInOrder(Detail const& axis, double minimum, double maximum)
{
    bool const isMinimumFirst = minimum < axis.getMax()->value();
    if (!isMinimumFirst) {
        axis.getMax()->setValue(maximum);
    }
    axis.getMin()->setValue(minimum);
    if (isMinimumFirst) {
        axis.getMax()->setValue(maximum);
    }
}

bool isXYDependentAllowed()
{
    AppLock const lock(false);
    return VtxUtilFrameGetCount() > 0 && VtxUtilQueryIsXYDependentAllowedForFrame(VtxUtilFrameGetUniqueID());
}

bool fitToNonBlankedData(char axis, int number)
{
    PlotType_e const plotType = VtxUtilFrameGetPlotType();
    toolbox::ArgList arguments;
    arguments.appendArbParam("ViewOP", ViewOp_AxisFit);
    arguments.appendArbParam("Axis", axis);
    arguments.appendArbParam("AxisNum", number);
    arguments.appendArbParam("ConsiderBlanking", plotType == PlotType_Cartesian3D || plotType == PlotType_Cartesian2D);
    return VtxUtilViewX(arguments.handle());
}

} // namespace

AxisEditRangePageManager::AxisEditRangePageManager(AxisEditProperties& properties)
    : AxisEditPropertiesManagerAbstract(properties)
    , m_min(follow([this] { return detail(); }, &Detail::getMin))
    , m_max(follow([this] { return detail(); }, &Detail::getMax))
    , m_preserveLength(follow<bool>([this] { return preserveAxisScale(); }))
    , m_reverseDirection(follow([this] { return detail(); }, &Detail::getIsReversed))
    , m_coordScale(follow<CoordScale_e>([this] { return coordScale(); }))
    , m_useLogScale(*m_coordScale)
    , m_clipData(follow<bool>([this] { return clipData(); }))
    , m_autoAdjust(follow<bool>([this] { return autoAdjust(); }))
    , m_autoAdjustToNiceValues(*m_autoAdjust, properties)
    , m_axisMode(follow([this] { return xyAxes(); }, &XYAxisPropertiesGenerated::getAxismode))
    , m_xToYRatio(follow([this] { return xyAxes(); }, &XYAxisPropertiesGenerated::getDepxtoyratio))
    , m_xToZRatio(*properties.getThreedAxis()->getDepxtozratio())
    , m_scale(false, {"GlobalThreeD", "AxisScale"})
    , m_xSizeFactor(newDecorated<SizeFactor>(m_scale.getXScale(), nullptr))
    , m_ySizeFactor(newDecorated<SizeFactor>(m_scale.getYScale(), nullptr))
    , m_zSizeFactor(newDecorated<SizeFactor>(m_scale.getZScale(), nullptr))
    , m_thetaPeriod(*properties.getPolarAxis()->getThetaperiod())
    , m_thetaMode(*properties.getPolarAxis()->getThetamode())
    , m_thetaModeString(m_thetaMode, m_thetaPeriod)
    , m_thetaOrigin(*properties.getPolarAxis()->getThetaDetail()->getValueatorigin())
    , m_rOrigin(*properties.getPolarAxis()->getRDetail()->getValueatorigin())
    , m_xToYRatioLabel(std::string())
    , m_dependentAxesAllowed(boost::make_shared<StateChangeDependentRelevance const>(
          &isXYDependentAllowed, "Axes with a logarithmic scale, or more than one of a kind, are independent."))
    , m_xyDependent(whileAxisModeIsOneOf({AxisMode_XYDependent, AxisMode_XYZDependent}, "X and Y are independent."))
    , m_xyzDependent(whileAxisModeIsOneOf({AxisMode_XYZDependent}, "Z is independent."))
    , m_ySizeRelevance(whileAxisModeIsOneOf({AxisMode_Independent}, "The size of Y follows from that of X."))
    , m_zSizeRelevance(
          whileAxisModeIsOneOf({AxisMode_Independent, AxisMode_XYDependent}, "The size of Z follows from that of X."))
    , m_logScaleRelevance(whileAxis(
          [this] { return VtxUtilFrameGetPlotType() == PlotType_XYLine || this->properties().axisChar() == 'R'; }))
    , m_autoAdjustRelevance(whilePlotType({PlotType_XYLine, PlotType_Sketch, PlotType_Cartesian2D}))
    , m_flatDependencyRelevance(whilePlotType({PlotType_XYLine, PlotType_Cartesian2D}))
    , m_threeDRelevance(whilePlotType({PlotType_Cartesian3D}))
    , m_polarRelevance(whilePlotType({PlotType_PolarLine}))
    , m_thetaRelevance(whileAxis([this] { return this->properties().axisChar() == 'T'; }))
    , m_rRelevance(whileAxis([this] { return this->properties().axisChar() == 'R'; }))
{
    update();
}

AxisEditRangePageManager::Relevance
AxisEditRangePageManager::whileAxisModeIsOneOf(std::initializer_list<AxisMode_e> modes, std::string reason)
{
    auto const relevance = boost::make_shared<PropertyDependentRelevance<AxisMode_e>>(*m_axisMode, *modes.begin());
    for (AxisMode_e const mode : modes) {
        relevance->addRelevantValue(mode);
    }
    relevance->setReason(std::move(reason));
    return relevance;
}

boost::shared_ptr<PropertyAbstract<CoordScale_e>> AxisEditRangePageManager::coordScale() const
{
    if (auto const polar = properties().getPolarDetail()) {
        return polar->getCoordScale();
    }
    auto const axes = properties().getXyLineAxis();
    bool const isX = properties().axisType() == AxisEditProperties::FirstAxis;
    return (isX ? axes->getXDetail() : axes->getYDetail())->getCoordScale();
}

boost::shared_ptr<PropertyAbstract<bool>> AxisEditRangePageManager::autoAdjust() const
{
    switch (VtxUtilFrameGetPlotType()) {
    case PlotType_XYLine:
        return properties().getXyLineAxis()->getAutoadjustrangestonicevalues();
    case PlotType_Sketch:
        return properties().getSketchAxis()->getAutoadjustrangestonicevalues();
    default:
        return properties().getTwodAxis()->getAutoadjustrangestonicevalues();
    }
}

boost::shared_ptr<PropertyAbstract<bool>> AxisEditRangePageManager::preserveAxisScale() const
{
    auto const axes = properties().axis();
    return (axes ? *axes : *properties().getTwodAxis()).getPreserveAxisScale();
}

boost::shared_ptr<PropertyAbstract<bool>> AxisEditRangePageManager::clipData() const
{
    auto const polar = properties().getPolarDetail();
    return (polar ? polar : properties().getPolarAxis()->getThetaDetail())->getClipData();
}

void AxisEditRangePageManager::resetRange(ResetRange_e reset)
{
    char const axis = properties().axisChar();
    int const number = properties().axisNum();
    tellRefusal([&] {
        switch (reset) {
        case ResetToEntireCircle:
            return VtxUtilViewAxisFitToEntireCircle(axis, number);
        case ResetToNiceValues:
            return VtxUtilViewAxisNiceFit(axis, number);
        case ResetToVariableMinMax:
            return VtxUtilViewAxisFit(axis, number);
        case ResetToNonBlankedMinMax:
            return fitToNonBlankedData(axis, number);
        case MakeCurrentValuesNice:
            return VtxUtilViewAxisMakeCurValsNice(axis, number);
        }
        return true;
    });
}

void AxisEditRangePageManager::resetThetaMode(ThetaResetMode_e mode)
{
    AppLock const lock;
    auto const theta = properties().getPolarAxis()->getThetaDetail();
    if (mode == FitToVariableMinMax) {
        m_thetaMode.setValue(ThetaMode_Arbitrary);
        theta->getValueatorigin()->setValue(0);
        if (!fitThetaToVariable()) {
            VtxUtilLockRollBack();
        }
        return;
    }
    ThetaRange const range = thetaRange(mode);
    m_thetaMode.setValue(range.mode);
    m_thetaPeriod.setValue(range.period);
    theta->getValueatorigin()->setValue(0);
    setInOrder(*theta, range.minimum, range.minimum + range.period);
    theta->getGrSpacing()->setValue(range.period / ThetaGridLines);
}

bool AxisEditRangePageManager::fitThetaToVariable()
{
    auto const preserve = properties().getPolarAxis()->getPreserveAxisScale();
    bool const preserved = preserve->value();
    preserve->setValue(false);
    bool const isFitted = tellRefusal([] { return VtxUtilViewAxisFit('T', 1); });
    preserve->setValue(preserved);

    auto const theta = properties().getPolarAxis()->getThetaDetail();
    double const length = theta->getMax()->value() - theta->getMin()->value();
    if (length > 0) {
        theta->getGrSpacing()->setValue(length / ThetaGridLines);
    }
    return isFitted;
}

void AxisEditRangePageManager::reset3DScaleFactors()
{
    tellRefusal([] { return VtxUtilReset3DScaleFactors(); });
}

void AxisEditRangePageManager::update()
{
    AxisEditPropertiesManagerAbstract::update();
    bool const isXYLine = VtxUtilFrameGetPlotType() == PlotType_XYLine;
    m_xToYRatioLabel.setValue(isXYLine ? "X1 to Y1 Ratio" : "X to Y Ratio");
}

void AxisEditRangePageManager::onStateChange(toolbox::StateChangeEventInterface const& event,
                                             integration::StateChangeNotifierInterface& /*notifier*/)
{
    if (isXYLineAxisStateChange(event)) {
        update();
    }
}

bool AxisEditRangePageManager::isXYLineAxisStateChange(toolbox::StateChangeEventInterface const& event)
{
    switch (event.kind()) {
    case StateChange_HistoryStep:
    case StateChange_FrameDeleted:
        return true;
    case StateChange_Style:
        return event.styleParam(1) == "XYLineAxis" || event.styleParam(1) == "Linking";
    default:
        return false;
    }
}

} // namespace vantrix::sdk::ui::propertymanager
