#pragma once

#include "TD_RootExport.h"

#include <cstddef>

// The platform allocator. Module objects are allocated through it, so that a host can put its
// own allocator in place; a null result means the memory is not there.
TD_ROOT_EXPORT void* odrxAlloc(std::size_t size);
TD_ROOT_EXPORT void odrxFree(void* memory);
