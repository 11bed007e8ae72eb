#pragma once

#include "propertymanager/UILocalStyleProperty.h"
#include "propertymanager/generated/ThreedAxisScalePropertiesGenerated.h"
#include "propertymanager/managers/axis/AutoAdjustToNiceValuesProperty.h"
#include "propertymanager/managers/axis/AxisEditPropertiesManagerAbstract.h"
#include "propertymanager/managers/axis/ThetaModeStringProperty.h"
#include "propertymanager/managers/axis/UseLogScaleProperty.h"

namespace vantrix::sdk::ui::propertymanager {

/// The range of the current axis, how its scale runs, and how it depends on the other axes of the plot. What the plot
/// or the axis does not have stands for a like value of another one; the relevances tell what is meaningful.
class AxisEditRangePageManager : public AxisEditPropertiesManagerAbstract
{
public:
    enum ResetRange_e
    {
        ResetToEntireCircle = 0,
        ResetToNiceValues = 1,
        ResetToVariableMinMax = 2,
        ResetToNonBlankedMinMax = 3,
        MakeCurrentValuesNice = 4
    };

    enum ThetaResetMode_e
    {
        MinusPiToPiRadians = 0,
        ZeroToTwoPiRadians = 1,
        Minus180To180Degrees = 2,
        Zero360Degrees = 3,
        FitToVariableMinMax = 4
    };

    explicit AxisEditRangePageManager(AxisEditProperties& properties);

    UIStylePropertyAbstract<double>& getMin() { return *m_min; }
    UIStylePropertyAbstract<double>& getMax() { return *m_max; }
    UIStylePropertyAbstract<bool>& getPreserveLength() { return *m_preserveLength; }
    UIStylePropertyAbstract<bool>& getReverseDirection() { return *m_reverseDirection; }
    UIStylePropertyAbstract<bool>& getUseLogScale() { return m_useLogScale; }
    UIStylePropertyAbstract<bool>& getClipData() { return *m_clipData; }
    UIStylePropertyAbstract<bool>& getAutoAdjustToNiceValues() { return m_autoAdjustToNiceValues; }
    UIStylePropertyAbstract<AxisMode_e>& getAxisMode() { return *m_axisMode; }
    UIStylePropertyAbstract<double>& getXtoYRatio() { return *m_xToYRatio; }
    UIStylePropertyAbstract<double>& getXtoZRatio() { return m_xToZRatio; }
    UIStylePropertyAbstract<double>& getXSizeFactor() { return *m_xSizeFactor; }
    UIStylePropertyAbstract<double>& getYSizeFactor() { return *m_ySizeFactor; }
    UIStylePropertyAbstract<double>& getZSizeFactor() { return *m_zSizeFactor; }
    UIStylePropertyAbstract<std::string>& getThetaMode() { return m_thetaModeString; }
    UIStylePropertyAbstract<double>& getThetaPeriod() { return m_thetaPeriod; }
    UIStylePropertyAbstract<double>& getThetaValueOnCircleRight() { return m_thetaOrigin; }
    UIStylePropertyAbstract<double>& getROrigin() { return m_rOrigin; }

    /// What the ratio of X to Y is called in the present plot.
    UIStylePropertyAbstract<std::string>& getXtoYRatioLabel() { return m_xToYRatioLabel; }

    /// Whether the host lets X and Y of the active frame depend on each other.
    Relevance dependentAxesAllowedRelevance() const { return m_dependentAxesAllowed; }
    /// Whether X and Y are in proportion, and X and Z.
    Relevance xyDependentRelevance() const { return m_xyDependent; }
    Relevance xyzDependentRelevance() const { return m_xyzDependent; }
    /// Whether the sizes of Y and of Z are given by factors of their own, not by their proportion to X.
    Relevance ySizeRelevance() const { return m_ySizeRelevance; }
    Relevance zSizeRelevance() const { return m_zSizeRelevance; }
    Relevance logScaleRelevance() const { return m_logScaleRelevance; }
    Relevance autoAdjustRelevance() const { return m_autoAdjustRelevance; }
    /// Whether the length of an axis and its range can change without each other.
    Relevance flatRelevance() const { return m_autoAdjustRelevance; }
    Relevance flatDependencyRelevance() const { return m_flatDependencyRelevance; }
    Relevance threeDRelevance() const { return m_threeDRelevance; }
    Relevance polarRelevance() const { return m_polarRelevance; }
    Relevance thetaRelevance() const { return m_thetaRelevance; }
    Relevance rRelevance() const { return m_rRelevance; }

