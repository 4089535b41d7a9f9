#include "CCommandLine.h"

#include "COutput.h"
#include "Catalogue.h"
#include "Messages.h"

#include <QCoreApplication>

#include <csignal>

#include <fcntl.h>
#include <unistd.h>

namespace
{
const QString HELP = QStringLiteral("help");
const QString VERSION = QStringLiteral("version");
const QString NODE_ID = QStringLiteral("node-id");
const QString QUIET = QStringLiteral("quiet");
const QString VERBOSE = QStringLiteral("verbose");
constexpr unsigned int MAX_NODE_ID = 127;

// What Qt says in this class, so that the catalogue of the tools has it: Qt's own may not be installed.
[[maybe_unused]] constexpr const char* OF_QT[] = {
    QT_TRANSLATE_NOOP("QCommandLineParser", "Usage: %1"),
    QT_TRANSLATE_NOOP("QCommandLineParser", "[options]"),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Options:"),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Arguments:"),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Unknown option '%1'."),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Unknown options: %1."),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Missing value after '%1'."),
    QT_TRANSLATE_NOOP("QCommandLineParser", "Unexpected value after '%1'."),
};
} // namespace

const QString& standardStream()
{
    static const QString name = QStringLiteral("-");
    return name;
}

CCommandLine::CCommandLine(const QString& description, const QString& files, const QString& filesSyntax)
{
    mParser.setApplicationDescription(description);
    add({QStringLiteral("h"), HELP}, QCoreApplication::translate("tools", "Print this help."));
    add({QStringLiteral("v"), VERSION}, QCoreApplication::translate("tools", "Print the version."));
    mParser.addPositionalArgument(QStringLiteral("FILE"), files, filesSyntax);
}

void CCommandLine::add(const QStringList& names, const QString& description, const QString& valueName)
{
    mParser.addOption({names, description, valueName});
    mOptions << names;
}

void CCommandLine::addReportOptions(const QString& verbose, const QString& quiet)
{
    add({VERBOSE}, verbose);
    add({QStringLiteral("q"), QUIET}, quiet);
}

void CCommandLine::addNodeId(const QString& description)
{
    add({NODE_ID}, description, QStringLiteral("N"));
}

std::optional<int> CCommandLine::parse(const QStringList& arguments)
{
    if (!mParser.parse(arguments)) {
        return refuse(mParser.errorText());
    }
    if (isSet(HELP)) {
        return print(mParser.helpText().trimmed());
    }
    if (isSet(VERSION)) {
        return print(QCoreApplication::applicationName() + QLatin1Char(' ') + QCoreApplication::applicationVersion());
    }
    if (files().contains(QString())) {
        return refuse(QCoreApplication::translate("tools", "A file name is empty."));
    }
    if (isSet(NODE_ID) && nodeId() == 0) {
        return refuse(
            QCoreApplication::translate("tools", "\"%1\" is not a node-ID: these are 1 to 127.").arg(value(NODE_ID)));
    }
    return std::nullopt;
}

unsigned int nodeIdFrom(const QString& text)
{
    const unsigned int number =
        text.toUInt(nullptr, text.startsWith(QLatin1String("0x"), Qt::CaseInsensitive) ? 16 : 10);
    return number <= MAX_NODE_ID ? number : 0;
}

unsigned int CCommandLine::nodeId() const
{
    return nodeIdFrom(value(NODE_ID));
}

QStringList CCommandLine::texts(const QString& option) const
{
    return isSet(option) ? mParser.values(option) : QStringList();
}

bool CCommandLine::isVerbose() const
{
    return isSet(VERBOSE);
}

bool CCommandLine::isQuiet() const
{
    return isSet(QUIET);
}

QStringList CCommandLine::values(const QString& option) const
{
    QStringList values;
    for (const QString& text : texts(option)) {
        for (const QString& value : text.split(QLatin1Char(','))) {
            values << value.trimmed();
        }
    }
    return values;
}

int CCommandLine::refuse(const QString& reason)
{
    complain(reason);
    complain(QCoreApplication::translate("tools", "Try '%1 --help'.").arg(QCoreApplication::applicationName()));
    return EXIT_USAGE;
}

int print(const QString& text)
{
    COutput output;
    output.writeLine(text);
    return output.finish() ? EXIT_ALL_DONE : EXIT_NOT_ALL_DONE;
}

namespace
{
// Takes the places of standard streams that the caller has closed, so that no file that is opened gets their numbers.
// They fail when they are used.
void keepStandardStreams()
{
    for (const int stream : {STDIN_FILENO, STDOUT_FILENO, STDERR_FILENO}) {
        if (fcntl(stream, F_GETFD) == -1) {
            open("/dev/null", stream == STDIN_FILENO ? O_WRONLY : O_RDONLY);
        }
    }
}
} // namespace

int runTool(int argc, char* argv[], const QString& name, int (*run)(const QStringList& arguments))
{
    // A reader that closes the pipe early ends the output with an error, not the program with a signal.
    std::signal(SIGPIPE, SIG_IGN);
    keepStandardStreams();
    const QCoreApplication application(argc, argv);
    QCoreApplication::setApplicationName(name);
    QCoreApplication::setApplicationVersion(QStringLiteral(TOOL_VERSION));
    installCatalogue();
    return run(QCoreApplication::arguments());
}
