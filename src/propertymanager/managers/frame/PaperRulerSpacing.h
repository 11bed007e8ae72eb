#pragma once

#include "styleproperties/KernelProperty.h"

namespace vantrix::sdk::ui::propertymanager {

/// The unit in which the paper's rulers count, read from "Paper" / "RulerSpacing" of the active page.
class PaperRulerSpacing
{
public:
    PaperRulerSpacing();

    /// The present code, a PaperUnitSpacing_e.
    int code() const { return m_code.value(); }

    /// Ruler units in an inch under the present code.
    double unitsPerInch() const { return unitsPerInch(code()); }

    /// Centimetres under 1 and 2, inches under 5, points under 9 and 10; 0 under any other code, which has no factor.
    static double unitsPerInch(int code);

    /// Connects a slot `void()`, called whenever another code is found after a state change of the host.
    template<typename Slot>
    boost::signals2::connection connectToChangedSignal(Slot const& slot)
    {
        return m_code.connectToValueChangedSignal(boost::bind(slot));
    }

private:
    styleproperties::KernelProperty<int> m_code;
};

} // namespace vantrix::sdk::ui::propertymanager
