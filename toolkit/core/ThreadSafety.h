#pragma once

/// Names for Clang's thread-safety analysis; other compilers see nothing.
#if defined(__clang__)
#define TOOLKIT_ANNOTATION(x) __attribute__((x))
#else
#define TOOLKIT_ANNOTATION(x)
#endif

#define CAPABILITY(name) TOOLKIT_ANNOTATION(capability(name))
#define SCOPED_CAPABILITY TOOLKIT_ANNOTATION(scoped_lockable)
#define GUARDED_BY(lock) TOOLKIT_ANNOTATION(guarded_by(lock))
#define REQUIRES(...) TOOLKIT_ANNOTATION(requires_capability(__VA_ARGS__))
#define ACQUIRE(...) TOOLKIT_ANNOTATION(acquire_capability(__VA_ARGS__))
#define RELEASE(...) TOOLKIT_ANNOTATION(release_capability(__VA_ARGS__))
