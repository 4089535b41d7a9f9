#ifndef TOOLS_DESCRIPTIONS_H
#define TOOLS_DESCRIPTIONS_H

#include <CXddDocument.h>

/** @file
 * How tools open the files that they are given.
 */

/** Opens a file, or standard input for "-". Whether it is open is the caller's question. */
CXddDocument readDescription(const QString& fileName);

/** Opens a file and complains where that fails. */
CXddDocument openDescription(const QString& fileName);

/** True for a file that begins as XML, or of which nothing can be seen without reading it, such as a pipe. */
bool isXmlFile(const QString& fileName);

/** The descriptions in a folder and below it, by the endings of their names (xdd, xdc, xpd, eds, dcf), sorted. */
QStringList descriptionsIn(const QString& folder);

#endif
