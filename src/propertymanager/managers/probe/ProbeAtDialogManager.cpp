#include "propertymanager/managers/probe/ProbeAtDialogManager.h"

#include "api/VtxUtil.h"
#include "propertymanager/IJKSpinBoxIncDecCalculator.h"
#include "sdk/AppLock.h"
#include "sdk/DataQueries.h"
#include "sdk/VtxUtilActionReporter.h"
#include "toolbox/ArgList.h"
#include "toolbox/HostString.h"
#include "ui/relevance/StateChangeDependentRelevance.h"
#include "ui/relevance/StateChangeFilters.h"

#include <algorithm>

namespace vantrix::sdk::ui::propertymanager {

namespace {

using toolbox::ArgList;

/// What is kept while the dialog is closed.
struct Choices
{
    double x = 0.0, y = 0.0, z = 0.0;
    bool probeWithinVolume = false;
    double linePosition = 0.0;
    long i = 1, j = 1, k = 1;
    int zone = 1, lineMap = 1;
    LineProbeAxis_e lineProbeAxis = LineProbeAxis_X;
    short lineProbeAxisNum = 1;
};
Choices savedChoices;

template<typename T>
boost::shared_ptr<UILocalStyleProperty<T>> newProperty(T initial)
{
    return boost::make_shared<UILocalStyleProperty<T>>(initial);
}

char axisCharacter(LineProbeAxis_e axis)
{
    return "XYTR"[axis];
}

void tellWhyNot()
{
    VtxUtilActionReporter().reportResult(false, toolbox::takeHostString(VtxUtilGetLastErrorString()));
}

/// An index in "Mx" notation as one from 1.
long resolved(long index, long largest)
{
    return index > 0 ? index : largest + index;
}

} // namespace

ProbeAtDialogManager::ProbeAtDialogManager()
    : m_x(newProperty(0.0))
    , m_y(newProperty(0.0))
    , m_z(newProperty(0.0))
    , m_probeWithinVolume(newProperty(false))
    , m_linePosition(newProperty(0.0))
    , m_i(newProperty(1L))
    , m_j(newProperty(1L))
    , m_k(newProperty(1L))
    , m_zone(newProperty(1))
    , m_lineMap(newProperty(1))
    , m_zones(boost::make_shared<dialogs::propertybindings::models::ZoneListModel>())
    , m_lineMaps(boost::make_shared<dialogs::propertybindings::models::LineMapListModel>())
    , m_updateAfterStateChange(&ProbeAtDialogManager::stateChangeRequiresUpdate, [this] { update(); })
{
    restorePersistentState();
    update();
}

ProbeAtDialogManager::~ProbeAtDialogManager() = default;

void ProbeAtDialogManager::setLineProbeAxis(LineProbeAxis_e axis)
{
    m_lineProbeAxis = axis;
    m_updated();
}

LineProbeAxis_e ProbeAtDialogManager::getLineProbeAxis() const
{
    return m_lineProbeAxis;
}

void ProbeAtDialogManager::setLineProbeAxisNum(short number)
{
    m_lineProbeAxisNum = number;
    m_updated();
}

short ProbeAtDialogManager::getLineProbeAxisNum() const
{
    return m_lineProbeAxisNum;
}

boost::shared_ptr<SpinBoxIncDecCalculatorBase>
ProbeAtDialogManager::indexCalculator(SpinBoxIncDecCalculatorIJKAbstract::Plane_e plane)
{
    return boost::make_shared<IJKSpinBoxIncDecCalculator>(*m_zone, *m_lineMap, plane);
}

boost::shared_ptr<SpinBoxIncDecCalculatorBase> ProbeAtDialogManager::linePositionCalculator()
{
    using Calculator = LineProbePosSpinBoxIncDecCalculator;
    return boost::make_shared<Calculator>([this] { return Calculator::Axis{m_lineProbeAxis, m_lineProbeAxisNum}; });
}

bool ProbeAtDialogManager::isLinePlot()
{
    PlotType_e const plotType = VtxUtilFrameGetPlotType();
    return plotType == PlotType_XYLine || plotType == PlotType_PolarLine;
}

bool ProbeAtDialogManager::isPolarPlot()
{
    return VtxUtilFrameGetPlotType() == PlotType_PolarLine;
}

bool ProbeAtDialogManager::doProbe()
{
    AppLock const lock(false);
    if (m_page == IndexPage) {
        return probeIndex();
    }
    return isLinePlot() ? probeLinePosition() : probeFieldPosition();
}

bool ProbeAtDialogManager::probeFieldPosition()
{
    long isInside = -1;
    ArgList arguments;
    arguments.appendDouble("X", m_x->value());
    arguments.appendDouble("Y", m_y->value());
    arguments.appendDouble("Z", m_z->value());
    arguments.appendArbParamPtr("PROBEATFIELDPOSITIONRESULT", &isInside);
    arguments.appendArbParam("SearchVolume", m_probeWithinVolume->value());
    bool const isFound = VtxUtilProbeAtFieldPositionX(arguments.handle());
    if (isInside == 0) {
        VtxUtilActionReporter().reportResult(false, "Probe position is outside of the data");
    } else if (!isFound) {
        tellWhyNot();
    }
    return isFound;
}

bool ProbeAtDialogManager::probeLinePosition()
{
    ArgList arguments;
    arguments.appendDouble("Position", m_linePosition->value());
    arguments.appendArbParam("Axis", axisCharacter(m_lineProbeAxis));
    arguments.appendArbParam("AxisNum", m_lineProbeAxisNum);
    bool const isFound = VtxUtilProbeAtLinePositionX(arguments.handle());
    if (!isFound) {
        tellWhyNot();
    }
    return isFound;
}

bool ProbeAtDialogManager::probeIndex()
{
    using Calculator = IJKSpinBoxIncDecCalculator;
    ArgList arguments;
    arguments.appendArbParam("I",
                             resolved(m_i->value(), Calculator(*m_zone, *m_lineMap, Calculator::IPlane).getMaxIndex()));
    arguments.appendArbParam("J",
                             resolved(m_j->value(), Calculator(*m_zone, *m_lineMap, Calculator::JPlane).getMaxIndex()));
    arguments.appendArbParam("K",
                             resolved(m_k->value(), Calculator(*m_zone, *m_lineMap, Calculator::KPlane).getMaxIndex()));
    bool isFound = false;
    if (isLinePlot()) {
        arguments.appendArbParam("LineMap", m_lineMap->value());
        isFound = VtxUtilProbeAtLineIndexX(arguments.handle());
    } else {
        arguments.appendArbParam("Zone", m_zone->value());
        isFound = VtxUtilProbeAtFieldIndexX(arguments.handle());
    }
    if (!isFound) {
        tellWhyNot();
    }
    return isFound;
}

void ProbeAtDialogManager::update()
{
    updatePositionPage();
    updateIndexPage();
    m_updated();
}

void ProbeAtDialogManager::updatePositionPage()
{
    bool const isPolarAxis = m_lineProbeAxis == LineProbeAxis_Theta || m_lineProbeAxis == LineProbeAxis_R;
    if (isLinePlot() && isPolarAxis != isPolarPlot()) {
        m_lineProbeAxis = isPolarPlot() ? LineProbeAxis_Theta : LineProbeAxis_X;
        m_lineProbeAxisNum = 1;
    }
}

void ProbeAtDialogManager::updateIndexPage()
{
    AppLock const lock(false);
    if (m_zones->size() > 0 && m_zones->indexOf(m_zone->value()) < 0) {
        m_zone->setValue(m_zones->get(0));
    }
    if (m_lineMaps->size() > 0 && m_lineMaps->indexOf(m_lineMap->value()) < 0) {
        m_lineMap->setValue(m_lineMaps->get(0));
    }
    updateIndexIndices(isLinePlot()
                           ? static_cast<int>(IJKSpinBoxIncDecCalculator::getZoneNumFromLineMap(m_lineMap->value()))
                           : m_zone->value());
}

void ProbeAtDialogManager::updateIndexIndices(int zone)
{
    long largest[] = {0, 0, 0};
    VtxUtilZoneGetIJK(zone, &largest[0], &largest[1], &largest[2]);
    if (largest[0] == 0) {
        return; // no such zone: the choices wait for one
    }
    if (!VtxUtilZoneIsOrdered(zone)) {
        largest[1] = 1;
        largest[2] = 1;
    }
    LocalProperty<long> const indices[] = {m_i, m_j, m_k};
    for (std::size_t plane = 0; plane < 3; ++plane) {
        long const index = std::clamp(indices[plane]->value(), 1 - largest[plane], largest[plane]);
        indices[plane]->setValue(index);
    }
}

void ProbeAtDialogManager::savePersistentState() const
{
    savedChoices = {m_x->value(),
                    m_y->value(),
                    m_z->value(),
                    m_probeWithinVolume->value(),
                    m_linePosition->value(),
                    m_i->value(),
                    m_j->value(),
                    m_k->value(),
                    m_zone->value(),
                    m_lineMap->value(),
                    m_lineProbeAxis,
                    m_lineProbeAxisNum};
}

void ProbeAtDialogManager::restorePersistentState()
{
    m_x->setValue(savedChoices.x);
    m_y->setValue(savedChoices.y);
    m_z->setValue(savedChoices.z);
    m_probeWithinVolume->setValue(savedChoices.probeWithinVolume);
    m_linePosition->setValue(savedChoices.linePosition);
    m_i->setValue(savedChoices.i);
    m_j->setValue(savedChoices.j);
    m_k->setValue(savedChoices.k);
    m_zone->setValue(savedChoices.zone);
    m_lineMap->setValue(savedChoices.lineMap);
    m_lineProbeAxis = savedChoices.lineProbeAxis;
    m_lineProbeAxisNum = savedChoices.lineProbeAxisNum;
}

bool ProbeAtDialogManager::stateChangeRequiresUpdate(toolbox::StateChangeEventInterface const& event)
{
    switch (event.kind()) {
    case StateChange_LineMapAssignment:
    case StateChange_LineMapName:
    case StateChange_LineMapsAddedOrDeleted:
        return true;
    default:
        return common::isPlotTypeStateChange(event) || common::isDataRelatedStateChange(event);
    }
}

boost::shared_ptr<RelevanceInterface const> ProbeAtDialogManager::relevance()
{
    static auto const relevance = boost::make_shared<StateChangeDependentRelevance const>(
        [] {
            AppLock const lock(false);
            return dataSetAndFrameAreAvailable() && VtxUtilFrameGetPlotType() != PlotType_Sketch;
        },
        "There is no plot of data to probe. Open a file first.");
    return relevance;
}

boost::shared_ptr<RelevanceInterface const> ProbeAtDialogManager::threeDRelevance()
{
    static auto const relevance = boost::make_shared<StateChangeDependentRelevance const>(
        &common::isPlotTypeStateChange, [] { return VtxUtilFrameGetPlotType() == PlotType_Cartesian3D; },
        "The plot has no third axis.");
    return relevance;
}

} // namespace vantrix::sdk::ui::propertymanager
