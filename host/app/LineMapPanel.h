#pragma once

#include <QGroupBox>

class QCheckBox;
class QListView;

namespace vantrix::app {

class LineMapItemModel;

/* What the side bar has for line plots: the layers, and the line maps to show, name, add and delete. */
class LineMapPanel : public QGroupBox
{
    Q_OBJECT

public:
    explicit LineMapPanel(QWidget* parent);

    /* Reads the layers again. */
    void refresh();

private:
    void showMenu(const QPoint& position);
    void removeSelected();

    QList<QCheckBox*> m_layers;
    LineMapItemModel* m_model;
    QListView* m_list;
};

} // namespace vantrix::app
