#pragma once

// Marks what a shared build of the Qt front end lets out. A static build defines TACTIX_QT_STATIC for itself and its
// users.
#if defined(TACTIX_QT_STATIC)
#define TACTIX_QT_EXPORT
#elif defined(_WIN32)
#if defined(TACTIX_QT_BUILDING)
#define TACTIX_QT_EXPORT __declspec(dllexport)
#else
#define TACTIX_QT_EXPORT __declspec(dllimport)
#endif
#else
#define TACTIX_QT_EXPORT __attribute__((visibility("default")))
#endif
