#ifndef MVXXML_MVXXML_EXPORT_H
#define MVXXML_MVXXML_EXPORT_H

#include <QtGlobal>

/** Marks what mvxXml hands out: exported while the library itself is built, imported everywhere else. */
#ifdef MVXXML_LIBRARY
#define MVXXML_EXPORT Q_DECL_EXPORT
#else
#define MVXXML_EXPORT Q_DECL_IMPORT
#endif

#endif