    /// Gives the current axis another range; one step of undo. The host's refusal is told to the user.
    void resetRange(ResetRange_e reset);

    /// Gives a polar plot another unit of angles and the range that belongs to it; one step of undo.
    void resetThetaMode(ThetaResetMode_e mode);

    /// Puts the size factors and the dependency of 3D axes back to what suits the data.
    void reset3DScaleFactors();

    void update() override;
    void onStateChange(toolbox::StateChangeEventInterface const& event,
                       integration::StateChangeNotifierInterface& notifier) override;

private:
    static bool isXYLineAxisStateChange(toolbox::StateChangeEventInterface const& event);
    boost::shared_ptr<PropertyAbstract<CoordScale_e>> coordScale() const;
    boost::shared_ptr<PropertyAbstract<bool>> autoAdjust() const;
    boost::shared_ptr<PropertyAbstract<bool>> preserveAxisScale() const;
    boost::shared_ptr<PropertyAbstract<bool>> clipData() const;
    bool fitThetaToVariable();
    Relevance whileAxisModeIsOneOf(std::initializer_list<AxisMode_e> modes, std::string reason);

    boost::shared_ptr<UIStylePropertyAbstract<double>> m_min;
    boost::shared_ptr<UIStylePropertyAbstract<double>> m_max;
    boost::shared_ptr<UIStylePropertyAbstract<bool>> m_preserveLength;
    boost::shared_ptr<UIStylePropertyAbstract<bool>> m_reverseDirection;
    boost::shared_ptr<UIStylePropertyAbstract<CoordScale_e>> m_coordScale;
    UseLogScaleProperty m_useLogScale;
    boost::shared_ptr<UIStylePropertyAbstract<bool>> m_clipData;
    boost::shared_ptr<UIStylePropertyAbstract<bool>> m_autoAdjust;
    AutoAdjustToNiceValuesProperty m_autoAdjustToNiceValues;
    boost::shared_ptr<UIStylePropertyAbstract<AxisMode_e>> m_axisMode;
    boost::shared_ptr<UIStylePropertyAbstract<double>> m_xToYRatio;
    UIStylePropertyProxy<double> m_xToZRatio;
    ThreedAxisScalePropertiesGenerated m_scale;
    boost::shared_ptr<UIStylePropertyAbstract<double>> m_xSizeFactor;
    boost::shared_ptr<UIStylePropertyAbstract<double>> m_ySizeFactor;
    boost::shared_ptr<UIStylePropertyAbstract<double>> m_zSizeFactor;
    UIStylePropertyProxy<double> m_thetaPeriod;
    UIStylePropertyProxy<ThetaMode_e> m_thetaMode;
    ThetaModeStringProperty m_thetaModeString;
    UIStylePropertyProxy<double> m_thetaOrigin;
    UIStylePropertyProxy<double> m_rOrigin;
    UILocalStyleProperty<std::string> m_xToYRatioLabel;
    Relevance m_dependentAxesAllowed;
    Relevance m_xyDependent;
    Relevance m_xyzDependent;
    Relevance m_ySizeRelevance;
    Relevance m_zSizeRelevance;
    Relevance m_logScaleRelevance;
    Relevance m_autoAdjustRelevance;
    Relevance m_flatDependencyRelevance;
    Relevance m_threeDRelevance;
    Relevance m_polarRelevance;
    Relevance m_thetaRelevance;
    Relevance m_rRelevance;
};

} // namespace vantrix::sdk::ui::propertymanager
