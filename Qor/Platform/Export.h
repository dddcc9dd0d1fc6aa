#pragma once

/// `QOR_API` marks what a library shows to those that link it.
///
/// On Windows it is dllexport while `QOR_BUILD_SHARED` is defined (the library's own sources),
/// dllimport while `QOR_USE_SHARED` is defined (its users), and empty for static libraries.
/// Elsewhere it gives default visibility, so that run-time type information stays one across shared
/// objects.
#if defined(_WIN32)
#if defined(QOR_BUILD_SHARED)
#define QOR_API __declspec(dllexport)
#elif defined(QOR_USE_SHARED)
#define QOR_API __declspec(dllimport)
#else
#define QOR_API
#endif
#elif defined(__GNUC__)
#define QOR_API __attribute__((visibility("default")))
#else
#define QOR_API
#endif
