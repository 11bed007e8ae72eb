#pragma once

#include "propertymanager/managers/axis/AxisEditProperties.h"
#include "propertymanager/managers/axis/AxisEditPropertiesListenerInterface.h"
#include "propertymanager/managers/axis/CurrentAxisProperty.h"
#include "propertymanager/managers/axis/CurrentAxisRelevance.h"
#include "sdk/StateChangeNotifierInterface.h"

#include <boost/make_shared.hpp>

#include <initializer_list>
#include <memory>
#include <vector>

namespace vantrix::sdk::ui::propertymanager {

/// What a page of the axis dialog edits: properties and relevances that follow the axis being edited. They are aimed
/// anew when another axis is chosen, when another frame becomes active, and when the type of the plot changes.
class AxisEditPropertiesManagerAbstract
{
public:
    template<typename T>
    using Shared = boost::shared_ptr<PropertyAbstract<T>>;
    using Relevance = boost::shared_ptr<RelevanceInterface const>;

    /// Whether there is a frame.
    static bool contextIsValid();

    /// Holds while contextIsValid(); one for the process.
    static Relevance relevance();

    virtual ~AxisEditPropertiesManagerAbstract();

    /// Aims everything at the axis that is now being edited.
    virtual void update();

    /// Any state change that is no reason for update() by itself. Does nothing here.
    virtual void onStateChange(toolbox::StateChangeEventInterface const& event,
                               integration::StateChangeNotifierInterface& notifier);

protected:
    /// @param properties  outlives the manager
    explicit AxisEditPropertiesManagerAbstract(AxisEditProperties& properties);

    AxisEditProperties& properties() const { return m_properties; }

    /// The current axis; any axis for a plot of an unknown type, so that there is always something to stand for.
    boost::shared_ptr<AxisDetailPropertiesGenerated> detail() const;

    /// The axes of the current plot that have X and Y, the same way.
    boost::shared_ptr<XYAxisPropertiesGenerated> xyAxes() const;

    /// A property of the current axis. `find` gives the one that is meant, never null.
    template<typename T>
    boost::shared_ptr<CurrentAxisProperty<T>> follow(typename CurrentAxisProperty<T>::Find find)
    {
        auto property = boost::make_shared<CurrentAxisProperty<T>>(std::move(find));
        m_followers.push_back(property);
        return property;
    }

    /// The same of one set: `findSet` gives the set of the current axis, `getter` is a getter of it.
    template<typename T, typename FindSet, typename Set>
    boost::shared_ptr<CurrentAxisProperty<T>> follow(FindSet findSet, Shared<T> (Set::*getter)() const)
    {
        return follow<T>([findSet = std::move(findSet), getter] { return ((*findSet()).*getter)(); });
    }

    /// Relevant while the predicate holds for the current axis.
    Relevance whileAxis(std::function<bool()> predicate);

    /// Relevant while the active frame's plot is of one of these types.
    Relevance whilePlotType(std::initializer_list<PlotType_e> types);

private:
    class AxisEditPropertiesListener;
    class StateChangeListener;

    AxisEditProperties& m_properties;
    std::vector<boost::shared_ptr<CurrentAxisPropertyInterface>> m_followers;
    std::vector<boost::shared_ptr<CurrentAxisRelevance const>> m_relevances;
    std::unique_ptr<AxisEditPropertiesListener> m_axisListener;
    std::unique_ptr<StateChangeListener> m_stateChangeListener;
};

} // namespace vantrix::sdk::ui::propertymanager
