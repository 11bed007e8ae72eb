#include "app/SideBar.h"

#include "api/VtxUtil.h"
#include "app/LineMapPanel.h"
#include "app/VariableBox.h"
#include "app/VectorVariablesDialog.h"
#include "app/ZoneListView.h"
#include "sdk/AppLock.h"
#include "sdk/VtxUtilActionReporter.h"
#include "toolbox/StyleValue.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace vantrix::app {

using namespace Qt::StringLiterals;

namespace {

/* Most changes: the view, while a plot is turned, is the one that comes often. */
bool mayConcernPlot(const toolbox::StateChangeEventInterface& event)
{
    return event.kind() != StateChange_View && event.kind() != StateChange_MouseMode;
}

bool isFieldPlot(PlotType_e type)
{
    return type == PlotType_Cartesian3D || type == PlotType_Cartesian2D;
}

bool isLinePlot(PlotType_e type)
{
    return type == PlotType_XYLine || type == PlotType_PolarLine;
}

struct Layer
{
    const char* group;
    const char* styleName;
    const char* objectName;
    const char* text;
    bool needsVectors = false;
};

const Layer layers[] = {
    {"FieldLayers", "ShowMesh", "ShowMesh", QT_TRANSLATE_NOOP("vantrix::app::SideBar", "Me&sh")},
    {"FieldLayers", "ShowContour", "ShowContour", QT_TRANSLATE_NOOP("vantrix::app::SideBar", "Conto&ur")},
    {"FieldLayers", "ShowVector", "ShowVector", QT_TRANSLATE_NOOP("vantrix::app::SideBar", "Ve&ctor"), true},
    {"FieldLayers", "ShowScatter", "ShowScatter", QT_TRANSLATE_NOOP("vantrix::app::SideBar", "Sca&tter")},
    {"FieldLayers", "ShowShade", "ShowShade", QT_TRANSLATE_NOOP("vantrix::app::SideBar", "Sh&ade")},
    {"FieldLayers", "ShowEdge", "ShowEdge", QT_TRANSLATE_NOOP("vantrix::app::SideBar", "Ed&ge")},
    {"StreamtraceLayers", "Show", "ShowStreamtraces", QT_TRANSLATE_NOOP("vantrix::app::SideBar", "Streamtraces"), true},
};

/* The layer of a check box. */
const Layer& layerOf(const QCheckBox& box)
{
    return *std::ranges::find_if(
        layers, [&](const Layer& layer) { return box.objectName() == QLatin1StringView(layer.objectName); });
}

toolbox::StyleValue layerStyle(const QCheckBox& box)
{
    const Layer& layer = layerOf(box);
    return toolbox::StyleValue(layer.group, layer.styleName);
}

} // namespace

SideBar::SideBar(QWidget* parent)
    : QDockWidget(tr("Plot"), parent)
    , m_plotType(new QComboBox(this))
    , m_layers(new QGroupBox(tr("Layers"), this))
    , m_zones(new QGroupBox(tr("Zones"), this))
    , m_lineMaps(new LineMapPanel(this))
    , m_updater(mayConcernPlot, [this] { update(); })
{
    setObjectName(u"sideBar"_s);
    setUpPlotType();
    setUpLayers();
    auto* zonesLayout = new QVBoxLayout(m_zones);
    zonesLayout->addWidget(new ZoneListView(this));

    auto* content = new QWidget(this);
    auto* layout = new QVBoxLayout(content);
    layout->addWidget(m_plotType);
    layout->addWidget(m_layers);
    layout->addWidget(m_zones, 1);
    layout->addWidget(m_lineMaps, 1);
    setWidget(content);
    update();
}

void SideBar::setUpPlotType()
{
    m_plotType->setObjectName(u"plotType"_s);
    m_plotType->setToolTip(tr("Type of the plot"));
    m_plotType->addItem(tr("3D Cartesian"), PlotType_Cartesian3D);
    m_plotType->addItem(tr("2D Cartesian"), PlotType_Cartesian2D);
    m_plotType->addItem(tr("XY Line"), PlotType_XYLine);
    m_plotType->addItem(tr("Polar Line"), PlotType_PolarLine);
    m_plotType->addItem(tr("Sketch"), PlotType_Sketch);
    connect(m_plotType, &QComboBox::activated, this, &SideBar::setPlotType);
}

void SideBar::setUpLayers()
{
    auto* layout = new QGridLayout(m_layers);
    layout->setColumnStretch(1, 1);
    for (const Layer& layer : layers) {
        auto* box = new QCheckBox(tr(layer.text), m_layers);
        box->setObjectName(QLatin1StringView(layer.objectName));
        layout->addWidget(box, layout->rowCount(), 0);
        connect(box, &QCheckBox::clicked, this, [this, box](bool isOn) { setLayer(*box, isOn); });
        m_layerBoxes << box;
    }
    m_contourVariable = new VariableBox(toolbox::StyleValue("GlobalContour", "Var"), 1, false, m_layers);
    m_contourVariable->setObjectName(u"contourVariable"_s);
    m_contourVariable->setToolTip(tr("The variable of the first contour group"));
    layout->addWidget(m_contourVariable, 2, 1);
    auto* vectors = new QToolButton(m_layers);
    vectors->setObjectName(u"vectorVariablesButton"_s);
    vectors->setText(tr("..."));
    vectors->setToolTip(tr("Choose the variables of the vectors"));
    connect(vectors, &QToolButton::clicked, this, [this] { VectorVariablesDialog(this).exec(); });
    layout->addWidget(vectors, 3, 1);
}

void SideBar::setPlotType()
{
    const auto type = static_cast<PlotType_e>(m_plotType->currentData().toInt());
    if (type == VtxUtilFrameGetPlotType()) {
        return;
    }
    bool isSet = false;
    {
        const sdk::AppLock lock;
        VtxUtilUndoSetStepName("Plot Type");
        isSet = VtxUtilFrameSetPlotType(type);
    }
    if (!isSet) {
        sdk::VtxUtilActionReporter().reportLastFailure();
    }
    update();
}

void SideBar::setLayer(QCheckBox& box, bool isOn)
{
    if (isOn && layerOf(box).needsVectors && !VectorVariablesDialog::ensureAssigned(this)) {
        box.setChecked(false);
        return;
    }
    const sdk::AppLock lock;
    VtxUtilUndoSetStepName("Layers");
    layerStyle(box).setValue(isOn);
}

void SideBar::update()
{
    const PlotType_e type = VtxUtilFrameGetPlotType();
    m_plotType->setCurrentIndex(m_plotType->findData(type));
    m_plotType->setEnabled(VtxUtilFrameGetCount() > 0);
    const bool isField = isFieldPlot(type) && VtxUtilDataSetIsAvailable();
    m_layers->setEnabled(isField);
    m_zones->setEnabled(isField);
    m_layers->setVisible(!isLinePlot(type));
    m_zones->setVisible(!isLinePlot(type));
    m_lineMaps->setVisible(isLinePlot(type));
    m_lineMaps->setEnabled(VtxUtilDataSetIsAvailable());
    m_lineMaps->refresh();
    m_contourVariable->refresh();
    for (QCheckBox* box : std::as_const(m_layerBoxes)) {
        bool isOn = false;
        layerStyle(*box).getValue(&isOn);
        box->setChecked(isOn);
    }
}

} // namespace vantrix::app
