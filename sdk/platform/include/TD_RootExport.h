#pragma once

// Export macros of the platform library and of the entry points that every module exports.
#if defined(_WIN32)
#if defined(TD_ROOT_BUILD)
#define TD_ROOT_EXPORT __declspec(dllexport)
#else
#define TD_ROOT_EXPORT __declspec(dllimport)
#endif
#define ODRX_MODULE_EXPORT __declspec(dllexport)
#define ODRX_MODULE_LOCAL
#else
#define TD_ROOT_EXPORT __attribute__((visibility("default")))
#define ODRX_MODULE_EXPORT __attribute__((visibility("default")))
#define ODRX_MODULE_LOCAL __attribute__((visibility("hidden")))
#endif
