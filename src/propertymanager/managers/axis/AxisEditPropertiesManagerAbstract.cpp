#include "propertymanager/managers/axis/AxisEditPropertiesManagerAbstract.h"

#include "api/VtxUtilFrame.h"
#include "sdk/AppLock.h"
#include "sdk/StateChangeEventObservable.h"
#include "ui/relevance/StateChangeDependentRelevance.h"

#include <algorithm>

namespace vantrix::sdk::ui::propertymanager {

class AxisEditPropertiesManagerAbstract::AxisEditPropertiesListener : public AxisEditPropertiesListenerInterface
{
public:
    explicit AxisEditPropertiesListener(AxisEditPropertiesManagerAbstract& manager)
        : m_manager(manager)
    {
        m_manager.m_properties.addListener(this);
    }
    ~AxisEditPropertiesListener() override { m_manager.m_properties.removeListener(this); }

    void currentAxisChanged(AxisEditProperties&) override { m_manager.update(); }

private:
    AxisEditPropertiesManagerAbstract& m_manager;
};

class AxisEditPropertiesManagerAbstract::StateChangeListener
{
public:
    explicit StateChangeListener(AxisEditPropertiesManagerAbstract& manager)
        : m_manager(manager)
        , m_connection(integration::StateChangeEventObservable::getInstance().connect(
              [this](toolbox::StateChangeEventInterface const& event) {
                  stateChanged(event, integration::StateChangeEventObservable::getInstance());
              }))
    {}

private:
    void stateChanged(toolbox::StateChangeEventInterface const& event,
                      integration::StateChangeNotifierInterface& notifier)
    {
        if (event.kind() == StateChange_Quit || !contextIsValid()) {
            return;
        }
        bool const isPlotType = event.kind() == StateChange_Style && event.styleParam(1) == "PlotType";
        if (isPlotType || event.kind() == StateChange_NewActiveFrame || event.kind() == StateChange_NewLayout) {
            m_manager.update();
        } else {
            m_manager.onStateChange(event, notifier);
        }
    }

    AxisEditPropertiesManagerAbstract& m_manager;
    boost::signals2::scoped_connection m_connection;
};

bool AxisEditPropertiesManagerAbstract::contextIsValid()
{
    AppLock const lock(false);
    return VtxUtilFrameGetCount() > 0;
}

AxisEditPropertiesManagerAbstract::Relevance AxisEditPropertiesManagerAbstract::relevance()
{
    static auto const relevance = boost::make_shared<StateChangeDependentRelevance const>(
        &AxisEditPropertiesManagerAbstract::contextIsValid, "There is no frame whose axes could be edited.");
    return relevance;
}

AxisEditPropertiesManagerAbstract::AxisEditPropertiesManagerAbstract(AxisEditProperties& properties)
    : m_properties(properties)
    , m_axisListener(std::make_unique<AxisEditPropertiesListener>(*this))
    , m_stateChangeListener(std::make_unique<StateChangeListener>(*this))
{}

AxisEditPropertiesManagerAbstract::~AxisEditPropertiesManagerAbstract() = default;

boost::shared_ptr<AxisDetailPropertiesGenerated> AxisEditPropertiesManagerAbstract::detail() const
{
    auto const current = m_properties.axisDetail();
    return current ? current : m_properties.getTwodAxis()->getXDetail();
}

boost::shared_ptr<XYAxisPropertiesGenerated> AxisEditPropertiesManagerAbstract::xyAxes() const
{
    auto const current = m_properties.xyAxis();
    return current ? current : m_properties.getTwodAxis();
}

void AxisEditPropertiesManagerAbstract::update()
{
    for (auto const& property : m_followers) {
        property->update();
    }
    for (auto const& relevance : m_relevances) {
        relevance->update();
    }
}

void AxisEditPropertiesManagerAbstract::onStateChange(toolbox::StateChangeEventInterface const&,
                                                      integration::StateChangeNotifierInterface&)
{}

AxisEditPropertiesManagerAbstract::Relevance
AxisEditPropertiesManagerAbstract::whileAxis(std::function<bool()> predicate)
{
    m_relevances.push_back(boost::make_shared<CurrentAxisRelevance const>(std::move(predicate)));
    return m_relevances.back();
}

AxisEditPropertiesManagerAbstract::Relevance
AxisEditPropertiesManagerAbstract::whilePlotType(std::initializer_list<PlotType_e> types)
{
    return whileAxis([types = std::vector<PlotType_e>(types)] {
        return std::find(types.begin(), types.end(), VtxUtilFrameGetPlotType()) != types.end();
    });
}

} // namespace vantrix::sdk::ui::propertymanager
