// The module's delay-load import of the task pane companion.
#include "DelayLoadLibrary.h"

#include <TarnTaskPane.h>

bool TarnTaskPane::addTaskPane(QUuid& installationId, const std::string& tag)
{
    return DelayLoadLibrary::call<TarnTaskPaneAddFunction>(TarnTaskPaneEntryPoints::library,
                                                           TarnTaskPaneEntryPoints::addTaskPane,
                                                           &installationId, &tag);
}

void TarnTaskPane::showTaskPane()
{
    DelayLoadLibrary::call<TarnTaskPaneShowFunction>(TarnTaskPaneEntryPoints::library,
                                                     TarnTaskPaneEntryPoints::showTaskPane);
}

void TarnTaskPane::showViewcastMeassage()
{
    DelayLoadLibrary::call<TarnTaskPaneShowFunction>(TarnTaskPaneEntryPoints::library,
                                                     TarnTaskPaneEntryPoints::showViewcastMeassage);
}
