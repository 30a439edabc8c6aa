#pragma once

#if defined(EXTCOMMANDS_SANITIZE)
#include <sanitizer/lsan_interface.h>
#endif

// Marks an object that lives until the process ends: the ribbon singletons and their tables,
// and the installed translators, are never freed, not even when the module is unloaded
// (docs/lifecycle.md, rows "Ribbon singletons" and "Translators"). Their
// only pointers are in the module's own data (or in Qt's, which the leak checker does not
// count), so LeakSanitizer finds them unreachable at exit. A suppression cannot name them either:
// by then their allocation stacks point into a library that is no longer mapped and have no
// symbols. So the sanitizer build is told at the allocation itself; whatever the object holds on
// the heap is taken as reachable with it.
template <class T>
T* keptForProcess(T* object)
{
#if defined(EXTCOMMANDS_SANITIZE)
    __lsan_ignore_object(object);
#endif
    return object;
}
