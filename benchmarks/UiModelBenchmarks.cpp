// Look-ups of the host's user-interface model in lists of N entries: a command by
// identifier in the main group, a button of a row by identifier in another letter case, and
// reading a list by index from first to last.
#include <CFxHostUI.h>
#include <benchmark/benchmark.h>

#include <vector>

namespace {
CFxString identifier(int i)
{
    return CFxString(QStringLiteral("ID_ENTRY_%1").arg(i));
}

struct Model
{
    explicit Model(int count)
    {
        group = ui.CreateMenuGroup(CFxString("MAIN"));
        ui.GetMenuGroups().Append(group);
        row = ui.CreateRibbonRow(CFxString("ROW"));
        for (int i = 0; i < count; ++i) {
            ui.CreateCommand(identifier(i), group);
            row->GetButtons().Append(
                ui.CreateRibbonButton(CFxUIRibbonButton::kCommand, identifier(i)));
        }
        for (int i = 0; i < count; i += std::max(1, count / 64))
            wanted.push_back(identifier(i));
        for (int i = 0; i < count; i += std::max(1, count / 64))
            lowerCase.push_back(CFxString(identifier(i).toQString().toLower()));
    }

    CFxHostUI ui;
    CFxUIGroup* group;
    CFxUIRibbonRow* row;
    std::vector<CFxString> wanted;
    std::vector<CFxString> lowerCase;
};

void FindCommand(benchmark::State& state)
{
    Model model(static_cast<int>(state.range(0)));
    const CFxString group("main");
    for (auto _ : state) {
        for (const CFxString& id : model.wanted)
            benchmark::DoNotOptimize(model.ui.FindCommand(group, id));
    }
    state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(model.wanted.size()));
}
BENCHMARK(FindCommand)->ArgName("commands")->Arg(100)->Arg(10000);

void FindButtonInAnyCase(benchmark::State& state)
{
    Model model(static_cast<int>(state.range(0)));
    for (auto _ : state) {
        for (const CFxString& id : model.lowerCase)
            benchmark::DoNotOptimize(model.row->GetButtons().FindFirst(id));
    }
    state.SetItemsProcessed(state.iterations() * static_cast<int64_t>(model.lowerCase.size()));
}
BENCHMARK(FindButtonInAnyCase)->ArgName("buttons")->Arg(100)->Arg(10000);

void ReadRowByIndex(benchmark::State& state)
{
    Model model(static_cast<int>(state.range(0)));
    const CFxUIList<CFxUIRibbonButton>& buttons = model.row->GetButtons();
    for (auto _ : state) {
        for (int i = 0; i < buttons.GetCount(); ++i)
            benchmark::DoNotOptimize(buttons.GetAt(i));
    }
    state.SetItemsProcessed(state.iterations() * buttons.GetCount());
}
BENCHMARK(ReadRowByIndex)->ArgName("buttons")->Arg(100)->Arg(10000);
} // namespace
