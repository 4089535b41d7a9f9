#ifndef TOOLS_COPIES_H
#define TOOLS_COPIES_H

#include <QString>
#include <QStringList>

/** @file
 * What tools have in common that write a copy of each of their files.
 */

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

/** What the command line of such a tool asks for. */
struct SCopyRequest
{
    SDestination destination;
    bool dryRun = false;  ///< Nothing is written
    bool verbose = false; ///< Everything is reported by itself
    bool quiet = false;   ///< Nothing is reported
};

/** Calls for each file, unless one of them cannot be written where it should be. Returns the status to end with. */
int writeCopies(
    const SCopyRequest& request, const QStringList& fileNames,
    bool (*copy)(const SCopyRequest& request, const QString& fileName));

#endif
