#pragma once

#include "propertymanager/generated/AxisDetailPropertiesGenerated.h"
#include "propertymanager/generated/AxisEditPropertiesGenerated.h"
#include "propertymanager/generated/AxisPropertiesGenerated.h"
#include "propertymanager/generated/PolarAxisPropertiesGenerated.h"
#include "propertymanager/generated/PolarDetailPropertiesGenerated.h"
#include "propertymanager/generated/SketchAxisPropertiesGenerated.h"
#include "propertymanager/generated/ThreeDAxisPropertiesGenerated.h"
#include "propertymanager/generated/TwoDAxisPropertiesGenerated.h"
#include "propertymanager/generated/XYAxisPropertiesGenerated.h"
#include "propertymanager/generated/XYLineAxisPropertiesGenerated.h"
#include "propertymanager/generated/XYLineDetailPropertiesGenerated.h"

#include <set>

namespace vantrix::sdk::ui::propertymanager {

class AxisEditPropertiesListenerInterface;

/// The axes of the active frame's plot, and which of them is being edited. Edits reach the host at once.
class AxisEditProperties : public AxisEditPropertiesGenerated
{
public:
    enum Axis_e
    {
        FirstAxis = 0,  ///< X, theta in a polar plot
        SecondAxis = 1, ///< Y, R in a polar plot
        ThirdAxis = 2   ///< Z, of a 3D plot only
    };

    /// The first axis is edited, of an XY line plot number 1.
    AxisEditProperties();

    Axis_e axisType() const { return m_axisType; }

    /// Edits another axis, and tells the listeners.
    void setAxis(Axis_e axis);

    /// Edits another of the X axes of an XY line plot (Y axes, unless the axis type is the first), and tells the
    /// listeners.
    /// @param number  1 to 5
    void setXYLineAxisNum(int number);

    /// The number of the current axis, 1 where axes have none.
    int axisNum() const;

    /// 'X', 'Y', 'Z', in a polar plot 'T' and 'R': what the host's functions name the current axis by.
    char axisChar() const;

    /// The axes of the active frame's plot; null for a plot of an unknown type.
    boost::shared_ptr<AxisPropertiesGenerated> axis() const;

    /// The same where the plot has X and Y; null in a polar plot.
    boost::shared_ptr<XYAxisPropertiesGenerated> xyAxis() const;

    /// The current axis; null for a plot of an unknown type.
    boost::shared_ptr<AxisDetailPropertiesGenerated> axisDetail() const;

    /// X where the first axis is edited, else Y.
    boost::shared_ptr<AxisDetailPropertiesGenerated> axisDetailForXYAxis(XYAxisPropertiesGenerated& axes) const;

    /// The current axis of a polar plot; null for other plots, and for the third axis, which axisDetail() takes for R.
    boost::shared_ptr<PolarDetailPropertiesGenerated> getPolarDetail() const;

    /// Listeners are told in the order of their addresses; one that is added twice is told once. They are not owned and
    /// have to remove themselves before they go.
    void addListener(AxisEditPropertiesListenerInterface* listener) { m_listeners.insert(listener); }
    void removeListener(AxisEditPropertiesListenerInterface* listener) { m_listeners.erase(listener); }

private:
    void notifyListeners();

    Axis_e m_axisType = FirstAxis;
    std::set<AxisEditPropertiesListenerInterface*> m_listeners;
};

} // namespace vantrix::sdk::ui::propertymanager
