#pragma once

#include "propertymanager/generated/GridLinesPropertiesGenerated.h"
#include "propertymanager/generated/PreciseGridPropertiesGenerated.h"
#include "propertymanager/managers/axis/AxisEditPropertiesManagerAbstract.h"

namespace vantrix::sdk::ui::propertymanager {

/// Lines across the plot at the ticks of the current axis, and the dots where those of both axes meet.
class AxisEditGridPageManager : public AxisEditPropertiesManagerAbstract
{
public:
    explicit AxisEditGridPageManager(AxisEditProperties& properties);

    /// A value of the current axis' grid lines, or minor grid lines, or of the plot's dots.
    template<typename T, typename Set>
    Shared<T> gridLines(Shared<T> (Set::*getter)() const)
    {
        return follow([this] { return detail()->getGridLines(); }, getter);
    }
    template<typename T, typename Set>
    Shared<T> minorGridLines(Shared<T> (Set::*getter)() const)
    {
        return follow([this] { return detail()->getMinorGridLines(); }, getter);
    }
    template<typename T, typename Set>
    Shared<T> preciseGrid(Shared<T> (Set::*getter)() const)
    {
        return follow([this] { return findPreciseGrid(); }, getter);
    }

    /// Lines that run together at the centre can be cut off before it.
    Relevance cutoffRelevance() const { return m_cutoffRelevance; }
    Relevance preciseGridRelevance() const { return m_preciseGridRelevance; }

private:
    boost::shared_ptr<PreciseGridPropertiesGenerated> findPreciseGrid() const;

    Relevance m_cutoffRelevance;
    Relevance m_preciseGridRelevance;
};

} // namespace vantrix::sdk::ui::propertymanager
