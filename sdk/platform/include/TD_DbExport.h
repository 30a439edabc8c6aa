#pragma once

// Export macro of the platform's drawing-database library.
#if defined(_WIN32)
#if defined(TD_DB_BUILD)
#define TD_DB_EXPORT __declspec(dllexport)
#else
#define TD_DB_EXPORT __declspec(dllimport)
#endif
#else
#define TD_DB_EXPORT __attribute__((visibility("default")))
#endif
