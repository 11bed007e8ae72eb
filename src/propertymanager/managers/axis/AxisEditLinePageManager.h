#pragma once

#include "propertymanager/generated/AxisLinePropertiesGenerated.h"
#include "propertymanager/managers/axis/AxisAlignmentModel.h"
#include "propertymanager/managers/axis/AxisEditPropertiesManagerAbstract.h"

namespace vantrix::sdk::ui::propertymanager {

/// The line of the current axis and where it lies.
class AxisEditLinePageManager : public AxisEditPropertiesManagerAbstract
{
public:
    using AlignmentModel = dialogs::propertybindings::models::AxisAlignmentModel;

    explicit AxisEditLinePageManager(AxisEditProperties& properties);

    /// A value of the current axis' line.
    template<typename T, typename Set>
    Shared<T> axisLine(Shared<T> (Set::*getter)() const)
    {
        return follow([this] { return detail()->getAxisLine(); }, getter);
    }

    /// Whether 3D axes change to other edges when the view turns.
    Shared<bool> edgeAutoReset() const { return properties().getThreedAxis()->getEdgeAutoReset(); }

    /// What the line can be placed by.
    boost::shared_ptr<AlignmentModel> alignmentModel() const { return m_alignmentModel; }

    Relevance flatRelevance() const { return m_flatRelevance; }
    Relevance threeDRelevance() const { return m_threeDRelevance; }
    Relevance cartesianRelevance() const { return m_cartesianRelevance; }
    Relevance rRelevance() const { return m_rRelevance; }

private:
    boost::shared_ptr<AlignmentModel> m_alignmentModel;
    Relevance m_flatRelevance;
    Relevance m_threeDRelevance;
    Relevance m_cartesianRelevance;
    Relevance m_rRelevance;
};

} // namespace vantrix::sdk::ui::propertymanager
