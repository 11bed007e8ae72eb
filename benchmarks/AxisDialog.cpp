// The axis dialog opened, and its tabs gone through, beside its bare form.

#include "dialogs/axis/AxisEditDialog.h"
#include "kernel/Kernel.h"
#include "kernel/OpenData.h"
#include "ui_AxisEditDialog.h"

#include <QApplication>
#include <QDialog>

#include <benchmark/benchmark.h>

namespace {

void openSample()
{
    static bool const opened = [] {
        vantrix::kernel::OpenData(vantrix::kernel::Kernel::instance()).sample("flow3d");
        return true;
    }();
    benchmark::DoNotOptimize(opened);
}

/// The dialog or the form, as a child of the parent.
QDialog* ours(QWidget& parent)
{
    return &vantrix::sdk::ui::dialogs::AxisEditDialog::getInstance(parent);
}

QDialog* bareForm(QWidget& parent)
{
    auto* const dialog = new QDialog(&parent);
    Ui::AxisEdit form;
    form.setupUi(dialog);
    return dialog;
}

void open(benchmark::State& state, QDialog* (*make)(QWidget&))
{
    openSample();
    for (auto _ : state) {
        QWidget parent;
        make(parent)->show();
        QApplication::processEvents();
    }
}
BENCHMARK_CAPTURE(open, ours, &ours)->Name("axis_details_open/ours")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(open, bound, &bareForm)->Name("axis_details_open/bound")->Unit(benchmark::kMillisecond);

void goThroughTabs(benchmark::State& state, QDialog* (*make)(QWidget&))
{
    openSample();
    QWidget parent;
    QDialog* const dialog = make(parent);
    dialog->show();
    auto* const tabs = dialog->findChild<QTabWidget*>(QStringLiteral("rangePage"));
    for (auto _ : state) {
        tabs->setCurrentIndex((tabs->currentIndex() + 1) % tabs->count());
        QApplication::processEvents();
    }
}
BENCHMARK_CAPTURE(goThroughTabs, ours, &ours)->Name("axis_details_tab/ours")->Unit(benchmark::kMillisecond);
BENCHMARK_CAPTURE(goThroughTabs, bound, &bareForm)->Name("axis_details_tab/bound")->Unit(benchmark::kMillisecond);

} // namespace
