#include "propertymanager/LineProbePosSpinBoxIncDecCalculator.h"

#include "toolbox/StyleValue.h"

namespace vantrix::sdk::ui::propertymanager {

using toolbox::StyleValue;

LineProbePosSpinBoxIncDecCalculator::LineProbePosSpinBoxIncDecCalculator(std::function<Axis()> chosenAxis)
    : SpinBoxIncDecCalculatorBase(1.0)
    , m_chosenAxis(std::move(chosenAxis))
{}

double LineProbePosSpinBoxIncDecCalculator::delta()
{
    Axis const chosen = m_chosenAxis();
    bool const isPolar = chosen.axis == LineProbeAxis_Theta || chosen.axis == LineProbeAxis_R;
    char const* const axes = isPolar ? "PolarAxis" : "XYLineAxis";
    char const* const details[] = {"XDetail", "YDetail", "ThetaDetail", "RDetail"};
    long const offset = isPolar ? -1 : chosen.number;
    double minimum = 0.0;
    double maximum = 0.0;
    bool const isRead =
        StyleValue(axes, details[chosen.axis], "RangeMin").getValue(&minimum, offset) == GetValueReturnCode_Ok &&
        StyleValue(axes, details[chosen.axis], "RangeMax").getValue(&maximum, offset) == GetValueReturnCode_Ok;
    return isRead ? deltaFactor() * (maximum - minimum) / 20.0 : 0.0;
}

} // namespace vantrix::sdk::ui::propertymanager
