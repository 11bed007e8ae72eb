#pragma once

#include "propertymanager/SpinBoxIncDecCalculatorBase.h"

#include <functional>

namespace vantrix::sdk::ui::propertymanager {

/// Which axis of a line plot is probed along.
enum LineProbeAxis_e
{
    LineProbeAxis_X = 0,
    LineProbeAxis_Y = 1,
    LineProbeAxis_Theta = 2,
    LineProbeAxis_R = 3
};

/// Steps a position on an axis of a line plot by one twentieth of the axis' range.
class LineProbePosSpinBoxIncDecCalculator : public SpinBoxIncDecCalculatorBase
{
public:
    /// An axis and its number, from 1.
    struct Axis
    {
        LineProbeAxis_e axis;
        short number;
    };

    /// @param chosenAxis  tells the axis at the time of each step
    explicit LineProbePosSpinBoxIncDecCalculator(std::function<Axis()> chosenAxis);

    /// 0 when the range cannot be read.
    double delta() override;

private:
    std::function<Axis()> m_chosenAxis;
};

} // namespace vantrix::sdk::ui::propertymanager
