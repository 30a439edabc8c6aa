#pragma once

#include "TD_RootExport.h"

#include <cstddef>

// The platform allocator. Module objects are allocated through it so that a host can put
// its own allocator in place (odrxSetAllocator); a null result means the memory is not there.
using OdAllocFunction = void* (*)(std::size_t size);
using OdFreeFunction = void (*)(void* memory);

TD_ROOT_EXPORT void* odrxAlloc(std::size_t size);
TD_ROOT_EXPORT void odrxFree(void* memory);

// Replaces the allocator; null functions restore the default (malloc and free).
TD_ROOT_EXPORT void odrxSetAllocator(OdAllocFunction allocate, OdFreeFunction release);
