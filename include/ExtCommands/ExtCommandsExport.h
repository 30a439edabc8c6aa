#pragma once

// EXTCOMMANDS_EXPORT marks what the ExtCommands module offers to sibling modules. The module
// is built with hidden symbols, so only what carries this mark can be reached from outside.
// The module itself is compiled with EXTCOMMANDS_BUILD defined; a sibling that includes this
// header is not, and imports instead.
#if defined(_WIN32)
#if defined(EXTCOMMANDS_BUILD)
#define EXTCOMMANDS_EXPORT __declspec(dllexport)
#else
#define EXTCOMMANDS_EXPORT __declspec(dllimport)
#endif
#else
#define EXTCOMMANDS_EXPORT __attribute__((visibility("default")))
#endif
