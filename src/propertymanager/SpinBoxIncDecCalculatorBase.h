#pragma once

namespace vantrix::sdk::ui::propertymanager {

/// Decides what the next value of a spin box is, up and down. Here: by a fixed step.
class SpinBoxIncDecCalculatorBase
{
public:
    /// @param baseDelta  the step
    explicit SpinBoxIncDecCalculatorBase(double baseDelta);
    virtual ~SpinBoxIncDecCalculatorBase() = default;

    virtual double increment(double current);
    virtual double decrement(double current);

    /// How far one step goes.
    virtual double delta();

    /// How many steps the present keyboard or mouse input is worth; 0 for no step.
    virtual int deltaFactor() const { return m_deltaFactor; }

    /// Told by the spin box before each step; 1 at first.
    void setDeltaFactor(int factor) { m_deltaFactor = factor; }

    /// Another step from now on.
    virtual void setNewBaseValue(double baseDelta) { m_baseDelta = baseDelta; }

protected:
    double baseDelta() const { return m_baseDelta; }

private:
    double m_baseDelta;
    int m_deltaFactor = 1;
};

} // namespace vantrix::sdk::ui::propertymanager
