#pragma once

// The operating system's handle of a loaded library: an HMODULE on Windows, the handle that
// dlopen returns elsewhere.
#if defined(_WIN32)
struct HINSTANCE__;
typedef struct HINSTANCE__* HMODULE;
using OdModuleHandle = HMODULE;
#else
using OdModuleHandle = void*;
#endif
