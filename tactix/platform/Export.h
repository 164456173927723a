#pragma once

// Marks what a shared build of the library exports. A static build defines TACTIX_STATIC for itself and its users.
#if defined(TACTIX_STATIC)
#define TACTIX_EXPORT
#elif defined(_WIN32)
#if defined(TACTIX_BUILDING)
#define TACTIX_EXPORT __declspec(dllexport)
#else
#define TACTIX_EXPORT __declspec(dllimport)
#endif
#else
#define TACTIX_EXPORT __attribute__((visibility("default")))
#endif
