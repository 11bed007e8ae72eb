// The zones of a large data set listed, all but the last selected and deleted, beside the rows of a plain string list.

#include "api/VtxUtil.h"
#include "dialogs/zone/DeleteZoneDialog.h"
#include "kernel/Document.h"
#include "kernel/Kernel.h"
#include "sdk/AppLock.h"
#include "sdk/OnIdleActionPerformerSingleShot.h"

#include <QApplication>
#include <QDialog>
#include <QListView>
#include <QPushButton>
#include <QStringListModel>
#include <QVBoxLayout>

#include <benchmark/benchmark.h>

namespace {

constexpr int zones = 100'000;

void showManyZones()
{
    using namespace vantrix::kernel;
    vantrix::sdk::AppLock const lock;
    Document& document = Kernel::instance().document();
    DataSet dataSet = document.newDataSet();
    dataSet.variables = {{"X", true}, {"Y", true}, {"Z", true}};
    auto const zone = std::make_shared<Zone const>(Zone::ordered("Zone", 1, 1, 1));
    dataSet.zones.assign(zones + 1, zone);
    dataSet.zoneEnabled.assign(zones + 1, true);
    document.attachDataSet(*document.activeFrame(), std::make_shared<DataSet const>(std::move(dataSet)));
}

void settle()
{
    vantrix::sdk::OnIdleActionPerformerSingleShot::performPending();
    QApplication::processEvents();
}

void selectAllButTheLast(QListView& list)
{
    QAbstractItemModel const& model = *list.model();
    list.selectionModel()->select(QItemSelection(model.index(0, 0), model.index(zones - 1, 0)),
                                  QItemSelectionModel::ClearAndSelect);
    settle();
}

void zoneList(benchmark::State& state)
{
    using vantrix::sdk::ui::dialogs::DeleteZoneDialog;
    for (auto _ : state) {
        state.PauseTiming();
        showManyZones();
        auto parent = std::make_unique<QWidget>();
        state.ResumeTiming();

        auto& dialog = DeleteZoneDialog::getInstance(*parent);
        dialog.launch();
        settle();
        selectAllButTheLast(*dialog.findChild<QListView*>());
        for (QPushButton* const button : dialog.findChildren<QPushButton*>()) {
            if (button->text() == QStringLiteral("&Delete")) {
                button->click();
            }
        }
        settle();

        state.PauseTiming();
        if (VtxUtilDataSetGetNumZones() != 1) {
            state.SkipWithError("the zones were not deleted");
        }
        parent.reset();
        vantrix::kernel::Kernel::instance().reset();
        state.ResumeTiming();
    }
}
BENCHMARK(zoneList)->Name("zone_list/ours")->Unit(benchmark::kMillisecond);

void plainList(benchmark::State& state)
{
    for (auto _ : state) {
        state.PauseTiming();
        QStringList texts;
        for (int zone = 1; zone <= zones + 1; ++zone) {
            texts.append(QStringLiteral("%1: Zone").arg(zone));
        }
        auto parent = std::make_unique<QWidget>();
        state.ResumeTiming();

        auto* const dialog = new QDialog(parent.get());
        auto* const layout = new QVBoxLayout(dialog);
        auto* const list = new QListView;
        layout->addWidget(list);
        list->setSelectionMode(QAbstractItemView::ExtendedSelection);
        list->setUniformItemSizes(true);
        QStringListModel model(texts);
        list->setModel(&model);
        dialog->show();
        settle();
        selectAllButTheLast(*list);
        model.removeRows(0, zones);
        settle();

        state.PauseTiming();
        parent.reset();
        state.ResumeTiming();
    }
}
BENCHMARK(plainList)->Name("zone_list/bound")->Unit(benchmark::kMillisecond);

} // namespace
