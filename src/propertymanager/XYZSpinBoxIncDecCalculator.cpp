#include "propertymanager/XYZSpinBoxIncDecCalculator.h"

#include "api/VtxUtil.h"
#include "toolbox/StyleValue.h"

namespace vantrix::sdk::ui::propertymanager {

using toolbox::StyleValue;

namespace {

double gridSpacing(char const* axisDetail)
{
    double spacing = 0.0;
    StyleValue("TwoDAxis", axisDetail, "GRSpacing").getValue(&spacing);
    return spacing;
}

double twentiethOfZRange()
{
    // A failed read leaves 0, which no variable has: the step is then 0.
    long variable = 0;
    StyleValue("ThreeDAxis", "ZDetail", "VarNum").getValue(&variable);
    double minimum = 0.0;
    double maximum = 0.0;
    return VtxUtilVarGetMinMax(variable, &minimum, &maximum) ? (maximum - minimum) / 20.0 : 0.0;
}

} // namespace

XYZSpinBoxIncDecCalculator::XYZSpinBoxIncDecCalculator(Var_e coordinate)
    : SpinBoxIncDecCalculatorBase(1.0)
    , m_coordinate(coordinate)
{}

double XYZSpinBoxIncDecCalculator::delta()
{
    int const factor = deltaFactor();
    if (factor == 0) {
        return 0.0;
    }
    switch (VtxUtilFrameGetPlotType()) {
    case PlotType_Cartesian2D:
        return factor * gridSpacing(m_coordinate == Y ? "YDetail" : "XDetail");
    case PlotType_Cartesian3D:
        return factor * twentiethOfZRange();
    default:
        return 0.0;
    }
}

} // namespace vantrix::sdk::ui::propertymanager
