#include "app/LineMapPanel.h"

#include "api/VtxUtil.h"
#include "app/LineMapItemModel.h"
#include "sdk/AppLock.h"
#include "sdk/VtxUtilActionReporter.h"
#include "toolbox/HostString.h"
#include "toolbox/Set.h"
#include "toolbox/StyleValue.h"

#include <QCheckBox>
#include <QListView>
#include <QMenu>
#include <QVBoxLayout>

namespace vantrix::app {

using namespace Qt::StringLiterals;

namespace {

toolbox::StyleValue lineLayer(const QCheckBox& box)
{
    return toolbox::StyleValue("LinePlotLayers", box.objectName().toLatin1().constData());
}

void reportUnless(bool isDone)
{
    if (!isDone) {
        sdk::VtxUtilActionReporter().reportLastFailure();
    }
}

} // namespace

LineMapPanel::LineMapPanel(QWidget* parent)
    : QGroupBox(tr("Line Maps"), parent)
    , m_model(new LineMapItemModel(this))
    , m_list(new QListView(this))
{
    auto* layout = new QVBoxLayout(this);
    for (const auto& [name, text] : {std::pair("ShowLines", tr("Li&nes")), std::pair("ShowSymbols", tr("S&ymbols"))}) {
        auto* box = new QCheckBox(text, this);
        box->setObjectName(QLatin1StringView(name));
        connect(box, &QCheckBox::clicked, this, [box](bool isOn) {
            const sdk::AppLock lock;
            VtxUtilUndoSetStepName("Layers");
            lineLayer(*box).setValue(isOn);
        });
        layout->addWidget(box);
        m_layers << box;
    }
    m_list->setObjectName(u"lineMapList"_s);
    m_list->setToolTip(tr("Double-click to rename, right-click to add or delete"));
    m_list->setModel(m_model);
    m_list->setUniformItemSizes(true);
    m_list->setSelectionMode(QAbstractItemView::ExtendedSelection);
    m_list->setContextMenuPolicy(Qt::CustomContextMenu);
    connect(m_list, &QWidget::customContextMenuRequested, this, &LineMapPanel::showMenu);
    layout->addWidget(m_list, 1);
}

void LineMapPanel::refresh()
{
    for (QCheckBox* box : std::as_const(m_layers)) {
        bool isOn = false;
        lineLayer(*box).getValue(&isOn);
        box->setChecked(isOn);
    }
}

void LineMapPanel::showMenu(const QPoint& position)
{
    const QModelIndex current = m_list->indexAt(position);
    const long likeWhich = current.isValid() ? current.row() + 1 : VtxUtilLineMapGetCount();
    QMenu menu(this);
    QMenu* add = menu.addMenu(tr("&Add Line Map of"));
    const long variables = VtxUtilDataSetGetNumVars();
    long zone = 1;
    long x = 1;
    VtxUtilLineMapGetAssignment(likeWhich, &zone, &x, nullptr, nullptr, nullptr);
    for (long y = 1; y <= variables; ++y) {
        char* name = nullptr;
        VtxUtilVarGetName(y, &name);
        add->addAction(QString::fromStdString(toolbox::takeHostString(name)), this, [=] {
            const sdk::AppLock lock;
            VtxUtilUndoSetStepName("Add Line Map");
            reportUnless(VtxUtilLineMapCreate(zone, x, y));
        });
    }
    add->setEnabled(variables > 0);
    menu.addAction(tr("&Delete Selected"), this, &LineMapPanel::removeSelected)
        ->setEnabled(m_list->selectionModel()->hasSelection());
    menu.exec(m_list->viewport()->mapToGlobal(position));
}

void LineMapPanel::removeSelected()
{
    toolbox::Set lineMaps;
    for (const QModelIndex& row : m_list->selectionModel()->selectedIndexes()) {
        lineMaps.addMember(row.row() + 1);
    }
    const sdk::AppLock lock;
    VtxUtilUndoSetStepName("Delete Line Maps");
    reportUnless(VtxUtilLineMapDelete(lineMaps.handle()));
}

} // namespace vantrix::app
