#pragma once

#include "propertymanager/managers/axis/AxisEditPropertiesManagerAbstract.h"

namespace vantrix::sdk::ui::propertymanager {

/// Which axes the plot has to choose from, and whether the chosen one is shown.
class AxisEditPropertiesManager : public AxisEditPropertiesManagerAbstract
{
public:
    explicit AxisEditPropertiesManager(AxisEditProperties& properties);

    /// Whether the current axis is drawn.
    UIStylePropertyAbstract<bool>& getShowAxis() { return m_showAxis; }

    /// Which family of axes the plot has; one of the four holds.
    Relevance polarLineAxisRelevance() const { return m_polarLineAxisRelevance; }
    Relevance xyLineAxisRelevance() const { return m_xyLineAxisRelevance; }
    Relevance twoDAxisRelevance() const { return m_twoDAxisRelevance; }
    Relevance threeDAxisRelevance() const { return m_threeDAxisRelevance; }

    /// A third axis is left for the first one where the plot has none.
    void update() override;

private:
    UIStylePropertyProxy<bool> m_showAxis;
    Relevance m_polarLineAxisRelevance;
    Relevance m_xyLineAxisRelevance;
    Relevance m_twoDAxisRelevance;
    Relevance m_threeDAxisRelevance;
};

} // namespace vantrix::sdk::ui::propertymanager
