#pragma once

#if defined(_WIN32)
#if defined(FX_KERNEL_BUILD)
#define FX_KERNEL_EXPORT __declspec(dllexport)
#else
#define FX_KERNEL_EXPORT __declspec(dllimport)
#endif
#else
#define FX_KERNEL_EXPORT __attribute__((visibility("default")))
#endif
