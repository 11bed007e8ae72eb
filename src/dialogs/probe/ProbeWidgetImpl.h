#pragma once

#include "api/VtxUtilProbe.h"
#include "dialogs/probe/ProbeQueries.h"
#include "dialogs/probe/ProbeWidget.h"
#include "sdk/OnIdleAfterStateChangeActionPerformer.h"
#include "ui/TableCopyHandler.h"
#include "ui_ProbeWidget.h"

#include <map>

namespace vantrix::sdk::ui::dialogs {

/// The state of a probe widget. What all widgets of the process share is class-wide.
class ProbeWidget::Impl
{
public:
    explicit Impl(ProbeWidget& widget);
    ~Impl();

    void setCallback(Callback told) { m_callback = told; }
    Callback callback() const { return m_callback; }
    void setCurrentPage(FieldProbeDialogPage_e page);
    void changeTabPosition(QTabWidget::TabPosition position);
    bool hasInfo() const { return m_probeInfo != nullptr; }
    bool isReprobing() const { return m_isReprobing; }

    /// Takes the result of the probe that was just made.
    void takeProbe(bool isNearestPoint, bool probeSucceeded);

    void showTab(int page);
    void keepNameColumnSize(int column, int size);
    void showContextMenu(QObject* table, QPoint const& place);

private:
    /// Keeps a table's vertical scroll position while it is filled again.
    class ScrollBarManager
    {
    public:
        explicit ScrollBarManager(QTableWidget& table);
        ~ScrollBarManager();
        ScrollBarManager(ScrollBarManager const&) = delete;
        ScrollBarManager& operator=(ScrollBarManager const&) = delete;

    private:
        QTableWidget& m_table;
        int m_value;
    };

    void makeTablesCopyable();
    void setStackedWidgetPage();
    void updateProbeWidget();
    void updateCartesianPages();
    void updateTab(int page);
    void fillOtherTabs();
    bool isOfPresentData() const;
    void emptyTab(int page);
    void updateProbedItemInfo();
    void updateVarValues();
    void updateCellCenterValues();
    void updateLoadVariablesButtons();
    void updateLineProbe();
    void resizeVarValuesTable();
    void updateValues(QTableWidget& table, long& dataSetDisplayed, std::vector<VarValue_s> const& values);
    void fillTableWithValues(QTableWidget& table, std::vector<VarValue_s> const& values);
    static void buildRows(QTableWidget& table);
    static QString buildVarValueString(VarValue_s const& value);
    void loadVariables();

    void reprobe();
    void reprobeAndUpdateUI();
    void releaseInfo();
    bool isProbeStillValid() const;
    bool noteStateChange(toolbox::StateChangeEventInterface const& event);
    void followStateChanges();
    static bool stateChangeRequiresReprobe(toolbox::StateChangeEventInterface const& event);
    static bool stateChangeRequiresStackWidgetPageUpdate(toolbox::StateChangeEventInterface const& event);

    static int lastProbePage;                 ///< tab last shown; 255 before any was
    static long lastVarValueDataSetDisplayed; ///< what the rows of the tables were built for
    static long lastCellCenterDataSetDisplayed;
    static bool varListColumnWasResized; ///< by the user
    static int varListColumnSize;

    ProbeWidget& m_widget;
    Ui::ProbeWidget m_form;
    bool m_isNearestPoint = false;
    bool m_probeSucceeded = false;
    std::array<bool, 4> m_tabsFilled{}; ///< with the probe that the name above them is of
    VtxProbeInfoHandle m_probeInfo = nullptr;
    long m_probedDataSet = 0; ///< unique identifier
    bool m_isReprobing = false;
    Callback m_callback = nullptr;
    std::map<QObject*, common::TableCopyHandler*> m_copyHandlers;
    QMetaObject::Connection m_nameColumnConnection;

    bool m_needsReprobe = false; ///< noted since the last idle turn
    bool m_needsPage = false;
    bool m_frameChanged = false;
    bool m_dataAreOthers = false;
    OnIdleAfterStateChangeActionPerformer m_stateFollower;
};

} // namespace vantrix::sdk::ui::dialogs
