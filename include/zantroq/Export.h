// Marks the symbols that libzantroq-chart exports; all others are hidden. Valid in C and C++.
#ifndef ZANTROQ_EXPORT_H
#define ZANTROQ_EXPORT_H

#if defined(__GNUC__)
/** Visible outside the library. */
#define ZANTROQ_CHART_EXPORT __attribute__((visibility("default")))
#else
/** Visible outside the library. */
#define ZANTROQ_CHART_EXPORT
#endif

#endif
