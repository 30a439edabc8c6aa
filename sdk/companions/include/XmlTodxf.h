#pragma once

// The online connector's view (platform module "QNTForgeportConnector").
//
// Modules use the class once the dynamic linker has loaded the connector; its calls reach the
// loaded module's C entry points below. While the module is not loaded, nothing happens.
class XmlTodxf
{
public:
    bool addXmlTodxf();
    bool removeXmlTodxf();
};

extern "C" {
using XmlTodxfFunction = bool (*)();
}

namespace XmlTodxfEntryPoints {
constexpr const char* module = "QNTForgeportConnector";
constexpr const char* addXmlTodxf = "XmlTodxf_addXmlTodxf";
constexpr const char* removeXmlTodxf = "XmlTodxf_removeXmlTodxf";
} // namespace XmlTodxfEntryPoints
