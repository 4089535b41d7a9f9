#ifndef MVXXDDTOOLS_MVXXDDTOOLS_EXPORT_H
#define MVXXDDTOOLS_MVXXDDTOOLS_EXPORT_H

#include <QtGlobal>

/** Marks what mvxXddTools hands out: exported while the library itself is built, imported everywhere else. */
#ifdef MVXXDDTOOLS_LIBRARY
#define MVXXDDTOOLS_EXPORT Q_DECL_EXPORT
#else
#define MVXXDDTOOLS_EXPORT Q_DECL_IMPORT
#endif

#endif
