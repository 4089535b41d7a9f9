#ifndef TOOLS_FILES_H
#define TOOLS_FILES_H

#include <QByteArray>
#include <QString>
#include <QStringList>

/** @file
 * Reading and writing whole files; "-" is standard input and output.
 */

/** Reads a whole file. Returns false, with a message. */
bool readFile(const QString& fileName, QByteArray& bytes, QString& errorText);

/** Writes a file whole or not at all. A file that is there keeps its mode and, where that is allowed, its owner; a
 * device or a pipe is written to. Returns false, with a message that is empty when it is already said. */
bool writeFile(const QString& fileName, const QByteArray& bytes, QString& errorText);

/** True for two names of one existing file. */
bool isSameFile(const QString& left, const QString& right);

/** Where the copies of a tool's files go to. */
struct SDestination
{
    QString output;    ///< A file or "-"
    QString outputDir; ///< A folder, which takes precedence
    QString suffix;    ///< The ending of the copies in the folder, such as ".eds"; empty for that of the original
    bool inPlace = false;

    /** The name of the copy of a file. */
    QString of(const QString& fileName) const;

    /** Why these files cannot be written there; nothing when they can. Tests that no file is written over and no copy
     * twice, before anything is written. */
    QString refusal(const QStringList& fileNames) const;
};

#endif
