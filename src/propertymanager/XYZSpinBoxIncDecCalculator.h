#pragma once

#include "propertymanager/SpinBoxIncDecCalculatorBase.h"

namespace vantrix::sdk::ui::propertymanager {

/// Steps a coordinate of the active frame's plot: in 2D by the grid spacing of its axis, in 3D by one twentieth of the
/// range of the variable on the Z axis, whichever coordinate it is. Elsewhere it does not move.
class XYZSpinBoxIncDecCalculator : public SpinBoxIncDecCalculatorBase
{
public:
    enum Var_e
    {
        X = 0,
        Y = 1,
        Z = 2
    };

    explicit XYZSpinBoxIncDecCalculator(Var_e coordinate);

    double delta() override;

private:
    Var_e m_coordinate;
};

} // namespace vantrix::sdk::ui::propertymanager
