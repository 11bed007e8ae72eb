// A burst of 10 000 style changes in one turn of the event loop with every dialog open, the changed widgets rewritten
// at its end, beside the same writes into a store that nobody listens to.

#include "OpenSample.h"
#include "dialogs/DialogRegistry.h"
#include "sdk/AppLock.h"
#include "sdk/OnIdleActionPerformerSingleShot.h"
#include "toolbox/StyleValue.h"

#include <QApplication>
#include <QLineEdit>
#include <QWidget>

#include <benchmark/benchmark.h>

#include <string>

namespace {

using vantrix::toolbox::StyleValue;

constexpr long changes = 10'000;

// Each in a step of its own, so that every one is told.
void burst()
{
    static StyleValue const width("FrameLayout", "Width");
    static StyleValue const headerColor("FrameLayout", "HeaderColor");
    for (long i = 0; i < changes; ++i) {
        vantrix::sdk::AppLock const lock;
        if (i % 2 == 0) {
            width.setValue(8.0 + 0.0001 * static_cast<double>(i));
        } else {
            headerColor.setValue(1 + i / 2 % 8);
        }
    }
}

void styleBurst(benchmark::State& state)
{
    openSample();
    QWidget parent;
    std::size_t open = 0;
    for (auto const& entry : vantrix::sdk::ui::dialogs::dialogRegistry()) {
        open += entry.launch(parent) != nullptr;
    }
    QApplication::processEvents();
    long rewrites = 0;
    for (auto* const field : parent.findChildren<QLineEdit*>(QStringLiteral("frameEdit_Width_1Text"))) {
        QObject::connect(field, &QLineEdit::textChanged, &parent, [&rewrites] { ++rewrites; });
    }
    for (auto _ : state) {
        burst();
        vantrix::sdk::OnIdleActionPerformerSingleShot::performPending();
    }
    if (rewrites != state.iterations()) {
        state.SkipWithError(
            ("the field of the width was rewritten " + std::to_string(rewrites) + " times, not once a burst").c_str());
    }
    state.counters["dialogs"] = static_cast<double>(open);
}
BENCHMARK(styleBurst)->Name("style_burst/ours")->Unit(benchmark::kMillisecond);

void rawWrites(benchmark::State& state)
{
    openSample();
    for (auto _ : state) {
        burst();
    }
}
BENCHMARK(rawWrites)->Name("style_burst/bound")->Unit(benchmark::kMillisecond);

} // namespace
