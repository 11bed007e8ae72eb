#pragma once

#include "kernel/AxisPlace.h"
#include "kernel/AxisVariables.h"

#include <array>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <vector>

class vtkDataArray;

namespace vantrix::kernel {

class StyleStore;
struct BlankedZone;
struct ValueRange;

/*
 * The ranges of the axes of a frame's plot: to fit them to data, to make them nice, to step through them. What changes
 * something throws DataError, and has changed nothing, for an axis that the plot does not have and where there is
 * nothing to fit to.
 */
class AxisRanges
{
public:
    /* Of the frame's plot, or of the plot of another type that it could have. */
    AxisRanges(StyleStore& style, const Frame& frame);
    AxisRanges(StyleStore& style, const Frame& frame, PlotType_e plotType);

    /* See VtxUtilViewAxisFit(), VtxUtilViewAxisNiceFit(), VtxUtilViewAxisFitToEntireCircle() and
     * VtxUtilViewAxisMakeCurValsNice(). */
    void fit(AxisName axis);
    /* The same to what value blanking leaves. */
    void fitToUnblanked(AxisName axis);
    void niceFit(AxisName axis);
    void fitToEntireCircle(AxisName axis);
    void makeNice(AxisName axis);

    /* Lets the range of a logarithmic axis begin at the power of ten below the smallest value above 0 that is shown
     * over it. Its maximum stays where it can. */
    void raiseAboveZero(AxisName axis);

    /* Fits every axis of the plot that shows data, and lets the whole of a 3D plot be seen. */
    void fitAll(bool nice);

    /* See VtxUtilAxisGetNextRangeValue(). */
    double nextValue(AxisName axis, double value, bool up, bool nice) const;

    /* See VtxUtilAxisGetTickSpacing(). */
    double tickSpacing(AxisName axis) const;

    /* See VtxUtilReset3DScaleFactors(). */
    void reset3DScaleFactors();

    /* What makes axes whose ranges have such lengths equally long; all 1 where the lengths suit each other as they are.
     * A length of 0 counts for nothing. */
    static std::array<double, 3> sizeFactors(const std::array<double, 3>& lengths);

    /* See VtxUtilQueryIsXYDependentAllowedForFrame(). */
    bool isXYDependentAllowed() const;

    /* See VtxUtilAxisGetVarAssignments(). */
    AxisVariables variables() const;

private:
    struct Limits
    {
        double minimum;
        double maximum;
    };
    /* The values of a zone, and the points that are left out, if any. */
    struct Values
    {
        vtkDataArray& array;
        std::shared_ptr<const BlankedZone> blanked;
    };
    enum class Blanking
    {
        Ignored,
        Considered
    };

    AxisPlace place(AxisName axis) const { return AxisPlace::find(m_frame, m_plotType, axis); }
    double real(AxisName axis, const char* value) const;
    bool isLogarithmic(AxisName axis) const;
    bool isOfLinePlot() const;

    void forEachArray(AxisName axis, Blanking blanking, const std::function<void(const Values&)>& use) const;
    std::optional<ValueRange> dataRange(AxisName axis, Blanking blanking = Blanking::Ignored) const;
    ValueRange expectedDataRange(AxisName axis, Blanking blanking = Blanking::Ignored) const;
    void fit(AxisName axis, Blanking blanking);
    Limits nice(AxisName axis, Limits limits) const;
    static double steppedByFactor(Limits range, double value, bool up, bool isNice);
    static double steppedBySpacing(Limits range, double value, bool up, bool isNice);
    void set(AxisName axis, Limits limits);
    void setReal(long entry, double value, long offset = -1);

    StyleStore& m_style;
    const Frame& m_frame;
    PlotType_e m_plotType;
};

} // namespace vantrix::kernel
