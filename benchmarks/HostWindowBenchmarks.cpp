// The exported ribbon interface with the host's main window on screen (offscreen platform):
// the module has set up its main-window entries and every change it makes to the model asks
// the window to follow.
#include "RibbonHost.h"
#include "RowRecords.h"

#include <QCoreApplication>

#include <HostOptions.h>
#include <HostSession.h>
#include <benchmark/benchmark.h>

namespace {
// A row of N buttons loaded, the event loop's turn (the window follows the model), then the
// buttons unloaded and another turn: the way a sibling that loads its buttons in one command
// drives the window. "per_call" is the time of one load or unload, the redraws included.
void RibbonLoadUnloadWithWindow(benchmark::State& state)
{
    const int count = static_cast<int>(state.range(0));
    RibbonHost host;
    HostSession session{HostOptions()};
    session.setWindowHandlers([](const QString&) {}, [] {});
    session.createMainFrame();
    QCoreApplication::processEvents();
    const RowRecords records(count, false);
    for (auto _ : state) {
        for (RibbonItem* item : records.top())
            host.load(item, 0);
        QCoreApplication::processEvents();
        for (RibbonItem* item : records.top())
            host.unload(item->id);
        QCoreApplication::processEvents();
    }
    if (host.addInsRow() && host.addInsRow()->GetButtons().GetCount() != 0)
        state.SkipWithError("the row was not emptied");
    session.destroyMainFrame();
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    const double calls = 2.0 * count * static_cast<double>(state.iterations());
    state.counters["per_call"] =
        benchmark::Counter(calls, benchmark::Counter::kIsRate | benchmark::Counter::kInvert);
    state.SetItemsProcessed(static_cast<int64_t>(calls));
}
BENCHMARK(RibbonLoadUnloadWithWindow)
    ->ArgName("buttons")
    ->Arg(100)
    ->Arg(1000)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond);
} // namespace
