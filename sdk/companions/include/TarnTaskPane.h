#pragma once

#include <QUuid>

#include <string>

// The task pane companion (library "TarnTaskPane"): the host's side pane with the maker's
// news and links, and the notice about the Viewcast viewer.
//
// Modules use the class; its calls reach the library through the module's delay-load import,
// which resolves the C entry points below on first use. Without the library, nothing happens.
class TarnTaskPane
{
public:
    // Adds the pane to the main window, for this installation and the given edition tag.
    bool addTaskPane(QUuid& installationId, const std::string& tag);
    void showTaskPane();
    // Tells the user that the Viewcast viewer is missing or too old, and where to get it.
    void showViewcastMeassage();
};

extern "C" {
using TarnTaskPaneAddFunction = bool (*)(QUuid* installationId, const std::string* tag);
using TarnTaskPaneShowFunction = void (*)();
}

namespace TarnTaskPaneEntryPoints {
constexpr const char* library = "TarnTaskPane";
constexpr const char* addTaskPane = "TarnTaskPane_addTaskPane";
constexpr const char* showTaskPane = "TarnTaskPane_showTaskPane";
constexpr const char* showViewcastMeassage = "TarnTaskPane_showViewcastMeassage";
} // namespace TarnTaskPaneEntryPoints
