// A dialog made and shown, with manager, bindings and relevance, beside its bare form.

#include "OpenSample.h"
#include "dialogs/zone/CreateCircularZoneDialog.h"
#include "ui_CreateCircularZoneDialog.h"

#include <QApplication>
#include <QDialog>

#include <benchmark/benchmark.h>

#include <memory>

namespace {

void dialogLaunch(benchmark::State& state)
{
    openSample();
    for (auto _ : state) {
        QWidget parent;
        vantrix::sdk::ui::dialogs::CreateCircularZoneDialog::getInstance(parent).launch();
        QApplication::processEvents();
    }
}
BENCHMARK(dialogLaunch)->Name("dialog_launch/ours")->Unit(benchmark::kMillisecond);

void bareForm(benchmark::State& state)
{
    openSample();
    for (auto _ : state) {
        QWidget parent;
        auto* const dialog = new QDialog(&parent);
        Ui::CreateCircularZoneDialog form;
        form.setupUi(dialog);
        dialog->show();
        QApplication::processEvents();
    }
}
BENCHMARK(bareForm)->Name("dialog_launch/bound")->Unit(benchmark::kMillisecond);

} // namespace
