// The module's delay-load import of the task pane companion.
#include "DelayLoadLibrary.h"

#include <TarnTaskPane.h>

namespace {
template <class Function>
Function resolved(const char* symbol)
{
    return DelayLoadLibrary::companion(TarnTaskPaneEntryPoints::library).resolve<Function>(symbol);
}
} // namespace

bool TarnTaskPane::addTaskPane(QUuid& installationId, const std::string& tag)
{
    auto call = resolved<TarnTaskPaneAddFunction>(TarnTaskPaneEntryPoints::addTaskPane);
    return call && call(&installationId, &tag);
}

void TarnTaskPane::showTaskPane()
{
    if (auto call = resolved<TarnTaskPaneShowFunction>(TarnTaskPaneEntryPoints::showTaskPane))
        call();
}

void TarnTaskPane::showViewcastMeassage()
{
    if (auto call =
            resolved<TarnTaskPaneShowFunction>(TarnTaskPaneEntryPoints::showViewcastMeassage))
        call();
}
