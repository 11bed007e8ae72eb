#pragma once

#include "sdk/OnIdleAfterStateChangeActionPerformer.h"

#include <QDockWidget>

class QCheckBox;
class QComboBox;
class QGroupBox;

namespace vantrix::app {

class LineMapPanel;
class VariableBox;

/* Beside the plot: its type, its layers, its zones or line maps. */
class SideBar : public QDockWidget
{
    Q_OBJECT

public:
    explicit SideBar(QWidget* parent);

private:
    void setUpPlotType();
    void setUpLayers();
    void setPlotType();
    void setLayer(QCheckBox& box, bool isOn);
    void update();

    QComboBox* m_plotType;
    QGroupBox* m_layers;
    QGroupBox* m_zones;
    LineMapPanel* m_lineMaps;
    VariableBox* m_contourVariable = nullptr;
    QList<QCheckBox*> m_layerBoxes;
    sdk::OnIdleAfterStateChangeActionPerformer m_updater;
};

} // namespace vantrix::app
