// The exported ribbon interface with the host's main window on screen (offscreen platform):
// the module has set up its main-window entries, and the window follows the model after a
// module's update and at the end of every statement.
#include "RibbonHost.h"
#include "RowRecords.h"

#include <QCoreApplication>
#include <QTabWidget>

#include <HostOptions.h>
#include <HostSession.h>
#include <HostWindow.h>
#include <benchmark/benchmark.h>

namespace {
// A row of N buttons loaded into the Add-Ins row and unloaded again, as often as the benchmark
// asks, with the host's main window created by the host's own session and shown; after each
// half of the cycle, `afterLoad` and `afterUnload` let the window follow. "per_call" is the
// time of one load or unload, what the window does included.
template <class AfterLoad, class AfterUnload>
void loadAndUnloadWithWindow(benchmark::State& state, AfterLoad afterLoad, AfterUnload afterUnload)
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
        afterLoad(session);
        for (RibbonItem* item : records.top())
            host.unload(item->id);
        afterUnload(session);
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

void rowLengths(benchmark::internal::Benchmark* benchmark)
{
    benchmark->ArgName("buttons")->Arg(100)->Arg(1000)->Arg(10000)->Unit(benchmark::kMillisecond);
}

// A turn of the event loop after each half: the window follows the module's updates.
void RibbonLoadUnloadWithWindow(benchmark::State& state)
{
    const auto turn = [](HostSession&) { QCoreApplication::processEvents(); };
    loadAndUnloadWithWindow(state, turn, turn);
}
BENCHMARK(RibbonLoadUnloadWithWindow)->Apply(rowLengths);

// A sibling's two commands with their tab in front: the end of the loading command's
// statement shows the tab, and the user brings it to the front (its page of N buttons is
// built); the end of the unloading command's statement takes the emptied tab away.
void RibbonLoadShowUnload(benchmark::State& state)
{
    const auto showInFront = [](HostSession& session) {
        session.settle();
        auto* tabs = session.mainFrame()->findChild<QTabWidget*>(QStringLiteral("RibbonTabs"));
        tabs->setCurrentIndex(tabs->count() - 1);
    };
    loadAndUnloadWithWindow(state, showInFront, [](HostSession& session) { session.settle(); });
}
BENCHMARK(RibbonLoadShowUnload)->Apply(rowLengths);
} // namespace
