#include "dialogs/probe/ProbeWidgetImpl.h"

#include "api/VtxUtil.h"
#include "dialogs/probe/ProbeTables.h"
#include "sdk/AppLock.h"
#include "sdk/DataQueries.h"
#include "sdk/WaitState.h"
#include "toolbox/HostString.h"
#include "toolbox/Set.h"
#include "toolbox/StyleValue.h"
#include "ui/LoadVariablesDialog.h"

#include <QHeaderView>
#include <QMenu>
#include <QScrollBar>

#include <algorithm>
#include <array>

namespace vantrix::sdk::ui::dialogs {

namespace {

constexpr int noPage = 255;
constexpr long noDataSet = ~0L;

bool isFieldPlot(PlotType_e plotType)
{
    return plotType == PlotType_Cartesian3D || plotType == PlotType_Cartesian2D;
}

bool isLinePlot(PlotType_e plotType)
{
    return plotType == PlotType_XYLine || plotType == PlotType_PolarLine;
}

/// Style that decides what is shown of the data, or where.
bool mayMoveWhatIsProbed(std::string const& styleGroup)
{
    static std::array<char const*, 18> const groups = {
        "FrameMode",       "PlotType",     "ActiveFieldZones", "ActiveFieldMaps",      "Field",
        "FieldMap",        "FieldLayers",  "IsoSurfaceLayers", "SliceLayers",          "StreamtraceLayers",
        "GlobalTime",      "GlobalStream", "StreamAttributes", "IsoSurfaceAttributes", "GlobalSlice",
        "SliceAttributes", "ActiveXYMaps", "ActiveLineMaps"};
    return std::find(groups.begin(), groups.end(), styleGroup) != groups.end();
}

int initialPage()
{
    long page = FieldProbeDialogPage_NodalValues;
    toolbox::StyleValue("Interface", "InitialFieldProbeDialogPage").getValue(&page);
    return static_cast<int>(page);
}

} // namespace

int ProbeWidget::Impl::lastProbePage = noPage;
long ProbeWidget::Impl::lastVarValueDataSetDisplayed = noDataSet;
long ProbeWidget::Impl::lastCellCenterDataSetDisplayed = noDataSet;
bool ProbeWidget::Impl::varListColumnWasResized = false;
int ProbeWidget::Impl::varListColumnSize = 0;

ProbeWidget::Impl::ScrollBarManager::ScrollBarManager(QTableWidget& table)
    : m_table(table)
    , m_value(table.verticalScrollBar()->value())
{}

ProbeWidget::Impl::ScrollBarManager::~ScrollBarManager()
{
    m_table.verticalScrollBar()->setValue(m_value);
}

ProbeWidget::Impl::Impl(ProbeWidget& widget)
    : m_widget(widget)
    , m_stateFollower([this](toolbox::StateChangeEventInterface const& event) { return noteStateChange(event); },
                      [this] { followStateChanges(); })
{
    m_form.setupUi(&widget);
    makeTablesCopyable();
    connect(m_form.cartesianProbe_tabWidget, &QTabWidget::currentChanged, &widget,
            &ProbeWidget::cartesianTabWidgetPageChanged);
    m_nameColumnConnection = connect(m_form.varValues_tableWidget->horizontalHeader(), &QHeaderView::sectionResized,
                                     &widget, &ProbeWidget::varValues_tableWidget_resized);
    for (QPushButton* const button :
         {m_form.varValues_LoadVariables_pushButton, m_form.cellCenter_LoadVariables_pushButton}) {
        connect(button, &QPushButton::clicked, &widget, [this] { loadVariables(); });
        button->setEnabled(false);
    }
    m_form.zoneCellInfo_splitter->setStretchFactor(0, 1);
    m_form.zoneCellInfo_splitter->setStretchFactor(1, 2); // a cell has more to tell
    m_form.stackedWidget->setCurrentWidget(m_form.noProbeData_page);
}

ProbeWidget::Impl::~Impl()
{
    releaseInfo();
}

void ProbeWidget::Impl::makeTablesCopyable()
{
    for (QTableWidget* const table :
         {m_form.varValues_tableWidget, m_form.cellCenterValues_tableWidget, m_form.zoneInfo_tableWidget,
          m_form.cellInfo_tableWidget, m_form.faceNeighbor_tableWidget, m_form.interpolatedValues_tableWidget,
          m_form.specificValues_tableWidget}) {
        m_copyHandlers[table] = new common::TableCopyHandler(table);
        table->setContextMenuPolicy(Qt::CustomContextMenu);
        connect(table, &QWidget::customContextMenuRequested, &m_widget, &ProbeWidget::createContextMenu);
    }
}

void ProbeWidget::Impl::showContextMenu(QObject* table, QPoint const& place)
{
    auto const handler = m_copyHandlers.find(table);
    if (handler == m_copyHandlers.end()) {
        return;
    }
    auto* const menu = new QMenu(&m_widget);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    menu->addAction(tr("Copy"), handler->second, &common::TableCopyHandler::copyToClipboard);
    menu->popup(static_cast<QTableWidget*>(table)->viewport()->mapToGlobal(place));
}

void ProbeWidget::Impl::setCurrentPage(FieldProbeDialogPage_e page)
{
    lastProbePage = page;
    m_form.cartesianProbe_tabWidget->setCurrentIndex(page);
}

void ProbeWidget::Impl::changeTabPosition(QTabWidget::TabPosition position)
{
    m_form.cartesianProbe_tabWidget->setTabPosition(position);
}

void ProbeWidget::Impl::releaseInfo()
{
    VtxUtilProbeInfoDealloc(&m_probeInfo);
}

void ProbeWidget::Impl::takeProbe(bool isNearestPoint, bool probeSucceeded)
{
    if (probeSucceeded) {
        m_tabsFilled.fill(false);
        m_probedDataSet = VtxUtilDataSetGetUniqueID();
    } else if (m_probeSucceeded && !m_isReprobing) {
        fillOtherTabs();
    }
    m_isNearestPoint = isNearestPoint;
    m_probeSucceeded = probeSucceeded;
    if (!m_isReprobing) { // else the host is working with the one there is
        releaseInfo();
        m_probeInfo = VtxUtilProbeInfoGet();
    }
    updateProbeWidget();
}

void ProbeWidget::Impl::setStackedWidgetPage()
{
    QWidget* page = m_form.noProbeData_page;
    if (VtxUtilDataSetIsAvailable() && hasInfo()) {
        PlotType_e const plotType = VtxUtilFrameGetPlotType();
        if (isLinePlot(plotType)) {
            page = m_form.lineProbe_page;
        } else if (isFieldPlot(plotType)) {
            page = m_form.cartesianProbe_page;
        }
    }
    m_form.stackedWidget->setCurrentWidget(page);
}

void ProbeWidget::Impl::updateProbeWidget()
{
    AppLock const lock(false);
    if (!hasInfo()) {
        return;
    }
    setStackedWidgetPage();
    if (VtxUtilMouseGetCurrentMode() != MouseMode_Probe) {
        return;
    }
    PlotType_e const plotType = VtxUtilFrameGetPlotType();
    if (isFieldPlot(plotType)) {
        if (lastProbePage == noPage) {
            lastProbePage = initialPage();
        }
        QSignalBlocker const oneUpdate(m_form.cartesianProbe_tabWidget);
        m_form.cartesianProbe_tabWidget->setCurrentIndex(lastProbePage);
        updateProbedItemInfo();
        updateCartesianPages();
        updateLoadVariablesButtons();
    } else if (isLinePlot(plotType)) {
        updateLineProbe();
    }
}

void ProbeWidget::Impl::showTab(int page)
{
    lastProbePage = page;
    updateCartesianPages();
}

void ProbeWidget::Impl::updateCartesianPages()
{
    if (!dataSetAndFrameAreAvailable()) {
        return;
    }
    WaitState const wait;
    updateTab(lastProbePage);
}

void ProbeWidget::Impl::updateTab(int page)
{
    if (page < 0 || page >= static_cast<int>(m_tabsFilled.size())) {
        return;
    }
    bool& isFilled = m_tabsFilled[static_cast<std::size_t>(page)];
    bool const isPresent = isOfPresentData();
    if (!isFilled && !(m_probeSucceeded && isPresent)) {
        emptyTab(page); // what it shows is of another probe than the name above the tabs
    }
    if (!isPresent) {
        return;
    }
    switch (page) {
    case FieldProbeDialogPage_NodalValues:
        updateVarValues();
        break;
    case FieldProbeDialogPage_CellCenteredValues:
        updateCellCenterValues();
        break;
    case FieldProbeDialogPage_ZoneCellInfo:
        if (m_probeSucceeded) {
            probetables::fillZoneInfo(*m_form.zoneInfo_tableWidget);
            probetables::fillCellInfo(*m_form.cellInfo_tableWidget, m_isNearestPoint);
        }
        break;
    case FieldProbeDialogPage_FaceNeighbors:
        if (m_probeSucceeded) {
            long const cell = VtxUtilProbeFieldGetCell();
            m_form.faceNeighbor_cellNumber_label->setText(cell != 0 ? tr("Cell: %1").arg(cell) : tr("Cell: N/A"));
            probetables::fillFaceNeighbors(*m_form.faceNeighbor_tableWidget);
        }
        break;
    default:
        break;
    }
    isFilled = isFilled || m_probeSucceeded;
}

/// Whether names, zones and cells that the host now tells are of the data that were probed: frames may show different
/// ones.
bool ProbeWidget::Impl::isOfPresentData() const
{
    return m_probedDataSet == VtxUtilDataSetGetUniqueID();
}

/// Once a probe has failed, nothing is read of the one before it: the tabs that were not looked at must have it by
/// then.
void ProbeWidget::Impl::fillOtherTabs()
{
    if (!dataSetAndFrameAreAvailable() || !isFieldPlot(VtxUtilFrameGetPlotType()) || !isOfPresentData()) {
        return;
    }
    for (std::size_t page = 0; page < m_tabsFilled.size(); ++page) {
        if (!m_tabsFilled[page]) {
            updateTab(static_cast<int>(page));
        }
    }
}

void ProbeWidget::Impl::emptyTab(int page)
{
    auto const emptyValues = [](QTableWidget& table) {
        for (int row = 0; row < table.rowCount(); ++row) {
            delete table.takeItem(row, 1);
        }
    };
    switch (page) {
    case FieldProbeDialogPage_NodalValues:
        emptyValues(*m_form.varValues_tableWidget);
        break;
    case FieldProbeDialogPage_CellCenteredValues:
        emptyValues(*m_form.cellCenterValues_tableWidget);
        break;
    case FieldProbeDialogPage_ZoneCellInfo:
        m_form.zoneInfo_tableWidget->setRowCount(0);
        m_form.cellInfo_tableWidget->setRowCount(0);
        break;
    default:
        m_form.faceNeighbor_cellNumber_label->setText(tr("Cell: N/A"));
        m_form.faceNeighbor_tableWidget->setRowCount(0);
        break;
    }
}

void ProbeWidget::Impl::updateProbedItemInfo()
{
    if (m_probeSucceeded) {
        m_form.probedItemName_label->setText(QString::fromStdString(GetProbedItemName()));
    }
}

void ProbeWidget::Impl::updateVarValues()
{
    updateValues(*m_form.varValues_tableWidget, lastVarValueDataSetDisplayed,
                 m_probeSucceeded ? GetFieldVarValuesForLastProbe() : std::vector<VarValue_s>());
}

void ProbeWidget::Impl::updateCellCenterValues()
{
    updateValues(*m_form.cellCenterValues_tableWidget, lastCellCenterDataSetDisplayed,
                 m_probeSucceeded ? GetFieldCellCenterValuesForLastProbe() : std::vector<VarValue_s>());
}

void ProbeWidget::Impl::updateValues(QTableWidget& table, long& dataSetDisplayed, std::vector<VarValue_s> const& values)
{
    AppLock const lock(false);
    long const dataSet = VtxUtilDataSetGetUniqueID();
    if (dataSet != dataSetDisplayed) {
        buildRows(table);
        dataSetDisplayed = dataSet;
    }
    ScrollBarManager const scrollPosition(table);
    fillTableWithValues(table, values);
    if (&table == m_form.varValues_tableWidget) {
        resizeVarValuesTable();
    } else {
        table.resizeColumnToContents(0);
        table.resizeRowsToContents();
    }
}

void ProbeWidget::Impl::buildRows(QTableWidget& table)
{
    toolbox::Set const enabled(VtxUtilVarGetEnabled());
    table.setRowCount(static_cast<int>(enabled.memberCount()));
    int row = 0;
    for (long variable = enabled.getNextMember(0); variable != 0; variable = enabled.getNextMember(variable)) {
        char* name = nullptr;
        VtxUtilVarGetName(variable, &name);
        table.setItem(row++, 0, new QTableWidgetItem(QString::fromStdString(toolbox::takeHostString(name))));
    }
}

void ProbeWidget::Impl::fillTableWithValues(QTableWidget& table, std::vector<VarValue_s> const& values)
{
    if (values.empty() || !m_probeSucceeded) {
        return;
    }
    if (static_cast<int>(values.size()) != table.rowCount()) {
        buildRows(table);
    }
    int row = 0;
    for (VarValue_s const& value : values) {
        table.setItem(row++, 1, new QTableWidgetItem(buildVarValueString(value)));
    }
}

QString ProbeWidget::Impl::buildVarValueString(VarValue_s const& value)
{
    if (!value.isValid) {
        return VtxUtilProbeFieldGetCZType() != ProbeSource_Zone ? tr("N/A") : tr("Not Loaded");
    }
    QString const text = QString::fromStdString(FormatProbedFieldVarValue(value.variable, value.value));
    return value.isInterpolated ? text + u'*' : text;
}

void ProbeWidget::Impl::resizeVarValuesTable()
{
    QTableWidget& table = *m_form.varValues_tableWidget;
    disconnect(m_nameColumnConnection);
    if (varListColumnWasResized) {
        table.setColumnWidth(0, varListColumnSize);
    } else {
        table.resizeColumnToContents(0);
    }
    table.resizeRowsToContents();
    m_nameColumnConnection = connect(table.horizontalHeader(), &QHeaderView::sectionResized, &m_widget,
                                     &ProbeWidget::varValues_tableWidget_resized);
}

void ProbeWidget::Impl::keepNameColumnSize(int column, int size)
{
    if (column == 0) {
        varListColumnWasResized = true;
        varListColumnSize = size;
    }
}

void ProbeWidget::Impl::updateLineProbe()
{
    if (!m_probeSucceeded) {
        return;
    }
    if (VtxUtilProbeLineGetPickedMap() != 0) {
        m_form.lineProbe_stackedWidget->setCurrentWidget(m_form.specificValues_page);
        probetables::fillSpecificValues(*m_form.specificValues_tableWidget);
        return;
    }
    m_form.lineProbe_stackedWidget->setCurrentWidget(m_form.interpolatedValues_page);
    m_form.independentAxis_label->setText(probetables::axisCaption());
    m_form.independentValue_label->setText(probetables::exactText(VtxUtilProbeLineGetPosition()));
    probetables::fillInterpolatedValues(*m_form.interpolatedValues_tableWidget);
}

void ProbeWidget::Impl::updateLoadVariablesButtons()
{
    bool canLoad = false;
    if (m_probeSucceeded && isOfPresentData() && VtxUtilProbeFieldGetCZType() == ProbeSource_Zone) {
        long const zone = VtxUtilProbeFieldGetZone();
        for (long variable = 1; variable <= VtxUtilDataSetGetNumVars() && !canLoad; ++variable) {
            canLoad = !VtxUtilDataValueIsLoaded(zone, variable);
        }
    }
    m_form.varValues_LoadVariables_pushButton->setEnabled(canLoad);
    m_form.cellCenter_LoadVariables_pushButton->setEnabled(canLoad);
}

void ProbeWidget::Impl::loadVariables()
{
    vantrix::dialogs::common::LoadVariablesDialog::getInstance(*m_widget.window(), VtxUtilProbeFieldGetZone()).launch();
    reprobeAndUpdateUI();
}

void ProbeWidget::Impl::reprobe()
{
    AppLock const lock(false);
    m_isReprobing = true;
    bool const canProbe = m_callback && VtxUtilFrameGetPlotType() != PlotType_Sketch && hasInfo();
    bool const succeeded = canProbe && VtxUtilProbePerform(m_probeInfo, m_callback);
    if (canProbe && !succeeded) {
        VtxUtilStatusMessage(toolbox::takeHostString(VtxUtilGetLastErrorString()).c_str());
    }
    m_probeSucceeded = succeeded;
    m_isReprobing = false;
}

void ProbeWidget::Impl::reprobeAndUpdateUI()
{
    reprobe();
    updateProbeWidget();
}

bool ProbeWidget::Impl::isProbeStillValid() const
{
    AppLock const lock(false);
    PlotType_e const plotType = VtxUtilFrameGetPlotType();
    return m_probeSucceeded && VtxUtilDataSetIsAvailable() && plotType != PlotType_Sketch && hasInfo() &&
           VtxUtilProbeGetPlotType() == plotType &&
           (!isFieldPlot(plotType) || VtxUtilProbeFieldGetCZType() == ProbeSource_Zone);
}

bool ProbeWidget::Impl::stateChangeRequiresReprobe(toolbox::StateChangeEventInterface const& event)
{
    switch (event.kind()) {
    case StateChange_VarsAltered:
    case StateChange_VarsAdded:
    case StateChange_ZonesAdded:
    case StateChange_NodeMapsAltered:
    case StateChange_LineMapAssignment:
    case StateChange_ZoneName:
    case StateChange_VarName:
    case StateChange_LineMapName:
    case StateChange_LineMapsAddedOrDeleted:
        break;
    case StateChange_Style:
        if (!mayMoveWhatIsProbed(event.styleParam(1))) {
            return false;
        }
        break;
    default:
        return false;
    }
    return VtxUtilMouseGetCurrentMode() == MouseMode_Probe;
}

bool ProbeWidget::Impl::stateChangeRequiresStackWidgetPageUpdate(toolbox::StateChangeEventInterface const& event)
{
    switch (event.kind()) {
    case StateChange_NewActiveFrame:
    case StateChange_DataSetReset:
    case StateChange_NewLayout:
    case StateChange_CompleteReset:
    case StateChange_NewActivePage:
        return true;
    case StateChange_Style:
        return event.styleParam(1) == "PlotType";
    default:
        return false;
    }
}

bool ProbeWidget::Impl::noteStateChange(toolbox::StateChangeEventInterface const& event)
{
    if (event.kind() == StateChange_Quit) {
        return false;
    }
    m_needsReprobe = m_needsReprobe || stateChangeRequiresReprobe(event);
    m_needsPage = m_needsPage || stateChangeRequiresStackWidgetPageUpdate(event);
    m_frameChanged = m_frameChanged || event.kind() == StateChange_NewActiveFrame;
    m_dataAreOthers = m_dataAreOthers || event.kind() == StateChange_DataSetReset ||
                      event.kind() == StateChange_NewLayout || event.kind() == StateChange_CompleteReset;
    return m_needsReprobe || m_needsPage;
}

void ProbeWidget::Impl::followStateChanges()
{
    bool const needsReprobe = std::exchange(m_needsReprobe, false);
    bool const needsPage = std::exchange(m_needsPage, false);
    bool const frameChanged = std::exchange(m_frameChanged, false);
    bool const dataAreOthers = std::exchange(m_dataAreOthers, false);
    if (dataAreOthers || (frameChanged && VtxUtilMouseGetCurrentMode() != MouseMode_Probe)) {
        releaseInfo();
    }
    if (needsPage) {
        setStackedWidgetPage();
    }
    m_probeSucceeded = isProbeStillValid();
    if (frameChanged) {
        updateLoadVariablesButtons();
    }
    if (needsReprobe && hasInfo()) {
        reprobeAndUpdateUI();
    }
}

} // namespace vantrix::sdk::ui::dialogs
