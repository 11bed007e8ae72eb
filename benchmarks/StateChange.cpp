// One state change of the host with 1 000 listening kernel properties beside 1 000 raw reads of the store: a style
// change of another entry, of which they need not hear, and a change of the view, of which they all do.

#include "api/VtxUtil.h"
#include "kernel/Kernel.h"
#include "kernel/StateChanges.h"
#include "sdk/AppLock.h"
#include "styleproperties/KernelProperty.h"
#include "toolbox/ArgList.h"
#include "toolbox/StyleValue.h"

#include <benchmark/benchmark.h>

#include <boost/make_shared.hpp>

#include <vector>

namespace {

using vantrix::sdk::styleproperties::KernelProperty;
using vantrix::toolbox::StyleValue;

constexpr int listeners = 1000;

// What the properties mirror, and what changes: another value, as nearly all changes are.
StyleValue const mirrored("FrameLayout", "Width");
StyleValue const changed("FrameLayout", "HeaderColor");

void changeStyle(long round)
{
    vantrix::sdk::AppLock const lock;
    changed.setValue(round % 2 ? 2L : 3L);
}

void changeView(long /*round*/)
{
    vantrix::kernel::Kernel::instance().stateChanges().send(StateChange_View);
}

using Change = void (*)(long round);

void listening(benchmark::State& state, Change change)
{
    std::vector<boost::shared_ptr<KernelProperty<double>>> properties;
    long heard = 0;
    for (int i = 0; i < listeners; ++i) {
        properties.push_back(boost::make_shared<KernelProperty<double>>(mirrored));
        properties.back()->connectToValueChangedSignal([&heard](double) { ++heard; });
    }
    long round = 0;
    for (auto _ : state) {
        change(++round);
    }
    state.counters["heard"] = static_cast<double>(heard);
}
BENCHMARK_CAPTURE(listening, style, &changeStyle)->Name("state_change/ours");
BENCHMARK_CAPTURE(listening, view, &changeView)->Name("view_change/ours");

void rawReads(benchmark::State& state, Change change)
{
    vantrix::toolbox::RawArray<long> ids;
    mirrored.initMacroIDsfromStyleValueNames(ids);
    vantrix::toolbox::ArgList arguments;
    StyleValue::setupGetValueArgList(ids, -1, -1, arguments);
    double value = 0.0;
    long round = 0;
    for (auto _ : state) {
        change(++round);
        for (int i = 0; i < listeners; ++i) {
            StyleValue::getFinalValue(&value, arguments);
            benchmark::DoNotOptimize(value);
        }
    }
}
BENCHMARK_CAPTURE(rawReads, style, &changeStyle)->Name("state_change/bound");
BENCHMARK_CAPTURE(rawReads, view, &changeView)->Name("view_change/bound");

} // namespace
