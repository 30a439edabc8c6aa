#include "OdAllocSetup.h"

#include <cstdlib>

namespace {
OdAllocFunction g_allocate = nullptr;
OdFreeFunction g_release = nullptr;
} // namespace

void* odrxAlloc(std::size_t size)
{
    return g_allocate ? g_allocate(size) : std::malloc(size);
}

void odrxFree(void* memory)
{
    if (g_release)
        g_release(memory);
    else
        std::free(memory);
}

void odrxSetAllocator(OdAllocFunction allocate, OdFreeFunction release)
{
    g_allocate = allocate;
    g_release = release;
}
