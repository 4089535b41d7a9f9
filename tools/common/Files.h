#ifndef TOOLS_FILES_H
#define TOOLS_FILES_H

#include <QByteArray>
#include <QString>

/** Writes a file whole or not at all; "-" is standard output. A file that is there keeps its mode and, where that is
 * allowed, its owner; a device or a pipe is written to. Complains and returns false when that fails. */
bool writeFile(const QString& fileName, const QByteArray& bytes);

/** True for two names of one existing file. */
bool isSameFile(const QString& left, const QString& right);

#endif
