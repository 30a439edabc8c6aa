#pragma once

// Marks a companion library's C entry points for export.
#if defined(_WIN32)
#define TARN_COMPANION_EXPORT extern "C" __declspec(dllexport)
#else
#define TARN_COMPANION_EXPORT extern "C" __attribute__((visibility("default")))
#endif
