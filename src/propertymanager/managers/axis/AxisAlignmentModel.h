#pragma once

#include "propertybindings/ListedTypes.h"
#include "propertybindings/models/ListModelAbstract.h"
#include "propertymanager/managers/axis/AxisEditPropertiesListenerInterface.h"
#include "toolbox/StateChangeEventInterface.h"

#include <array>
#include <vector>

#include <boost/signals2.hpp>

namespace vantrix::sdk::ui::propertymanager {
class AxisEditProperties;
}

namespace vantrix::sdk::ui::dialogs::propertybindings::models {

/// What the line of the axis being edited can be placed by: what that is called depends on the type of the plot and on
/// which axis it is. Announces changed data when the choices change.
class AxisAlignmentModel : public ListModelAbstract<AxisAlignment_e>
{
public:
    /// @param properties  outlives the model
    explicit AxisAlignmentModel(propertymanager::AxisEditProperties& properties);
    ~AxisAlignmentModel() override;

    int size() const override;
    AxisAlignment_e get(int row) const override;
    std::string getStr(int row) const override;

private:
    using Row = std::pair<std::string, AxisAlignment_e>;

    /// Chooses again when another axis is edited.
    class AxisListener : public propertymanager::AxisEditPropertiesListenerInterface
    {
    public:
        explicit AxisListener(AxisAlignmentModel& model)
            : m_model(model)
        {}
        void currentAxisChanged(propertymanager::AxisEditProperties&) override { m_model.setModeForCurrentPlotType(); }

    private:
        AxisAlignmentModel& m_model;
    };

    void initValueLists();
    void setModeForCurrentPlotType();

    propertymanager::AxisEditProperties& m_properties;
    std::array<std::vector<Row>, 4> m_rows;
    std::size_t m_mode = 0;
    AxisListener m_axisListener{*this};
    boost::signals2::scoped_connection m_stateChangeConnection;
};

} // namespace vantrix::sdk::ui::dialogs::propertybindings::models
