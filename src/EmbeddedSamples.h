#ifndef MVXISO15745XML_EMBEDDEDSAMPLES_H
#define MVXISO15745XML_EMBEDDEDSAMPLES_H

#include "mvxIso15745Xml_export.h"

/** @file
 * The resource compiler generates these two functions without a visibility mark. Declared here first, they are exported
 * like the rest of the interface, so that Q_INIT_RESOURCE and Q_CLEANUP_RESOURCE work outside of the library.
 */

/** Registers the sample descriptions under ":/mvxIso15745Xml/xml"; runs when the library is loaded. Returns 1. */
MVXISO15745XML_EXPORT int qInitResources_mvxIso15745Xml();

/** Takes the sample descriptions out again; runs when the library is unloaded. Returns 1. */
MVXISO15745XML_EXPORT int qCleanupResources_mvxIso15745Xml();

#endif
