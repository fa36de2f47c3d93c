#pragma once

// LVDATA_EXPORT marks the public interface of the library; everything else stays hidden inside the shared library.
//
// The build defines one of two names beside it, and nobody else needs to: LVDATA_STATIC wherever a static library is
// built or used (CMake targets and pkg-config files pass it on), LVDATA_BUILDING while the shared library itself is
// compiled.
#if defined(LVDATA_STATIC)
#define LVDATA_EXPORT
#elif defined(_WIN32)
#if defined(LVDATA_BUILDING)
#define LVDATA_EXPORT __declspec(dllexport)
#else
#define LVDATA_EXPORT __declspec(dllimport)
#endif
#else
#define LVDATA_EXPORT __attribute__((visibility("default")))
#endif
