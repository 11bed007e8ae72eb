#pragma once

#include "propertymanager/LineProbePosSpinBoxIncDecCalculator.h"
#include "propertymanager/SpinBoxIncDecCalculatorIJKAbstract.h"
#include "propertymanager/UILocalStyleProperty.h"
#include "sdk/OnIdleAfterStateChangeActionPerformer.h"
#include "ui/models/LineMapListModel.h"
#include "ui/models/ZoneListModel.h"

#include <string>

namespace vantrix::sdk::ui::propertymanager {

/// Where the user wants the plot probed, and the action that probes it. The choices are kept for the life of the
/// process.
class ProbeAtDialogManager
{
public:
    /// The tabs: what the position or index of a probe is taken from.
    enum Page_e
    {
        PositionPage = 0,
        IndexPage = 1
    };

    template<typename T>
    using LocalProperty = boost::shared_ptr<UILocalStyleProperty<T>>;

    ProbeAtDialogManager();
    ~ProbeAtDialogManager();

    /// The position in a field plot, in the units of its axes.
    LocalProperty<double> const& X() const { return m_x; }
    LocalProperty<double> const& Y() const { return m_y; }
    LocalProperty<double> const& Z() const { return m_z; }
    LocalProperty<bool> const& probeWithinVolume() const { return m_probeWithinVolume; }

    /// The position on the chosen axis of a line plot.
    LocalProperty<double> const& linePosition() const { return m_linePosition; }

    /// Indices from 1; 0 is the largest, -1 the one before, as in "Mx" notation.
    LocalProperty<long> const& I() const { return m_i; }
    LocalProperty<long> const& J() const { return m_j; }
    LocalProperty<long> const& K() const { return m_k; }
    LocalProperty<int> const& zone() const { return m_zone; }
    LocalProperty<int> const& lineMap() const { return m_lineMap; }

    boost::shared_ptr<dialogs::propertybindings::models::ZoneListModel> activeZonesModel() const { return m_zones; }
    boost::shared_ptr<dialogs::propertybindings::models::LineMapListModel> activeLineMapsModel() const
    {
        return m_lineMaps;
    }

    /// The axis of a line plot to probe along. Its number is 1 in a polar plot.
    void setLineProbeAxis(LineProbeAxis_e axis);
    LineProbeAxis_e getLineProbeAxis() const;
    void setLineProbeAxisNum(short number);
    short getLineProbeAxisNum() const;

    void setPage(Page_e page) { m_page = page; }
    Page_e page() const { return m_page; }

    boost::shared_ptr<SpinBoxIncDecCalculatorBase> indexCalculator(SpinBoxIncDecCalculatorIJKAbstract::Plane_e plane);
    boost::shared_ptr<SpinBoxIncDecCalculatorBase> linePositionCalculator();

    /// Probes as the current page says; tells the user why where that finds nothing. True when something was found.
    bool doProbe();

    /// Brings the choices in step with the plot: an axis that it has, a zone and a line map that exist, indices in
    /// them.
    void update();
    void updatePositionPage();
    void updateIndexPage();
    void updateIndexIndices(int zone);

    /// Sent after an update, for what depends on the kind of plot.
    boost::signals2::connection connectToUpdatedSignal(boost::function<void()> const& slot)
    {
        return m_updated.connect(slot);
    }

    /// Writes the choices down for the next time the dialog is opened, and takes them up again.
    void savePersistentState() const;
    void restorePersistentState();

    static bool isLinePlot();
    static bool isPolarPlot();
    static bool stateChangeRequiresUpdate(toolbox::StateChangeEventInterface const& event);

    /// Holds while the plot can be probed; one for the process.
    static boost::shared_ptr<RelevanceInterface const> relevance();

    /// Holds in a 3D Cartesian plot.
    static boost::shared_ptr<RelevanceInterface const> threeDRelevance();

private:
    bool probeFieldPosition();
    bool probeIndex();
    bool probeLinePosition();

    LocalProperty<double> m_x, m_y, m_z;
    LocalProperty<bool> m_probeWithinVolume;
    LocalProperty<double> m_linePosition;
    LocalProperty<long> m_i, m_j, m_k;
    LocalProperty<int> m_zone, m_lineMap;
    LineProbeAxis_e m_lineProbeAxis = LineProbeAxis_X;
    short m_lineProbeAxisNum = 1;
    Page_e m_page = PositionPage;
    boost::shared_ptr<dialogs::propertybindings::models::ZoneListModel> m_zones;
    boost::shared_ptr<dialogs::propertybindings::models::LineMapListModel> m_lineMaps;
    boost::signals2::signal<void()> m_updated;
    OnIdleAfterStateChangeActionPerformer m_updateAfterStateChange;
};

} // namespace vantrix::sdk::ui::propertymanager
