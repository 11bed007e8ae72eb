#pragma once

#include "sdk/OnIdleAfterStateChangeActionPerformer.h"

#include <QDockWidget>

class QCheckBox;
class QComboBox;
class QGroupBox;

namespace vantrix::app {

/* Beside the plot: its type, its layers, its zones. */
class SideBar : public QDockWidget
{
    Q_OBJECT

public:
    explicit SideBar(QWidget* parent);

private:
    void setUpPlotType();
    void setUpLayers();
    void setPlotType();
    static void setLayer(const QCheckBox& box, bool isOn);
    void update();

    QComboBox* m_plotType;
    QGroupBox* m_layers;
    QGroupBox* m_zones;
    QList<QCheckBox*> m_layerBoxes;
    sdk::OnIdleAfterStateChangeActionPerformer m_updater;
};

} // namespace vantrix::app
