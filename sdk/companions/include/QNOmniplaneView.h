#pragma once

// The collaboration-platform connector's view (platform module "QuillonOmniplaneConnector").
//
// Modules use the class once the dynamic linker has loaded the connector; its calls reach the
// loaded module's C entry points below. While the module is not loaded, nothing happens.
class QNOmniplaneView
{
public:
    bool addQNOmniplaneView();
};

extern "C" {
using QNOmniplaneViewAddFunction = bool (*)();
}

namespace QNOmniplaneViewEntryPoints {
constexpr const char* module = "QuillonOmniplaneConnector";
constexpr const char* addQNOmniplaneView = "QNOmniplaneView_addQNOmniplaneView";
} // namespace QNOmniplaneViewEntryPoints
