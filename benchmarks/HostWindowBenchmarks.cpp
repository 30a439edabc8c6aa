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

// A sibling's two commands with their tab in front: one loads a row of N buttons, and the end
// of its statement shows them (the user brings the tab to the front, which builds its page);
// the other unloads them all, and the end of its statement takes the emptied tab away.
// "per_call" is the time of one load or unload, the N buttons' widgets and the redraws
// included.
void RibbonLoadShowUnload(benchmark::State& state)
{
    const int count = static_cast<int>(state.range(0));
    RibbonHost host;
    HostSession session{HostOptions()};
    session.setWindowHandlers([](const QString&) {}, [] {});
    session.createMainFrame();
    QCoreApplication::processEvents();
    auto* tabs = session.mainFrame()->findChild<QTabWidget*>(QStringLiteral("RibbonTabs"));
    const RowRecords records(count, false);
    for (auto _ : state) {
        for (RibbonItem* item : records.top())
            host.load(item, 0);
        session.settle();
        tabs->setCurrentIndex(tabs->count() - 1);
        for (RibbonItem* item : records.top())
            host.unload(item->id);
        session.settle();
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
BENCHMARK(RibbonLoadShowUnload)
    ->ArgName("buttons")
    ->Arg(100)
    ->Arg(1000)
    ->Arg(10000)
    ->Unit(benchmark::kMillisecond);
} // namespace
