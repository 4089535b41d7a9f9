#ifndef TOOLS_CCOMMANDLINE_H
#define TOOLS_CCOMMANDLINE_H

#include <QCommandLineParser>
#include <QString>
#include <QStringList>

#include <optional>

/** How every tool ends. */
enum EExitStatus : int
{
    EXIT_ALL_DONE = 0,
    EXIT_NOT_ALL_DONE = 1, ///< Something could not be read, done or written
    EXIT_USAGE = 2         ///< The command line or the settings were not understood
};

/** The name under which a file stands for standard input and output. */
const QString& standardStream();

/** The node-ID that a text names, from 1 to 127; 0 for any other text. */
unsigned int nodeIdFrom(const QString& text);

/** The command line of a tool: what it takes, and what all tools do with it. Options are asked for by their names. */
class CCommandLine
{
public:
    /** @p files says what the arguments are, @p filesSyntax how they are written, such as "FILE...". */
    CCommandLine(const QString& description, const QString& files, const QString& filesSyntax);

    /** Adds an option; one with @p valueName takes a value. */
    void add(const QStringList& names, const QString& description, const QString& valueName = QString());

    /** Adds the option for a node-ID, which parse() accepts from 1 to 127 only. */
    void addNodeId(const QString& description);

    /** Adds the options for a report that sums nothing up, and for less of it. */
    void addReportOptions(const QString& verbose, const QString& quiet);

    /** Understands the arguments of the program. Returns the status to end with when there is nothing more to do: help
     * or the version were asked for, or the line was refused. */
    std::optional<int> parse(const QStringList& arguments);

    bool isSet(const QString& option) const { return mOptions.contains(option) && mParser.isSet(option); }
    QString value(const QString& option) const { return isSet(option) ? mParser.value(option) : QString(); }
    /** The values of all occurrences of an option. */
    QStringList texts(const QString& option) const;
    /** The same, taken apart at commas. */
    QStringList values(const QString& option) const;
    /** The node-ID; 0 when none is given. */
    unsigned int nodeId() const;
    /** True where nothing is summed up. */
    bool isVerbose() const;
    /** True where less is reported. */
    bool isQuiet() const;
    QStringList files() const { return mParser.positionalArguments(); }

    /** Says why the command line is refused, and returns the status for that. */
    static int refuse(const QString& reason);

private:
    QCommandLineParser mParser;
    QStringList mOptions; // The names of all options
};

/** Writes the only result of a tool, followed by a line end, to standard output. Returns the status to end with. */
int print(const QString& text);

/** Runs a tool: its name and version, the language of the user, and pipes that are closed early. */
int runTool(int argc, char* argv[], const QString& name, int (*run)(const QStringList& arguments));

#endif
