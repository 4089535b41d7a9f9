#ifndef MVXISO15745XML_MVXISO15745XML_EXPORT_H
#define MVXISO15745XML_MVXISO15745XML_EXPORT_H

#include <QtGlobal>

/** Marks what mvxIso15745Xml hands out: exported while the library itself is built, imported everywhere else. */
#ifdef MVXISO15745XML_LIBRARY
#define MVXISO15745XML_EXPORT Q_DECL_EXPORT
#else
#define MVXISO15745XML_EXPORT Q_DECL_IMPORT
#endif

#endif
