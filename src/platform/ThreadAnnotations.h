// Lock annotations. clang checks them at compile time (-Wthread-safety); other compilers ignore them.
#pragma once

#if defined(__clang__)
#define ZANTROQ_ANNOTATE(x) __attribute__((x))
#else
#define ZANTROQ_ANNOTATE(x)
#endif

#define CAPABILITY(x) ZANTROQ_ANNOTATE(capability(x))
#define SCOPED_CAPABILITY ZANTROQ_ANNOTATE(scoped_lockable)
#define GUARDED_BY(x) ZANTROQ_ANNOTATE(guarded_by(x))
#define REQUIRES(...) ZANTROQ_ANNOTATE(requires_capability(__VA_ARGS__))
#define ACQUIRE(...) ZANTROQ_ANNOTATE(acquire_capability(__VA_ARGS__))
#define RELEASE(...) ZANTROQ_ANNOTATE(release_capability(__VA_ARGS__))
#define EXCLUDES(...) ZANTROQ_ANNOTATE(locks_excluded(__VA_ARGS__))
#define NO_THREAD_SAFETY_ANALYSIS ZANTROQ_ANNOTATE(no_thread_safety_analysis)
