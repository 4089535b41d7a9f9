#ifndef TOOLS_CCOPYCOMMANDLINE_H
#define TOOLS_CCOPYCOMMANDLINE_H

#include "CCommandLine.h"

#include <functional>

/** Where the copies of a tool's files go to. */
struct SDestination
{
    QString output;    ///< A file or "-"
    QString outputDir; ///< A folder, which takes precedence
    QString suffix;    ///< The ending of the copies in the folder, such as ".eds"; empty where they are XDDs
    bool inPlace = false;

    /** The name of the copy of a file. An XDD in a folder keeps its ending. */
    QString of(const QString& fileName) const;
};

/** What the command line of such a tool asks for. */
struct SCopyRequest
{
    SDestination destination;
    bool dryRun = false;  ///< Nothing is written
    bool verbose = false; ///< Everything is reported by itself
    bool quiet = false;   ///< Nothing is reported
};

/** What became of a copy. */
enum class ECopied
{
    Yes,
    WithFault, ///< It was written, but is not what was asked for
    No
};

/** The command line of a tool that writes a copy of each of its files. */
class CCopyCommandLine : public CCommandLine
{
public:
    /** @p suffix is the ending of copies in a folder; empty where they are XDDs. */
    CCopyCommandLine(const QString& description, const QString& files, const QString& suffix);

    /** Adds where copies go to; the tool says what becomes of a file. */
    void addOutputOptions(const QString& output, const QString& outputDir);

    /** The same, and what tools take that report. */
    void addCopyOptions(const QString& output, const QString& outputDir, const QString& verbose, const QString& quiet);

    /** Gives copies in a folder another ending. */
    void setSuffix(const QString& suffix) { mSuffix = suffix; }

    /** Keeps a name in the folder free of copies. */
    void keepFree(const QString& fileName) { mKeptFree = fileName; }

    /** Lets the files be changed themselves. */
    void addInPlace(const QString& description);

    /** Calls for each file, unless one of them cannot be written where it should be; a call that fails has said why.
     * Where only some files were written, says which. Returns the status to end with. */
    int writeCopies(const std::function<ECopied(const SCopyRequest& request, const QString& fileName)>& copy) const;

private:
    SCopyRequest request() const;
    QString refusal(const SCopyRequest& request) const;

    QString mSuffix;
    QString mKeptFree;
    QString mOnlyOne; // Which options exclude each other
};

#endif
