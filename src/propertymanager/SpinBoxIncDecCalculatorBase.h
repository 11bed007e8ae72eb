#pragma once

namespace vantrix::sdk::ui::propertymanager {

/// Decides what the next value of a spin box is, up and down. Here: by a fixed step.
class SpinBoxIncDecCalculatorBase
{
public:
    /// @param baseDelta  the step
    explicit SpinBoxIncDecCalculatorBase(double baseDelta);
    virtual ~SpinBoxIncDecCalculatorBase() = default;

    /// The value after as many steps as one input of the user makes, up when positive: one for an arrow, more for a
    /// page key or a fast wheel. increment() or decrement() is asked once, with their number as delta factor.
    double afterSteps(double current, int steps);

    /// The next value, deltaFactor() steps away.
    virtual double increment(double current);
    virtual double decrement(double current);

    /// How far increment() and decrement() go: the step times deltaFactor().
    virtual double delta();

    /// How many steps the present keyboard or mouse input is worth; 0 for no step, 1 outside of an input.
    virtual int deltaFactor() const { return m_deltaFactor; }

    /// @param factor  at least 0
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
