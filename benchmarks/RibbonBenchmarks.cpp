// The exported ribbon interface as a sibling drives it: a row of N buttons loaded, then
// unloaded, on the host's default profile, with the module loaded through the platform.
#include "RibbonHost.h"
#include "RowRecords.h"

#include <benchmark/benchmark.h>

namespace {
// One iteration loads every button of the row, then unloads them in the order they were
// loaded; "per_call" is the time of one load or unload.
void RibbonLoadUnload(benchmark::State& state)
{
    const int count = static_cast<int>(state.range(0));
    const bool split = state.range(1) != 0;
    RibbonHost host;
    const RowRecords records(count, split);
    for (auto _ : state) {
        for (RibbonItem* item : records.top())
            host.load(item, 0);
        for (RibbonItem* item : records.top())
            host.unload(item->id);
    }
    if (host.addInsRow() && host.addInsRow()->GetButtons().GetCount() != 0)
        state.SkipWithError("the row was not emptied");
    const double calls = 2.0 * count * static_cast<double>(state.iterations());
    state.counters["per_call"] =
        benchmark::Counter(calls, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
    state.SetItemsProcessed(static_cast<int64_t>(calls));
}
BENCHMARK(RibbonLoadUnload)
    ->ArgNames({"buttons", "split"})
    ->ArgsProduct({{100, 1000, 10000}, {0, 1}})
    ->Unit(benchmark::kMillisecond);

// The application menu's "Export Table" entry put in and taken out. Each take-out leaves
// the separator in the menu, as siblings expect, so the menu grows by one entry per
// iteration: the iterations are fixed to keep runs comparable.
void ExportTableLoadUnload(benchmark::State& state)
{
    RibbonHost host;
    for (auto _ : state) {
        host.loadExportTable();
        host.unloadExportTable();
    }
    state.SetItemsProcessed(state.iterations());
}
BENCHMARK(ExportTableLoadUnload)->Iterations(2000)->Unit(benchmark::kMicrosecond);
} // namespace
