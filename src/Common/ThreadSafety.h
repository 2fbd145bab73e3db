// Clang's thread-safety attributes; empty for compilers that do not know them.
// The `debug` preset builds with -Wthread-safety -Werror.
#pragma once

#if defined(__clang__)
#define ZELTO_ATTRIBUTE(x) __attribute__((x))
#else
#define ZELTO_ATTRIBUTE(x)
#endif

#define ZELTO_CAPABILITY(name) ZELTO_ATTRIBUTE(capability(name))
#define ZELTO_SCOPED_CAPABILITY ZELTO_ATTRIBUTE(scoped_lockable)
#define ZELTO_GUARDED_BY(lock) ZELTO_ATTRIBUTE(guarded_by(lock))
#define ZELTO_PT_GUARDED_BY(lock) ZELTO_ATTRIBUTE(pt_guarded_by(lock))
#define ZELTO_REQUIRES(...) ZELTO_ATTRIBUTE(requires_capability(__VA_ARGS__))
#define ZELTO_ACQUIRE(...) ZELTO_ATTRIBUTE(acquire_capability(__VA_ARGS__))
#define ZELTO_RELEASE(...) ZELTO_ATTRIBUTE(release_capability(__VA_ARGS__))
#define ZELTO_TRY_ACQUIRE(...) ZELTO_ATTRIBUTE(try_acquire_capability(__VA_ARGS__))
#define ZELTO_EXCLUDES(...) ZELTO_ATTRIBUTE(locks_excluded(__VA_ARGS__))
#define ZELTO_NO_THREAD_SAFETY_ANALYSIS ZELTO_ATTRIBUTE(no_thread_safety_analysis)
