#pragma once

#include "OdAlloc.h"
#include "TD_RootExport.h"

#include <cstddef>

// The host's choice of the allocator behind odrxAlloc and odrxFree.
using OdAllocFunction = void* (*)(std::size_t size);
using OdFreeFunction = void (*)(void* memory);

// Replaces the allocator; null functions restore the default (malloc and free).
TD_ROOT_EXPORT void odrxSetAllocator(OdAllocFunction allocate, OdFreeFunction release);
